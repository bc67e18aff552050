// Carries out one command of a macro.
#pragma once

#include "addon/base/KeyFrameError.h"
#include "addon/macro/MacroKeywords.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace corvane::corutiltools {

// Base of the executers. Throws KeyFrameError for whatever a user can have done wrong.
class CommandExecuterAbstract {
public:
    CommandExecuterAbstract() = default;
    virtual ~CommandExecuterAbstract();

    CommandExecuterAbstract(CommandExecuterAbstract const&) = delete;
    CommandExecuterAbstract& operator=(CommandExecuterAbstract const&) = delete;

    // The parameters as the macro gave them, those of no use to this command included.
    virtual void
    executeCommand(std::vector<std::pair<Parameter_e, std::string>> const& parameters) = 0;

    // The value of the first such parameter, for T = std::string or Destination_e. Throws
    // KeyFrameError when there is none or it does not convert; value is unchanged then.
    template <typename T>
    static void
    getRequiredParameter(Parameter_e parameter,
                         std::vector<std::pair<Parameter_e, std::string>> const& parameters,
                         T& value) {
        auto const pair =
            std::find_if(parameters.begin(), parameters.end(), [parameter](auto const& candidate) {
                return candidate.first == parameter;
            });
        if (pair == parameters.end())
            throw KeyFrameError("Invalid macro command: missing value for parameter " +
                                quotedKeyword(parameter));
        if (!convert(pair->second, value))
            throw KeyFrameError("Invalid macro command: invalid value for parameter " +
                                quotedKeyword(parameter));
    }

private:
    static std::string quotedKeyword(Parameter_e parameter);
    static bool convert(std::string const& text, std::string& value);
    static bool convert(std::string const& text, Destination_e& value);
};

} // namespace corvane::corutiltools
