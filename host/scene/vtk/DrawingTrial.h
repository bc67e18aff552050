// Whether a driver draws, tried where it can do no harm.
#pragma once

#include <string>

namespace corvane::scene {

/// Makes a context and draws a picture of one pixel in a helper process, whose crash or standstill
/// is an answer as well. driverFiles names the drivers that EGL may choose from, as files that
/// describe them, with colons between; empty: those of the system. False, too, when no process
/// server runs: what cannot be tried is not relied on.
bool canDraw(const std::string& driverFiles);

/// The variable that tells libglvnd which drivers there are, files with colons between.
constexpr const char* driverFilesVariable = "__EGL_VENDOR_LIBRARY_FILENAMES";

} // namespace corvane::scene
