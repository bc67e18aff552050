// Where the tests find the sources and what was built.
#pragma once

#include <string>

namespace corvane::test {

/// A file of the source tree, by its name from the project's root: "examples/wake/wake.pvd".
std::string sourceFile(const std::string& name);
/// A file of the build folder: "bin/corvane".
std::string builtFile(const std::string& name);
/// The add-on that was built.
inline std::string builtAddOn() {
    return builtFile("lib/libKeyFrameAnimation.so");
}

} // namespace corvane::test
