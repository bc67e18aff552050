// Lines of words, quoted where they must be, so that any text survives.
#pragma once

#include <string>
#include <vector>

namespace corvane::host {

/// In double quotes, with \" and \\ for quotes and backslashes and \n for line breaks.
std::string quoted(const std::string& text);

/// Words are separated by blanks and tabs; "=" is a word of its own outside quotes; a word in
/// double quotes may hold anything, with \", \\ and \n as above. Throws HostError with the cause.
std::vector<std::string> splitWords(const std::string& text);

} // namespace corvane::host
