// The command line of "corvane validate" as values.
#pragma once

#include <string>

namespace corvane::app {

struct ValidateOptions {
    std::string addOn;
    unsigned cpuSeconds = 10; ///< of computing, for one callback of the add-on
};

/// Whether the first word is "validate". A data file of that name is ./validate.
bool asksToValidate(int argc, const char* const* argv);

/// For a command line that asks to. Throws PrintAndExit or UsageError.
ValidateOptions parseValidateCommandLine(int argc, const char* const* argv);

} // namespace corvane::app
