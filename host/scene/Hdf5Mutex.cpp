// The HDF5 library is used by one thread at a time.
#include "host/scene/Hdf5Mutex.h"

namespace corvane::scene {

std::mutex& hdf5Mutex() {
    static std::mutex mutex;
    return mutex;
}

} // namespace corvane::scene
