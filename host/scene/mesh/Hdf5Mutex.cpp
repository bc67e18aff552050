#include "host/scene/mesh/Hdf5Mutex.h"

#include <hdf5.h>

namespace corvane::scene {

std::mutex& hdf5Mutex() {
    static std::mutex mutex;
    return mutex;
}

void silenceHdf5() {
    // The exit handler of the library flushes written files, which there are none of, and prints
    // errors after a damaged file was read.
    static const bool isQuietAtExit = H5dont_atexit() >= 0;
    static_cast<void>(isQuietAtExit);
    H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
}

} // namespace corvane::scene
