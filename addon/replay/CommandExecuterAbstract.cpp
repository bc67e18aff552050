// Carries out one command of a macro.
#include "addon/replay/CommandExecuterAbstract.h"

namespace corvane::corutiltools {

CommandExecuterAbstract::~CommandExecuterAbstract() = default;

std::string CommandExecuterAbstract::quotedKeyword(Parameter_e parameter) {
    return '"' + EnumMap<Parameter_e>::instance().toString(parameter) + '"';
}

bool CommandExecuterAbstract::convert(const std::string& text, std::string& value) {
    value = text;
    return true;
}

bool CommandExecuterAbstract::convert(const std::string& text, Destination_e& value) {
    return EnumMap<Destination_e>::instance().fromString(text, value);
}

} // namespace corvane::corutiltools
