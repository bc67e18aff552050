// What the tests of the engine share: a host in memory, and short ways to ask it.
#pragma once

#include "addon/model/Records.h"
#include "tests/support/HostTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvane::test {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// Turns about the point (0, 0, 0), as the flights of the museum want it.
class EngineTest : public HostTest {
protected:
    EngineTest();

    host::Frame& frame() { return host.frame(); }
    host::View3D& view() { return frame().view; }

    /// The calls since the last clearCalls().
    std::vector<std::string> calls() { return host.calls(); }
    /// Those of them whose text begins so.
    std::vector<std::string> callsTo(const std::string& beginning) {
        return host.callsOf(beginning);
    }
    /// Without arguments, except where that is a lone TRUE or FALSE.
    std::vector<std::string> callNames();

    /// Nothing is locked or suspended, and no percent-done display is open.
    bool hostIsAtRest();

    /// Gives the frame a data set with zones at these solution times, all of the same strand.
    void setSolutionTimes(const std::vector<double>& times, long strand = 1);
};

using KeyFrames = std::vector<corutiltools::KeyFrame_s>;

/// Key frames that differ in nothing but the frame count; solution times 0, 10, 20, ...
KeyFrames keyFramesWithCounts(const std::vector<unsigned long>& counts);

/// A flight of that many frames between two key frames.
KeyFrames keyFramesForFrames(unsigned long totalFrames);

/// Of the host that is alive.
bool usesDisplayLists();

/// On screen, every option off, forward time, one cycle.
corutiltools::Settings_s plainSettings();

} // namespace corvane::test
