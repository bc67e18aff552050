// The sample as Exodus II files, written by the Exodus library.
#include "tests/unit/host/scene/formats/SampleBox.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <vtk_exodusII.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace corvane::test {

namespace {

constexpr std::array<const char*, 2> blockNames{"lower", "upper"};
constexpr int cellsOfBlock = 4;

void check(int code) {
    if (code < 0) {
        throw std::runtime_error("the sample cannot be written");
    }
}

class ExodusOutput {
public:
    ExodusOutput(const std::string& path, ExodusKind kind) {
        int sizeInProgram = sizeof(double);
        int sizeInFile = sizeof(double);
        const int mode = EX_CLOBBER | (kind == ExodusKind::Hdf5 ? EX_NETCDF4 : EX_64BIT_OFFSET);
        m_id = ex_create(path.c_str(), mode, &sizeInProgram, &sizeInFile);
        check(m_id);
    }
    ~ExodusOutput() { ex_close(m_id); }
    ExodusOutput(const ExodusOutput&) = delete;
    ExodusOutput& operator=(const ExodusOutput&) = delete;

    void writeMesh() const {
        std::vector<double> x;
        std::vector<double> y;
        std::vector<double> z;
        for (const host::Vec3& point : boxPoints()) {
            x.push_back(point.x);
            y.push_back(point.y);
            z.push_back(point.z);
        }
        const auto cells = boxCells();
        check(ex_put_init(m_id, "the sample", 3, std::ssize(x), std::ssize(cells), 2, 0, 0));
        check(ex_put_coord(m_id, x.data(), y.data(), z.data()));
        for (int block = 0; block < 2; ++block) {
            std::vector<int> nodes;
            for (int cell = 0; cell < cellsOfBlock; ++cell) {
                for (const int point : cells.at(firstCell(block) + cell)) {
                    nodes.push_back(point + 1);
                }
            }
            check(ex_put_block(m_id, EX_ELEM_BLOCK, block + 1, "HEX8", cellsOfBlock, 8, 0, 0, 0));
            check(ex_put_conn(m_id, EX_ELEM_BLOCK, block + 1, nodes.data(), nullptr, nullptr));
            check(ex_put_name(m_id, EX_ELEM_BLOCK, block + 1,
                              blockNames.at(static_cast<std::size_t>(block))));
        }
    }

    void nameVariables() const {
        std::array<std::string, 4> ofNodes{"p", "U_X", "U_Y", "U_Z"};
        std::array<char*, 4> names{};
        std::transform(ofNodes.begin(), ofNodes.end(), names.begin(),
                       [](std::string& name) { return name.data(); });
        check(ex_put_variable_param(m_id, EX_NODAL, 4));
        check(ex_put_variable_names(m_id, EX_NODAL, 4, names.data()));
        std::string ofCells = "q";
        char* name = ofCells.data();
        check(ex_put_variable_param(m_id, EX_ELEM_BLOCK, 1));
        check(ex_put_variable_names(m_id, EX_ELEM_BLOCK, 1, &name));
    }

    void writeStep(int step, double time) const {
        std::vector<double> p;
        std::vector<double> x;
        for (const host::Vec3& point : boxPoints()) {
            p.push_back(samplePressure(point.x, time));
            x.push_back(point.x);
        }
        const std::vector<double> zero(x.size(), 0.0);
        check(ex_put_time(m_id, step, &time));
        int variable = 0;
        for (const auto* values : std::array{&std::as_const(p), &std::as_const(x), &zero, &zero}) {
            check(ex_put_var(m_id, step, EX_NODAL, ++variable, 1, std::ssize(x), values->data()));
        }
        for (int block = 0; block < 2; ++block) {
            std::vector<double> q;
            for (int cell = 0; cell < cellsOfBlock; ++cell) {
                q.push_back(static_cast<double>(firstCell(block)) + cell + time);
            }
            check(ex_put_var(m_id, step, EX_ELEM_BLOCK, 1, block + 1, cellsOfBlock, q.data()));
        }
    }

private:
    static std::size_t firstCell(int block) {
        return static_cast<std::size_t>(block * cellsOfBlock);
    }

    int m_id = 0;
};

} // namespace

std::string writeExodusBox(const std::filesystem::path& folder, const std::string& name,
                           ExodusKind kind) {
    const std::string path = (folder / name).string();
    const ExodusOutput output(path, kind);
    output.writeMesh();
    output.nameVariables();
    int step = 0;
    for (const double time : sampleTimes) {
        output.writeStep(++step, time);
    }
    return path;
}

} // namespace corvane::test
