// The host of the tests: what it remembers, what it can be told to do, what it complains about.
#include "tests/support/MemoryHost.h"

#include "host/core/base/HostError.h"
#include "hostapi/CorHost.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(MemoryHostTest, startsWithOneFrameOfTransientData) {
    MemoryHost host;
    EXPECT_EQ(CorUtilFrameGetCount(), 1);
    EXPECT_EQ(host.frame().placement, (host::Placement{0.0, 0.0, 8.0, 4.5}));
    EXPECT_TRUE(host.frame().data()->isTransient());
    EXPECT_EQ(host.frame().solutionTime, 0.0);
    EXPECT_EQ(host.renderer().renders(), 0U);
    EXPECT_FALSE(host.session().drawing().isMarked());
    EXPECT_THAT(host.calls(), ElementsAre("CorUtilFrameGetCount()"));
    EXPECT_THAT(host.leftBehind(), IsEmpty());
}

TEST(MemoryHostTest, canStartEmpty) {
    MemoryHost host(MemoryHost::Empty{});
    EXPECT_EQ(CorUtilFrameGetCount(), 0);
    EXPECT_THROW(host.frame(), std::logic_error);
    EXPECT_THROW(host.setData(nullptr), std::logic_error);
    EXPECT_THROW(host.setPlotType(PlotType_Cartesian2D), std::logic_error);
}

TEST(MemoryHostTest, theYoungestHostIsTheOneThatIsCalled) {
    MemoryHost older;
    {
        MemoryHost younger(MemoryHost::Empty{});
        EXPECT_EQ(CorUtilFrameGetCount(), 0);
        EXPECT_THAT(older.calls(), IsEmpty());
    }
    EXPECT_EQ(CorUtilFrameGetCount(), 1);
}

