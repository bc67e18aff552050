// Values as texts and back.
#pragma once

#include <locale>
#include <sstream>
#include <string>

namespace corvane::corutiltools {

// As a standard stream writes the value, booleans as words. The same in every locale, since macros
// hold such texts.
template <typename T>
std::string streamText(const T& value) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::boolalpha << value;
    return stream.str();
}

// Reads the value at the beginning of the text; what follows does not count. Answers false, with
// the value unchanged, when there is none or it is out of the range of its type.
template <typename T>
bool readStreamText(const std::string& text, T& value) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    T parsed{};
    if (!(stream >> parsed)) {
        return false;
    }
    value = parsed;
    return true;
}

} // namespace corvane::corutiltools
