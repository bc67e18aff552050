// The command line as values.
#pragma once

#include "host/core/ports/DataFormat.h"

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace corvane::app {

struct Options {
    std::vector<std::string> data;
    std::string macro;
    std::vector<std::pair<std::string, std::string>> variables; ///< of macros: name, value
    bool batch = false;
    std::string keyFrames;
    std::string output;
    int width = 1280; ///< pixels of the picture
    int height = 720;
    bool isSizeGiven = false;
    std::optional<double> framesPerSecond;
    std::optional<int> supersample;
    std::vector<std::string> addOns; ///< libraries beside the one that comes with the program
    std::string trace;
    std::string record;                ///< a macro of what is done goes here
    std::optional<std::size_t> memory; ///< MiB for data that are kept
    bool quiet = false;
    bool reportsSystem = false; ///< and does nothing else

    /// Nothing of what was asked for can be done without one.
    bool needsWindow() const { return !batch && keyFrames.empty() && output.empty(); }
};

/// The command line asks for help or the version: print what() and end with success.
class PrintAndExit : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The command line makes no sense: what() tells why, in one sentence.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// dataFormats are those that the help lists. Throws PrintAndExit or UsageError.
Options parseCommandLine(int argc, const char* const* argv,
                         const std::vector<host::DataFormat>& dataFormats);

} // namespace corvane::app
