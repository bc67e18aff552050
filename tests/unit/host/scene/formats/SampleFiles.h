// The sample in the formats that have one file, or one list of files.
#pragma once

#include <filesystem>
#include <string>

namespace corvane::test {

/// All hold SampleBox.h at sampleTimes: "p" = samplePressure and "U" = (x, 0, 0) at the points,
/// and, but for CGNS, "q" = number of the cell + time in the cells. Each gives the file to open.

/// EnSight Gold as text, with the parts "fluid", all cells, and "inlet", the squares at x = 0.
std::string writeEnSightBox(const std::filesystem::path& folder);
/// EnSight Gold as VTK writes it: binary, with the times 0, 1, 2, the variables "p_n", "U_n",
/// "q_c", and the cells in two parts.
std::string writeBinaryEnSightBox(const std::filesystem::path& folder);

enum class ExodusKind { Classic, Hdf5 };
/// With the blocks "lower" and "upper".
std::string writeExodusBox(const std::filesystem::path& folder, const std::string& name = "box.e",
                           ExodusKind kind = ExodusKind::Classic);

/// With the zones "Box", structured, and "Beside", one hexahedron from x = 3 to 4 with the single
/// cell variable "T" = 7. The box has no "p" at the first time.
std::string writeCgnsBox(const std::filesystem::path& folder);

} // namespace corvane::test
