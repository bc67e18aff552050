#include "host/validate/Steps.h"

#include "host/core/macro/MacroText.h"
#include "host/validate/ControlSteps.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <utility>

namespace corvane::validate {

namespace {

using Turn = Step::Turn;

Step choosing(const host::MenuOption& option) {
    return {"choosing \"" + option.menu + " > " + option.label + '"', Turn::Use,
            [&option] { return option.isSensitive; }, option.chosen};
}

/// Controls may have the same label; numbers tell them apart.
void makeNamesDiffer(std::vector<Step>& steps) {
    std::set<std::string> taken;
    for (Step& step : steps) {
        const std::string name = step.what;
        for (int number = 2; !taken.insert(step.what).second; ++number) {
            step.what = name + " (" + std::to_string(number) + ')';
        }
    }
}

void play(memory::MemoryHost& host, const std::string& line) {
    std::istringstream macro(line);
    host.program().macros().play(macro, "validate", ".");
}

Step macroStep(memory::MemoryHost& host, const std::string& line) {
    return {"the macro line " + line, Turn::Last, [] { return true; },
            [&host, line] { play(host, line); }};
}

} // namespace

std::vector<Step> stepsOfUser(memory::MemoryHost& host, ItemOrder order) {
    std::vector<Step> steps;
    for (const auto& option : host.session().menuOptions().all()) {
        steps.push_back(choosing(*option));
    }
    for (const auto& control : host.session().controls().all()) {
        std::vector<Step> more = stepsWith(*control, host.session(), order);
        std::move(more.begin(), more.end(), std::back_inserter(steps));
    }
    makeNamesDiffer(steps);
    return steps;
}

std::vector<Step> stepsOfMacros(memory::MemoryHost& host,
                                const std::vector<std::string>& recorded) {
    std::vector<Step> steps;
    for (const std::string& name : host.session().addOnCommands().names()) {
        for (const char* const nonsense :
             {"", "Nonsense", "Nonsense Name=1 Other=\"two words\"", "\"", "=", "Name=\"open"}) {
            steps.push_back(macroStep(host, host::macroLine("EXTCOMMAND", {name, nonsense})));
        }
    }
    for (const std::string& line : recorded) {
        steps.push_back(macroStep(host, line));
    }
    return steps;
}

std::vector<Step> stepsOfPage(memory::MemoryHost& host) {
    std::vector<Step> steps;
    const auto add = [&](const std::string& what, std::function<void(host::Session&)> change) {
        steps.push_back({"the state change after " + what, Turn::Last, [] { return true; },
                         [&host, change = std::move(change)] { change(host.session()); }});
    };
    add("another solution time", [](host::Session& session) { session.setSolutionTime(1.0); });
    add("another kind of plot",
        [](host::Session& session) { session.setPlotType(PlotType_Cartesian2D); });
    add("a 3D plot again",
        [](host::Session& session) { session.setPlotType(PlotType_Cartesian3D); });
    add("a new frame", [](host::Session& session) { session.createFrame({}); });
    add("a frame less",
        [](host::Session& session) { session.deleteFrame(session.page().active()->id()); });
    add("new data", [](host::Session& session) { session.openData({"flow.mem"}); });
    return steps;
}

} // namespace corvane::validate
