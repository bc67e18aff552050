// Any words as a command line: they are refused in a sentence, or give options within their limits.
#include "host/app/Options.h"
#include "host/core/base/Limits.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace corvane::app;
using corvane::fuzz::require;
namespace limits = corvane::host::limits;

const std::vector<corvane::host::DataFormat> formats{{{".one", ".two"}, "One"}, {{".b"}, "Other"}};

// One word a line.
std::vector<std::string> wordsOf(const std::string& text) {
    std::vector<std::string> words(1);
    for (const char c : text) {
        if (c == '\n') {
            words.emplace_back();
        } else if (c != '\0') {
            words.back() += c;
        }
    }
    return words;
}

// Nothing when there is something else to do than to go on.
std::optional<Options> parsed(const std::vector<std::string>& words) {
    std::vector<const char*> arguments{"corvane"};
    for (const std::string& word : words) {
        arguments.push_back(word.c_str());
    }
    try {
        return parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), formats);
    } catch (const PrintAndExit& text) {
        require(*text.what() != '\0', "help and version are not empty");
    } catch (const UsageError& error) {
        require(*error.what() != '\0', "a refusal has a cause");
    }
    return std::nullopt;
}

bool isName(const std::string& name) {
    return !name.empty();
}

void check(const Options& options) {
    require(limits::pictureSide.contains(options.width), "the width is within its limits");
    require(limits::pictureSide.contains(options.height), "the height is within its limits");
    require(!options.framesPerSecond || limits::framesPerSecond.contains(*options.framesPerSecond),
            "the speed is within its limits");
    require(!options.supersample || *options.supersample > 0, "there are samples");
    require(std::all_of(options.data.begin(), options.data.end(), isName), "data have names");
    require(std::all_of(options.addOns.begin(), options.addOns.end(), isName),
            "add-ons have names");
    require(std::all_of(options.variables.begin(), options.variables.end(),
                        [](const auto& variable) {
                            return isName(variable.first) &&
                                   variable.first.find('=') == std::string::npos;
                        }),
            "variables have names");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> words =
        wordsOf(std::string(reinterpret_cast<const char*>(data), size));
    if (const std::optional<Options> options = parsed(words)) {
        check(*options);
    }
    return 0;
}
