// What the tests of the engine share: a host in memory, and short ways to ask it.
#include "tests/unit/addon/EngineTest.h"

#include "hostapi/CorHost.h"

#include <memory>

namespace corvane::test {

using namespace corutiltools;

namespace {

std::string withoutArguments(const std::string& call) {
    const std::size_t open = call.find('(');
    const std::string arguments = call.substr(open);
    return arguments == "(TRUE)" || arguments == "(FALSE)" ? call : call.substr(0, open);
}

} // namespace

EngineTest::EngineTest() {
    view().rotationOrigin = {};
    host.clearCalls();
}

std::vector<std::string> EngineTest::callNames() {
    std::vector<std::string> result;
    for (const std::string& call : calls()) {
        result.push_back(withoutArguments(call));
    }
    return result;
}

bool EngineTest::hostIsAtRest() {
    return host.session().locks().depth() == 0 && host.session().drawing().suspensions() == 0 &&
           !host.session().status().isActive();
}

void EngineTest::setSolutionTimes(const std::vector<double>& times, long strand) {
    auto data = std::make_shared<host::DataSet>();
    data->blocks.push_back({"block", 3});
    for (double time : times) {
        data->zones.push_back({0, time, strand, true});
    }
    frame().attachData(data);
}

KeyFrames keyFramesWithCounts(const std::vector<unsigned long>& counts) {
    KeyFrames keyFrames;
    for (unsigned long count : counts) {
        const double index = static_cast<double>(keyFrames.size());
        keyFrames.push_back(
            KeyFrame_s{View(0.0, 0.0, 10.0, 0.0, 0.0, 0.0, 4.0), "", count, 10.0 * index});
    }
    return keyFrames;
}

KeyFrames keyFramesForFrames(unsigned long totalFrames) {
    return keyFramesWithCounts({totalFrames - 1, 1});
}

bool usesDisplayLists() {
    bool use = false;
    toolbox::StyleValue("Interface").getBoolean(use, "UseDisplayLists");
    return use;
}

Settings_s plainSettings() {
    return Settings_s{
        {false, TimeAnimationOperation_Forward, 1}, Destination_OnScreen, false, false, false};
}

} // namespace corvane::test
