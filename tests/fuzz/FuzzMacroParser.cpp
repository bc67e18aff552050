// Any bytes as a macro command: they are refused, or what was parsed survives being built and
// parsed again.
#include "addon/base/KeyFrameError.h"
#include "addon/macro/MacroCommandManager.h"
#include "addon/macro/MacroKeywords.h"
#include "tests/fuzz/Require.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

using namespace corvane::corutiltools;
using corvane::fuzz::require;

using Manager = MacroCommandManager<Command_e, Parameter_e, KeyFrameError>;

const Manager manager(" ");

struct Command {
    Command_e command{};
    Manager::Parameters parameters;

    friend bool operator==(const Command&, const Command&) = default;
};

bool isKnownRefusal(std::string_view message) {
    return message == "Invalid macro command string." ||
           message == "Invalid macro command string format." ||
           message == "Invalid macro command string format. Unmatched quotation mark." ||
           message.starts_with("Unknown macro command: ") ||
           message.starts_with("Unknown macro parameter: ") ||
           message.starts_with("Invalid macro parameter string: ");
}

// False when the text is refused.
bool parse(const std::string& text, Command& result) {
    try {
        manager.parseMacroCommandString(text, result.command, result.parameters);
        return true;
    } catch (const KeyFrameError& error) {
        require(isKnownRefusal(error.what()), "a refusal has a known text");
    } catch (const std::out_of_range&) {
        require(!text.empty() && text.back() == ' ', "only a trailing blank is out of range");
    }
    require(result == Command(), "a refusal changes nothing");
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Command first;
    if (!parse(std::string(reinterpret_cast<const char*>(data), size), first)) {
        return 0;
    }
    Command second;
    require(parse(manager.buildMacroCommandString(first.command, first.parameters), second),
            "what was parsed can be built");
    require(first == second, "what was parsed survives being built");
    return 0;
}
