// Whether a netCDF file is whole.
#pragma once

#include <string>

namespace corvane::scene {

/// Throws a readError when the file is no Exodus II file, when it ends before its data do, or when
/// elements refer to nodes that are not there: the Exodus library writes about the first on the
/// terminal and reads zeros for the second, and VTK's reader falls over the third. The caller holds
/// hdf5Mutex().
void checkExodus(const std::string& path);

} // namespace corvane::scene
