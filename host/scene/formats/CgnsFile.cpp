#include "host/scene/formats/CgnsFile.h"

#include "host/scene/formats/ReadingTrial.h"
#include "host/scene/mesh/Hdf5Mutex.h"
#include "host/scene/mesh/ReadError.h"

#include <vtkCGNSReader.h>
#include <vtk_cgns.h>

// clang-format off
#include VTK_CGNS(cgnslib.h)
// clang-format on

#include <array>
#include <set>
#include <string>

namespace corvane::scene {

namespace {

using Name = std::array<char, 33>;

/// Inspects the file with the CGNS library itself: VTK's reader ends the program when it meets
/// something unexpected, so this has to find it first; and that reader lists only the variables of
/// the first zone.
class CgnsContents {
public:
    explicit CgnsContents(const std::string& path) {
        int kind = 0;
        if (cg_is_cgns(path.c_str(), &kind) != CG_OK) {
            throw ReadFailure("it is no CGNS file, or a damaged one");
        }
        check(cg_open(path.c_str(), CG_MODE_READ, &m_file));
    }
    ~CgnsContents() { cg_close(m_file); }
    CgnsContents(const CgnsContents&) = delete;
    CgnsContents& operator=(const CgnsContents&) = delete;

    /// Of all solutions, and the vectors that VTK combines from three of them.
    std::set<std::string> variables() const {
        std::set<std::string> names;
        for (int base = 1; base <= count(cg_nbases); ++base) {
            for (int zone = 1; zone <= count(cg_nzones, base); ++zone) {
                for (int solution = 1; solution <= count(cg_nsols, base, zone); ++solution) {
                    addVariables(names, base, zone, solution);
                }
            }
        }
        return names;
    }

private:
    void addVariables(std::set<std::string>& names, int base, int zone, int solution) const {
        for (int field = 1; field <= count(cg_nfields, base, zone, solution); ++field) {
            CGNS_ENUMT(DataType_t) type{};
            Name name{};
            check(cg_field_info(m_file, base, zone, solution, field, &type, name.data()));
            std::string variable = name.data();
            names.insert(variable);
            if (variable.ends_with('X')) {
                variable.pop_back();
                names.insert(variable);
            }
        }
    }

    template <class Function, class... Where>
    int count(Function function, Where... where) const {
        int number = 0;
        check(function(m_file, where..., &number));
        return number;
    }

    void check(int code) const {
        if (code != CG_OK) {
            throw ReadFailure(std::string("it is damaged (") + cg_get_error() + ")");
        }
    }

    int m_file = 0;
};

} // namespace

vtkSmartPointer<vtkAlgorithm> CgnsFile::openReader() const {
    expectHarmless(path(), contentsOnly, alwaysUnknown);
    silenceHdf5();
    const std::set<std::string> variables = CgnsContents(path()).variables();
    auto reader = vtkSmartPointer<vtkCGNSReader>::New();
    reader->SetFileName(path().c_str());
    reader->UpdateInformation();
    reader->EnableAllBases();
    for (const std::string& variable : variables) {
        reader->SetPointArrayStatus(variable.c_str(), 1);
        reader->SetCellArrayStatus(variable.c_str(), 1);
    }
    return reader;
}

std::mutex* CgnsFile::libraryMutex() const {
    return &hdf5Mutex();
}

} // namespace corvane::scene
