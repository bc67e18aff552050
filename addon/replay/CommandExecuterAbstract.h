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

    CommandExecuterAbstract(const CommandExecuterAbstract&) = delete;
    CommandExecuterAbstract& operator=(const CommandExecuterAbstract&) = delete;

    // The parameters as the macro gave them, those of no use to this command included.
    virtual void
    executeCommand(const std::vector<std::pair<Parameter_e, std::string>>& parameters) = 0;

    // The value of the first such parameter, for T = std::string or Destination_e. Throws
    // KeyFrameError when there is none or it does not convert; value is unchanged then.
    template <typename T>
    static void
    getRequiredParameter(Parameter_e parameter,
                         const std::vector<std::pair<Parameter_e, std::string>>& parameters,
                         T& value) {
        const auto pair =
            std::find_if(parameters.begin(), parameters.end(), [parameter](const auto& candidate) {
                return candidate.first == parameter;
            });
        if (pair == parameters.end()) {
            throw KeyFrameError("Invalid macro command: missing value for parameter " +
                                quotedKeyword(parameter));
        }
        if (!convert(pair->second, value)) {
            throw KeyFrameError("Invalid macro command: invalid value for parameter " +
                                quotedKeyword(parameter));
        }
    }

private:
    static std::string quotedKeyword(Parameter_e parameter);
    static bool convert(const std::string& text, std::string& value);
    static bool convert(const std::string& text, Destination_e& value);
};

} // namespace corvane::corutiltools
