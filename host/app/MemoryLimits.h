// What --memory means, in bytes.
#pragma once

#include "host/app/Options.h"
#include "host/scene/MemoryBudget.h"

namespace corvane::app {

/// For the meshes of time steps.
inline std::size_t memoryForData(const Options& options) {
    constexpr std::size_t mebibyte = 1024 * 1024;
    return options.memory ? *options.memory * mebibyte : scene::defaultMemoryBudget();
}

/// On top of that, for what is built from them.
inline std::size_t memoryForPlots(const Options& options) {
    return memoryForData(options) / 4;
}

} // namespace corvane::app
