// The HDF5 library is used by one thread at a time.
#pragma once

#include <mutex>

namespace corvane::scene {

/// One for the whole program. HDF5, and netCDF above it, keep unguarded global state.
std::mutex& hdf5Mutex();

} // namespace corvane::scene
