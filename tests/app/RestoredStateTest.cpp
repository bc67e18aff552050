// However a flight ends, the picture afterwards is the one from before.
#include "host/app/Flight.h"
#include "host/core/base/HostError.h"
#include "tests/app/BatchHost.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace corvane;
using namespace corvane::test;

namespace {

class RestoredState : public testing::Test {
protected:
    RestoredState() {
        host.play("$!INCLUDE \"wake.mcr\"\n$!STYLE Streamtraces/Show = true\n"
                  "$!STYLE StreamAttributes/StreamTiming/ShowMarkers = true\n"
                  "$!SOLUTIONTIME = 3\n");
        before = host.picture();
        style = host.program.session().page().active()->style;
    }

    /// A flight with all that can move.
    void fly() {
        StandingFlight flight{.frames = 20,
                              .timeOperation = "Bounce",
                              .streamtraces = true,
                              .fadeIn = true,
                              .fadeOut = true};
        app::Options options;
        options.keyFrames = folder.write("standing.keyframe", flight.keyFrameFile());
        options.output = folder.file("flight.mp4");
        options.width = host.width;
        options.height = host.height;
        app::fly(host.program, options);
    }

    void expectRestored() {
        const host::Frame& frame = *host.program.session().page().active();
        EXPECT_EQ(frame.style, style);
        EXPECT_EQ(host.program.session().locks().depth(), 0);
        EXPECT_EQ(host.program.session().drawing().suspensions(), 0);
        EXPECT_FALSE(host.program.session().exporter().isRecording());
    }
    /// The flight leaves the camera at its end and the time where it was; see the add-on's chain.
    void expectSamePictureFrom(const host::View3D& view, double time) {
        host.program.session().setView(view);
        host.program.session().setSolutionTime(time);
        EXPECT_EQ(host.picture(), before);
    }

    TempFolder folder;
    BatchHost host{160, 90};
    host::Picture before;
    host::FrameStyle style;
};

TEST_F(RestoredState, afterANormalEnd) {
    const host::View3D start = host.program.session().page().active()->view;
    fly();
    expectRestored();
    expectSamePictureFrom(start, 3.0);
}

TEST_F(RestoredState, afterTheUserStopped) {
    const host::View3D start = host.program.session().page().active()->view;
    host.movies.stopAt = 7;
    EXPECT_THROW(fly(), host::HostError);
    expectRestored();
    expectSamePictureFrom(start, 3.0);
    EXPECT_FALSE(folder.has("flight.mp4"));
    EXPECT_FALSE(folder.hasParts());
}

TEST_F(RestoredState, afterEveryPictureThatCouldNotBeWritten) {
    const host::View3D start = host.program.session().page().active()->view;
    for (const long failing : {0L, 1L, 10L, 19L}) {
        host.movies.onPicture = [failing](long picture) {
            if (picture == failing) {
                throw host::HostError("The disk is full.");
            }
        };
        try {
            fly();
            ADD_FAILURE() << failing;
        } catch (const host::HostError& error) {
            EXPECT_STREQ(error.what(), "The disk is full.") << failing;
        }
        expectRestored();
        expectSamePictureFrom(start, 3.0);
        EXPECT_FALSE(folder.hasParts());
    }
}

} // namespace
