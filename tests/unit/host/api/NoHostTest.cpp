// Calls that come before there is an application, or after: as when the process ends.
#include "host/core/Host.h"
#include "hostapi/CorHost.h"
#include "tests/support/MemoryHost.h"

#include <gtest/gtest.h>

#include <memory>

namespace corvane::test {
namespace {

void callback() {}
void listener(StateChange_e, void*) {}
void idle(long) {}
CorBool command(char*, char**) {
    return TRUE;
}

class NoHostTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(host::Host::current(), nullptr); }
};

TEST_F(NoHostTest, operationsAnswerTheirFailure) {
    EXPECT_EQ(CorUtilAddOnRegister(110, "a", "b", "c"), nullptr);
    EXPECT_EQ(CorUtilMenuAddOption("Animate", "a", 1, &callback), FALSE);
    EXPECT_EQ(CorUtilMenuSetSensitivity("Animate", "a", TRUE), FALSE);
    EXPECT_EQ(CorUtilStateChangeAddCallbackX(nullptr), FALSE);
    EXPECT_EQ(CorUtilStateChangeAddListener(StateChangeMode_Synchronous, &listener, nullptr),
              FALSE);
    EXPECT_EQ(CorUtilStateChangeRemoveListener(&listener, nullptr), FALSE);
    EXPECT_EQ(CorUtilOnIdleQueueAddCallback(&idle, 1), FALSE);
    EXPECT_EQ(CorUtilFrameGetCount(), 0);
    EXPECT_EQ(CorUtilFrameGetPlotType(), PlotType_None);
    EXPECT_EQ(CorUtilFrameGetUniqueID(), 0);
    EXPECT_EQ(CorUtilFrameActivateTop(), FALSE);
    EXPECT_EQ(CorUtilFrameActivateByUniqueID(1), FALSE);
    EXPECT_EQ(CorUtilFramePushTop(), FALSE);
    EXPECT_EQ(CorUtilFrameLightweightPopNext(), FALSE);
    EXPECT_EQ(CorUtilConvertXDimension(1.0, CoordSys_Paper, CoordSys_Screen), 0.0);
    EXPECT_EQ(CorUtilViewRotate3D(RotateAxis_Psi, 1.0, 0.0, 0.0, 0.0, RotateOrigin_Default), FALSE);
    EXPECT_EQ(CorUtilDataSetIsAvailable(), FALSE);
    EXPECT_EQ(CorUtilZoneGetSolutionTime(1), 0.0);
    EXPECT_EQ(CorUtilZoneGetStrandID(1), 0);
    EXPECT_EQ(CorUtilSolutionTimeGetCurrent(), 0.0);
    EXPECT_EQ(CorUtilSolutionTimeSetCurrent(1.0), FALSE);
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(1), FALSE);
    EXPECT_EQ(CorUtilExportIsRecording(), FALSE);
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    EXPECT_EQ(CorUtilExportNextFrame(), FALSE);
    EXPECT_EQ(CorUtilExportFinish(), FALSE);
    EXPECT_EQ(CorUtilExportCancel(), FALSE);
    EXPECT_EQ(CorUtilExportSetup("ImageWidth", nullptr, 100, 0.0), FALSE);
    EXPECT_EQ(CorUtilMacroAddCommandCallback("a", &command), FALSE);
    EXPECT_EQ(CorUtilMacroIsRecordingActive(), FALSE);
    EXPECT_EQ(CorUtilMacroRecordExtCommand("a", "b"), FALSE);
    EXPECT_EQ(CorUtilMacroRecordRawCommand("a"), FALSE);
    EXPECT_EQ(CorUtilDialogErrMsg("a"), FALSE);
    EXPECT_EQ(CorUtilDialogMessageBox("a", MessageBox_YesNo), FALSE);
    EXPECT_EQ(CorUtilHelp("a", FALSE, 0), FALSE);
    EXPECT_EQ(CorGUIDialogCreateModeless(-1, 1, 1, "a", nullptr, nullptr, nullptr), -2);
    EXPECT_EQ(CorGUIDialogIsUp(-2), FALSE);
}

TEST_F(NoHostTest, resultsBehindPointersAreAsAfterAFailure) {
    auto* const something = reinterpret_cast<char*>(this);
    double number = -1.0;
    int integer = -1;
    CorUtilFrameGetPosAndSize(&number, &number, &number, &number);
    CorUtilWorkAreaGetDimensions(&integer, &integer);
    CorUtilThreeDViewGetViewerPos(&number, &number, &number);
    CorUtilThreeDViewGetViewerAngle(&number, &number, &number);
    CorUtilThreeDViewGetProjection(&number, &number, &integer);
    EXPECT_EQ(number, -1.0);
    EXPECT_EQ(integer, -1);
    auto set = reinterpret_cast<CorSet>(something);
    EXPECT_EQ(CorUtilZoneGetEnabled(&set), FALSE);
    EXPECT_EQ(set, nullptr);
    char* fileName = something;
    EXPECT_EQ(CorUtilDialogGetFileName(SelectFile_Read, &fileName, "", "", ""), FALSE);
    EXPECT_EQ(fileName, nullptr);
    auto* positions = reinterpret_cast<long*>(something);
    long count = 7;
    CorGUIListGetSelectedItems(-2, &positions, &count);
    EXPECT_EQ(positions, nullptr);
    EXPECT_EQ(count, 0);
}

TEST_F(NoHostTest, operationsWithoutResultDoNothing) {
    CorUtilLockOn();
    CorUtilLockOff();
    CorUtilLockStart(nullptr);
    CorUtilLockFinish(nullptr);
    CorUtilDrawGraphics(TRUE);
    CorUtilFrameLightweightPopStart();
    CorUtilFrameLightweightPopEnd();
    CorUtilStatusStartPercentDone("a", TRUE, TRUE);
    CorUtilStatusSetPercentDoneText("a");
    CorUtilStatusFinishPercentDone();
    CorGUIDialogLaunch(-2);
    SUCCEED();
}

TEST_F(NoHostTest, stylesAreNotAvailable) {
    toolbox::StyleValue style("ThreeDView");
    double width = -1.0;
    EXPECT_EQ(style.getDouble(width, "ViewWidth"), StyleGet_NotAvailable);
    EXPECT_EQ(width, -1.0);
    EXPECT_EQ(style.set(1.0, "ViewWidth"), StyleSet_NotAllowed);
}

TEST_F(NoHostTest, memoryCanStillBeMadeAndFreed) {
    char* text = CorUtilStringAlloc(3);
    EXPECT_NE(text, nullptr);
    CorUtilStringDealloc(&text);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(CorUtilStringAlloc(-1), nullptr);
    CorArgList list = CorUtilArgListAlloc();
    EXPECT_EQ(CorUtilArgListAppendInt(list, "a", 1), TRUE);
    EXPECT_EQ(CorUtilArgListAppendInt(nullptr, "a", 1), FALSE);
    CorUtilArgListDealloc(&list);
    EXPECT_EQ(list, nullptr);
}

TEST_F(NoHostTest, whatAHostMadeIsFreedAfterItIsGone) {
    auto host = std::make_unique<MemoryHost>();
    CorSet set = nullptr;
    ASSERT_EQ(CorUtilZoneGetEnabled(&set), TRUE);
    const auto notifier =
        std::make_unique<toolbox::StateChangeNotifier>(StateChangeMode_Synchronous);
    host.reset();
    CorUtilSetDealloc(&set);
    EXPECT_EQ(set, nullptr);
}

} // namespace
} // namespace corvane::test
