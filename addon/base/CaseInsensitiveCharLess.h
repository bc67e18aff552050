// Order of characters without regard to letter case.
#pragma once

namespace corvane::corutiltools {

// Compares characters as lower case. Only ASCII letters have a case here: keywords are ASCII, and
// the bytes of other letters must not change with the locale of whoever started the program.
struct CaseInsensitiveCharLess {
    bool operator()(char left, char right) const { return lowerCase(left) < lowerCase(right); }

private:
    static unsigned char lowerCase(char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte - 'A' + 'a') : byte;
    }
};

} // namespace corvane::corutiltools
