// The HDF5 library is used by one thread at a time.
#pragma once

#include <mutex>

namespace corvane::scene {

/// One for the whole program. HDF5, and netCDF above it, keep unguarded global state.
std::mutex& hdf5Mutex();

/// Keeps HDF5 from writing about damaged files on the terminal, which has to be said on each
/// thread. The caller holds hdf5Mutex().
void silenceHdf5();

} // namespace corvane::scene
