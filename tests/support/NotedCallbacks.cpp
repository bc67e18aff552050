#include "tests/support/NotedCallbacks.h"

#include <map>
#include <utility>

namespace corvane::test {

namespace {

std::map<std::string, std::function<void()>> works;

} // namespace

std::vector<std::string> NotedCallbacks::told;
long NotedCallbacks::textAnswer = 1;

NotedCallbacks::NotedCallbacks() {
    told.clear();
    works.clear();
    textAnswer = 1;
}

std::vector<std::string> NotedCallbacks::take() {
    return std::exchange(told, {});
}

void NotedCallbacks::on(const std::string& callback, std::function<void()> work) {
    works[callback] = std::move(work);
}

void NotedCallbacks::note(const std::string& what) {
    told.push_back(what);
    if (const auto found = works.find(what.substr(0, what.find(' '))); found != works.end()) {
        found->second();
    }
}

long NotedCallbacks::text(const char* text) {
    note(std::string("text ") + text);
    return textAnswer;
}

} // namespace corvane::test
