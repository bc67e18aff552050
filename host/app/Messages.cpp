// How the program speaks on standard error: one line a message.
#include "host/app/Messages.h"

#include <iostream>

namespace corvane::app {

std::string onOneLine(const std::string& message) {
    std::string line;
    for (const char c : message) {
        const bool isBreak = c == '\n' || c == '\r';
        if (!isBreak) {
            line += c;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    while (!line.empty() && line.back() == ' ') {
        line.pop_back();
    }
    return line;
}

void say(const std::string& message) {
    std::cerr << "corvane: " + onOneLine(message) + "\n";
}

} // namespace corvane::app