TEST(MemoryHostTest, callsCanBePickedAndForgotten) {
    MemoryHost host;
    CorUtilExportIsRecording();
    CorUtilRedraw(TRUE);
    CorUtilRedraw(FALSE);
    EXPECT_THAT(host.callsOf("CorUtilExport"), ElementsAre("CorUtilExportIsRecording()"));
    EXPECT_EQ(host.count("CorUtilRedraw"), 2U);
    EXPECT_EQ(host.count("CorUtilRed"), 0U);
    host.clearCalls();
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST(MemoryHostTest, callsCanBeRefused) {
    MemoryHost host;
    host.failNext("CorUtilRedraw", 2);
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    EXPECT_EQ(CorUtilRedraw(TRUE), TRUE);
    EXPECT_EQ(host.renderer().renders(), 1U);
    EXPECT_EQ(host::toString(host.records().front()), "CorUtilRedraw(TRUE) = FALSE [0]");
}

TEST(MemoryHostTest, callsWithoutResultCanBeRefusedToo) {
    MemoryHost host;
    host.failNext("CorUtilFrameGetPosAndSize");
    double width = -1.0;
    CorUtilFrameGetPosAndSize(nullptr, nullptr, &width, nullptr);
    EXPECT_EQ(width, -1.0);
    CorUtilFrameGetPosAndSize(nullptr, nullptr, &width, nullptr);
    EXPECT_EQ(width, 8.0);
}

TEST(MemoryHostTest, callsCanThrow) {
    MemoryHost host;
    host.throwAt("CorUtilRedraw", 2);
    EXPECT_EQ(CorUtilRedraw(TRUE), TRUE);
    EXPECT_THROW(CorUtilRedraw(TRUE), std::runtime_error);
    EXPECT_EQ(CorUtilRedraw(TRUE), TRUE);
    EXPECT_EQ(host.renderer().renders(), 2U);
}

TEST(MemoryHostTest, anyCallWithAResultCanBeTheOneThatFails) {
    MemoryHost host;
    EXPECT_FALSE(host.hasFailedAt());
    host.failAt(2);
    CorUtilLockStart(nullptr);
    EXPECT_EQ(CorUtilFrameGetCount(), 1);
    EXPECT_EQ(CorUtilExportIsRecording(), FALSE);
    EXPECT_FALSE(host.hasFailedAt());
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    EXPECT_TRUE(host.hasFailedAt());
    EXPECT_EQ(host.failedAt(), "CorUtilRedraw");
    EXPECT_EQ(host.callsBeforeFailure(), 3U);
    EXPECT_EQ(CorUtilRedraw(TRUE), TRUE);
    CorUtilLockFinish(nullptr);
}

TEST(MemoryHostTest, theUserStopsOnCue) {
    MemoryHost host;
    host.stopAtCheck(2);
    CorUtilStatusStartPercentDone("a", TRUE, TRUE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(1), TRUE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(2), FALSE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(3), FALSE);
    CorUtilStatusFinishPercentDone();
    EXPECT_EQ(host.status().checks(), 3U);
}

TEST(MemoryHostTest, picturesRememberTheirState) {
    MemoryHost host;
    host.frame().view.psi = 12.0;
    host.frame().style.light.intensity = 50.0;
    host.frame().style.streamTiming.timeAnchor = 0.25;
    host.frame().style.annotations.showAxis = false;
    CorUtilSolutionTimeSetCurrent(1.0);
    CorUtilRedraw(TRUE);
    host.frame().view.psi = 13.0;
    ASSERT_EQ(host.renderer().renders(), 1U);
    const RenderedState& state = host.renderer().states().front();
    EXPECT_TRUE(state.onScreen);
    EXPECT_EQ(state.frame, host.frame().id());
    EXPECT_EQ(state.view.psi, 12.0);
    EXPECT_EQ(state.light.intensity, 50.0);
    EXPECT_EQ(state.streamTiming.timeAnchor, 0.25);
    EXPECT_FALSE(state.showAxis);
    EXPECT_EQ(state.solutionTime, 1.0);
}

TEST(MemoryHostTest, picturesOffScreenHaveTheSizeThatWasAskedFor) {
    MemoryHost host;
    const host::PictureRequest request{ExportRegion_WorkArea, 6, 4, 2};
    const host::Picture picture = host.session().drawing().picture(request);
    EXPECT_EQ(picture.width, 6);
    EXPECT_EQ(picture.height, 4);
    EXPECT_EQ(picture.rgba.size(), 96U);
    EXPECT_EQ(host.renderer().states().front().request, request);
    EXPECT_FALSE(host.renderer().states().front().onScreen);
}

TEST(MemoryHostTest, dataAreReadFromMemory) {
    MemoryHost host(MemoryHost::Empty{});
    host.session().openData({"a.pvd", "b.pvd"});
    EXPECT_THAT(host.frame().data()->files, ElementsAre("a.pvd", "b.pvd"));
    EXPECT_THAT(host.reader().reads(), ElementsAre(ElementsAre("a.pvd", "b.pvd")));
    host.reader().failNext("a.pvd is empty.");
    EXPECT_THROW(host.session().openData({"a.pvd"}), host::HostError);
    const auto data = makeStaticData();
    host.reader().provide(data);
    host.session().openData({"c.vtp"});
    EXPECT_EQ(host.frame().data(), data);
}

TEST(MemoryHostTest, whatIsLeftBehindIsTold) {
    const TempFolder folder;
    MemoryHost host;
    host.session().exportSetup().fileName = folder.file("flight.avi");
    host.session().exportSetup().imageWidth = 4;
    CorUtilLockStart(nullptr);
    CorUtilDrawGraphics(FALSE);
    CorUtilStatusStartPercentDone("a", TRUE, TRUE);
    CorUtilExportStart();
    CorUtilZoneGetStrandID(99);
    host.expectMisuse("never seen");
    host.failNext("CorUtilMisspelt");
    EXPECT_THAT(host.leftBehind(),
                ElementsAre("CorUtilMisspelt was to fail and was not called",
                            "misuse: unit_support: CorUtilZoneGetStrandID: no such zone",
                            "no misuse although it was expected: never seen", "locks held: 1",
                            "drawing suspended: 1", "the percent-done display is open",
                            "a movie is being recorded"));
}

TEST(MemoryHostTest, complaintsAreTakenAway) {
    MemoryHost host;
    CorUtilZoneGetStrandID(99);
    host.session().callAddOn("the test", [] { throw std::runtime_error("no ears"); });
    const memory::Complaints complaints = host.takeComplaints();
    EXPECT_THAT(complaints.misuse, ElementsAre(HasSubstr("no such zone")));
    EXPECT_THAT(complaints.exceptions, ElementsAre("the test: no ears"));
    EXPECT_THAT(host.takeComplaints().misuse, IsEmpty());
    EXPECT_THAT(host.exceptions(), IsEmpty());
}

TEST(MemoryHostTest, callsThatCanFailAreKeptAndMayBeSpared) {
    MemoryHost host;
    host.keepCandidates();
    CorUtilDrawGraphics(TRUE);
    CorUtilRedraw(TRUE);
    CorUtilExportIsRecording();
    CorUtilFrameGetCount();
    EXPECT_THAT(host.takeCandidates(), ElementsAre("CorUtilRedraw", "CorUtilFrameGetCount"));
    host.askBeforeFailing(
        [](const std::string& operation) { return operation != "CorUtilRedraw"; });
    host.failAt(1);
    EXPECT_TRUE(CorUtilRedraw(TRUE));
    EXPECT_TRUE(host.hasFailedAt());
    host.failAt(1);
    EXPECT_EQ(CorUtilFrameGetCount(), 0);
    host.expectMisuse("drawing is not suspended");
}

TEST(MemoryHostTest, thingsThatAreNotGivenBackAreCounted) {
    MemoryHost host;
    const std::size_t before = MemoryHost::thingsHeld();
    char* text = CorUtilStringAlloc(3);
    CorArgList list = CorUtilArgListAlloc();
    CorSet set = nullptr;
    EXPECT_TRUE(CorUtilZoneGetEnabled(&set));
    EXPECT_EQ(MemoryHost::thingsHeld(), before + 3);
    CorUtilStringDealloc(&text);
    CorUtilArgListDealloc(&list);
    CorUtilSetDealloc(&set);
    EXPECT_EQ(MemoryHost::thingsHeld(), before);
}

TEST(MemoryHostTest, whoGoesOnAfterAStopIsCounted) {
    MemoryHost host;
    CorUtilStatusStartPercentDone("a", TRUE, TRUE);
    host.stopAtCheck(2);
    EXPECT_TRUE(CorUtilStatusCheckPercentDone(1));
    EXPECT_FALSE(host.status().hasStoppedAt());
    EXPECT_FALSE(CorUtilStatusCheckPercentDone(2));
    EXPECT_TRUE(host.status().hasStoppedAt());
    EXPECT_EQ(host.status().checksAfterStop(), 0U);
    CorUtilStatusCheckPercentDone(3);
    EXPECT_EQ(host.status().checksAfterStop(), 1U);
    CorUtilStatusFinishPercentDone();
}

TEST(MemoryHostTest, fileDialogsCanAnswerInAFolder) {
    const TempFolder folder;
    MemoryHost host;
    host.prompts().answerFilesIn(folder.path().string());
    char* name = nullptr;
    EXPECT_FALSE(CorUtilDialogGetFileName(SelectFile_Read, &name, "Kites", "kite", "*.kite"));
    EXPECT_TRUE(CorUtilDialogGetFileName(SelectFile_Write, &name, "Kites", "kite", "*.kite"));
    EXPECT_EQ(name, folder.write("file.kite", "red"));
    CorUtilStringDealloc(&name);
    EXPECT_TRUE(CorUtilDialogGetFileName(SelectFile_Read, &name, "Kites", "kite", "*.kite"));
    CorUtilStringDealloc(&name);
}

TEST(MemoryHostTest, expectedMisuseIsNotLeftBehind) {
    MemoryHost host;
    host.expectMisuse("no such zone");
    CorUtilZoneGetStrandID(99);
    EXPECT_THAT(host.leftBehind(), IsEmpty());
    EXPECT_THAT(host.misuse(), ElementsAre(HasSubstr("no such zone")));
}

} // namespace
} // namespace corvane::test
