// The sample as CGNS file, written by the CGNS library.
#include "tests/unit/host/scene/formats/SampleBox.h"
#include "tests/unit/host/scene/formats/SampleFiles.h"

#include <vtk_cgns.h>

// clang-format off
#include VTK_CGNS(cgnslib.h)
// clang-format on

#include <stdexcept>

namespace corvane::test {

namespace {

constexpr auto real = CGNS_ENUMV(RealDouble);
constexpr std::size_t nameLength = 32;

void check(int code) {
    if (code != CG_OK) {
        throw std::runtime_error(cg_get_error());
    }
}

class CgnsOutput {
public:
    explicit CgnsOutput(const std::string& path) {
        check(cg_open(path.c_str(), CG_MODE_WRITE, &m_file));
        check(cg_base_write(m_file, "Base", 3, 3, &m_base));
    }
    ~CgnsOutput() { cg_close(m_file); }
    CgnsOutput(const CgnsOutput&) = delete;
    CgnsOutput& operator=(const CgnsOutput&) = delete;

    void writeTimes() const {
        check(cg_biter_write(m_file, m_base, "Times", static_cast<int>(sampleTimes.size())));
        check(cg_goto(m_file, m_base, "BaseIterativeData_t", 1, "end"));
        const cgsize_t count = std::ssize(sampleTimes);
        check(cg_array_write("TimeValues", real, 1, &count, sampleTimes.data()));
    }

    void writeBox() const {
        const std::array<cgsize_t, 9> size{3, 3, 3, 2, 2, 2, 0, 0, 0};
        const int zone = writeZone("Box", size.data(), CGNS_ENUMV(Structured), boxPoints());
        std::string solutions;
        for (std::size_t step = 0; step < sampleTimes.size(); ++step) {
            std::string name = "Solution" + std::to_string(step);
            writeSolution(zone, name, step);
            name.resize(nameLength, ' ');
            solutions += name;
        }
        check(cg_ziter_write(m_file, m_base, zone, "Solutions"));
        check(cg_goto(m_file, m_base, "Zone_t", zone, "ZoneIterativeData_t", 1, "end"));
        const std::array<cgsize_t, 2> extent{nameLength, std::ssize(sampleTimes)};
        check(cg_array_write("FlowSolutionPointers", CGNS_ENUMV(Character), 2, extent.data(),
                             solutions.data()));
    }

    void writeBeside() const {
        const std::array<cgsize_t, 3> size{8, 1, 0};
        const std::vector<host::Vec3> points{{3, 0, 0}, {4, 0, 0}, {4, 1, 0}, {3, 1, 0},
                                             {3, 0, 1}, {4, 0, 1}, {4, 1, 1}, {3, 1, 1}};
        const int zone = writeZone("Beside", size.data(), CGNS_ENUMV(Unstructured), points);
        const std::array<cgsize_t, 8> nodes{1, 2, 3, 4, 5, 6, 7, 8};
        int section = 0;
        check(cg_section_write(m_file, m_base, zone, "Cells", CGNS_ENUMV(HEXA_8), 1, 1, 0,
                               nodes.data(), &section));
        int solution = 0;
        check(cg_sol_write(m_file, m_base, zone, "Heat", CGNS_ENUMV(CellCenter), &solution));
        writeField(zone, solution, "T", {7.0});
    }

private:
    int writeZone(const char* name, const cgsize_t* size, CGNS_ENUMT(ZoneType_t) type,
                  const std::vector<host::Vec3>& points) const {
        int zone = 0;
        check(cg_zone_write(m_file, m_base, name, size, type, &zone));
        writeCoordinate(zone, "CoordinateX", points, &host::Vec3::x);
        writeCoordinate(zone, "CoordinateY", points, &host::Vec3::y);
        writeCoordinate(zone, "CoordinateZ", points, &host::Vec3::z);
        return zone;
    }

    void writeCoordinate(int zone, const char* name, const std::vector<host::Vec3>& points,
                         double host::Vec3::*axis) const {
        std::vector<double> values;
        for (const host::Vec3& point : points) {
            values.push_back(point.*axis);
        }
        int coordinate = 0;
        check(cg_coord_write(m_file, m_base, zone, real, name, values.data(), &coordinate));
    }

    void writeSolution(int zone, const std::string& name, std::size_t step) const {
        int solution = 0;
        check(cg_sol_write(m_file, m_base, zone, name.c_str(), CGNS_ENUMV(Vertex), &solution));
        std::vector<double> p;
        std::vector<double> x;
        for (const host::Vec3& point : boxPoints()) {
            p.push_back(samplePressure(point.x, sampleTimes.at(step)));
            x.push_back(point.x);
        }
        if (step > 0) {
            writeField(zone, solution, "p", p);
        }
        writeField(zone, solution, "UX", x);
        writeField(zone, solution, "UY", std::vector<double>(x.size(), 0.0));
        writeField(zone, solution, "UZ", std::vector<double>(x.size(), 0.0));
    }

    void writeField(int zone, int solution, const char* name,
                    const std::vector<double>& values) const {
        int field = 0;
        check(cg_field_write(m_file, m_base, zone, solution, real, name, values.data(), &field));
    }

    int m_file = 0;
    int m_base = 0;
};

} // namespace

std::string writeCgnsBox(const std::filesystem::path& folder) {
    const std::string path = (folder / "box.cgns").string();
    const CgnsOutput output(path);
    output.writeTimes();
    output.writeBox();
    output.writeBeside();
    return path;
}

} // namespace corvane::test
