// A host with two dialogs whose callbacks write down what they were told.
#include "tests/unit/host/api/GuiTest.h"

#include <map>
#include <utility>

namespace corvane::test {

namespace {

std::map<std::string, std::function<void()>> works;

} // namespace

std::vector<std::string> GuiTest::told;
long GuiTest::textAnswer = 1;

GuiTest::GuiTest()
    : kites(CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 4000, 2000, "Kites", &init, &close,
                                       &help)),
      knots(CorGUIDialogCreateModal(COR_HANDLE_MAIN_WINDOW, 3000, 1000, "Knots", &init, &ok, &apply,
                                    &cancel, nullptr)) {
    told.clear();
    works.clear();
    textAnswer = 1;
}

void GuiTest::on(const std::string& callback, std::function<void()> work) {
    works[callback] = std::move(work);
}

std::vector<std::string> GuiTest::take() {
    return std::exchange(told, {});
}

void GuiTest::note(const std::string& what) {
    told.push_back(what);
    if (const auto found = works.find(what.substr(0, what.find(' '))); found != works.end()) {
        found->second();
    }
}

long GuiTest::text(const char* text) {
    note(std::string("text ") + text);
    return textAnswer;
}

MemoryDialog GuiTest::launchKites() {
    CorGUIDialogLaunch(kites);
    take();
    return kitesDialog();
}

MemoryDialog GuiTest::launchKnots() {
    CorGUIDialogLaunch(knots);
    take();
    return knotsDialog();
}

} // namespace corvane::test
