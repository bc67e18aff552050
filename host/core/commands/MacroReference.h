// The reference page of the macro language, made from the tables that the program works with.
#pragma once

#include <string>

namespace corvane::host {

/// Markdown: all commands, all style paths of a frame with their kinds of values, all export
/// settings.
std::string macroReference();

} // namespace corvane::host
