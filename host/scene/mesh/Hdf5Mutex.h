// Serializes the use of the HDF5 library.
#pragma once

#include <mutex>

namespace corvane::scene {

/// To be held while HDF5 or netCDF, which builds on it, is used: both have unguarded global state.
std::mutex& hdf5Mutex();

/// Stops HDF5 from printing errors about damaged files, for the calling thread only. The caller
/// holds hdf5Mutex().
void silenceHdf5();

} // namespace corvane::scene
