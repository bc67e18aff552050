// What the host knows of loaded data without touching a single value of them.
#pragma once

#include "host/core/page/Vec3.h"

#include <optional>
#include <string>
#include <vector>

namespace corvane::host {

/// One array of the data.
struct Variable {
    std::string name;
    int components = 1;   ///< 1 = scalar, 3 = vector
    double minimum = 0.0; ///< of the values, of the length for vectors; see DataSet::variables
    double maximum = 0.0;
};

/// One block of cells at one solution time.
struct Zone {
    int block = 0; ///< index into DataSet::blocks
    double solutionTime = 0.0;
    long strand = 0; ///< > 0: the same block through time; 0: static
    bool enabled = true;
};

/// A part of the mesh, through all its times.
struct Block {
    std::string name;
    int dimension = 3; ///< 3 = volume cells, 2 = a surface, 1 = lines, 0 = points
};

/// Describes a data set. The values belong to the reader, which derives from this class.
/// Zones are numbered from 1 on (zone number n is zones[n - 1]).
class DataSet {
public:
    virtual ~DataSet() = default;

    std::vector<std::string> files; ///< as they were opened, for titles and macros
    std::vector<Block> blocks;
    std::vector<Zone> zones;
    /// Ranges are those over the first, the middle and the last solution time, so that colours do
    /// not depend on what was looked at before.
    std::vector<Variable> variables;
    Bounds bounds; ///< of all blocks, at the first solution time

    const Variable* findVariable(const std::string& name) const;
    const Variable* findVector(const std::string& name) const; ///< with three components
    /// Whether plots can be coloured by this: the name of an array, or "name:X", "name:Y", "name:Z"
    /// of a vector.
    bool hasQuantity(const std::string& name) const;
    bool isTransient() const; ///< an enabled zone has a strand
};

/// Finds the zones to show at a solution time: for each strand the enabled zone with the largest
/// time not above it (tolerance 1e-9 relative), or its first one when there is none; and every
/// enabled static zone. Indices into DataSet::zones, ascending.
std::vector<int> zonesAtTime(const DataSet& data, double solutionTime);

/// The nearest solution time after (before) this one at which other zones are shown; nothing when
/// there is none.
std::optional<double> timeAfter(const DataSet& data, double solutionTime);
std::optional<double> timeBefore(const DataSet& data, double solutionTime);

} // namespace corvane::host
