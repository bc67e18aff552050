// How the program speaks on standard error: one line a message.
#pragma once

#include <string>

namespace corvane::app {

/// Line breaks become blanks, and question marks stand for other control characters: names of files
/// may hold what a terminal would obey.
std::string onOneLine(const std::string& message);
/// "corvane: message"
void say(const std::string& message);

} // namespace corvane::app
