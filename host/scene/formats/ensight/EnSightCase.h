// The case file of EnSight Gold.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace corvane::scene {

/// A file, or a file for each time: its name with "*" for the number.
struct EnSightFiles {
    std::string pattern;
    int timeSet = 0;        ///< 0: the same at all times
    bool isOneFile = false; ///< all times are in one file
};

struct EnSightVariable {
    std::string name;
    int components = 1;
    bool isOfCells = false;
    EnSightFiles files;
};

struct EnSightTimeSet {
    std::vector<double> times;
    std::vector<int> numbers; ///< of the files; as many as times, or none
};

class EnSightCase {
public:
    /// Throws ReadFailure.
    explicit EnSightCase(const std::string& path);

    const std::vector<double>& times() const { return m_times; } ///< ascending
    const EnSightFiles& geometry() const { return m_geometry; }
    /// Only the scalars and vectors of points and cells.
    const std::vector<EnSightVariable>& variables() const { return m_variables; }

    struct Place {
        std::string path;
        int index = 0; ///< of the state in the file
    };
    /// Where the data of a time are: those of the latest time of their set that is not after it, or
    /// of the first time of the set.
    Place placeOf(const EnSightFiles& files, double time) const;

private:
    std::string m_path;
    EnSightFiles m_geometry;
    std::vector<EnSightVariable> m_variables;
    std::map<int, EnSightTimeSet> m_timeSets;
    std::vector<double> m_times;
};

} // namespace corvane::scene
