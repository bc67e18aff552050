// Files written by VTK's own writers.
#pragma once

#include "tests/support/TempFolder.h"

#include <vtkDataObject.h>

#include <string>
#include <vector>

namespace corvane::test {

/// Writes the object in the format of the name's extension and gives the path.
std::string writeMesh(const TempFolder& folder, const std::string& name, vtkDataObject* object);

struct PvdEntry {
    double time = 0.0;
    int part = 0;
    std::string file; ///< as it is to be written in the list
    std::string name = {};
};

std::string writePvd(const TempFolder& folder, const std::string& name,
                     const std::vector<PvdEntry>& entries);

/// A list "series.pvd" of sampleGrid(0), sampleGrid(1), … at the times 0, 1, …, and beside it a
/// cube that never changes. Blocks: "flow", "body".
std::string writeSeries(const TempFolder& folder, int steps);

} // namespace corvane::test
