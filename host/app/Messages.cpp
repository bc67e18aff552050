// How the program speaks on standard error: one line a message.
#include "host/app/Messages.h"

#include <iostream>

namespace corvane::app {

namespace {

bool isControl(char c) {
    return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7f;
}

} // namespace

std::string onOneLine(const std::string& message) {
    std::string line;
    for (const char c : message) {
        const bool isBreak = c == '\n' || c == '\r';
        if (!isBreak) {
            line += isControl(c) ? '?' : c;
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
