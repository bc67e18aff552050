// Reads values from the words of macros, the same way in every country.
#include "host/core/macro/MacroWords.h"

#include "host/core/base/HostError.h"
#include "host/core/base/Text.h"

#include <filesystem>

namespace corvane::host {

namespace {

template <typename T>
T parsed(const std::string& text) {
    const std::optional<T> value = parsedNumber<T>(text);
    if (!value) {
        reject("\"" + text + "\" is not a number that fits here.");
    }
    return *value;
}

} // namespace

std::string absoluteName(const std::string& fileName) {
    return std::filesystem::absolute(fileName).lexically_normal().string();
}

void reject(const std::string& cause) {
    throw HostError(cause);
}

void expect(bool isSo, const char* form) {
    if (!isSo) {
        reject(std::string("Expected ") + form + ".");
    }
}

double numberFrom(const std::string& text) {
    return parsed<double>(text);
}

int integerFrom(const std::string& text) {
    return parsed<int>(text);
}

long longFrom(const std::string& text) {
    return parsed<long>(text);
}

int integerWithin(const Range<int>& range, const std::string& name, const std::string& text) {
    const int value = integerFrom(text);
    if (!range.contains(value)) {
        reject(name + " cannot be \"" + text + "\".");
    }
    return value;
}

bool booleanFrom(const std::string& text) {
    if (equalIgnoringCase(text, "true")) {
        return true;
    }
    if (!equalIgnoringCase(text, "false")) {
        reject("\"" + text + "\" is neither true nor false.");
    }
    return false;
}

const std::string& valueOf(const std::vector<std::string>& words, const char* form) {
    expect(words.size() == 2 && words[0] == "=", form);
    return words[1];
}

std::vector<std::pair<std::string, std::string>> settingsOf(const std::vector<std::string>& words,
                                                            std::size_t first, const char* form) {
    std::vector<std::pair<std::string, std::string>> settings;
    for (std::size_t i = first; i < words.size(); i += 3) {
        expect(i + 2 < words.size() && words[i + 1] == "=", form);
        settings.emplace_back(words[i], words[i + 2]);
    }
    return settings;
}

} // namespace corvane::host
