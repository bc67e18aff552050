// The host in memory as authors of add-ons have it: nothing but its C functions is linked here.
#include "hostapi/CorHost.h"
#include "hostapi/testing/CorMemoryHost.h"
#include "tests/support/Folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::vector<std::string> told;
int dialog = COR_HANDLE_NOT_CREATED;
CorAddOnID addOnId = nullptr;

void note(const std::string& what) {
    told.push_back(what);
}

void openDialog() {
    CorGUIDialogLaunch(dialog);
}

void work() {
    CorUtilStatusStartPercentDone("Working", TRUE, TRUE);
    for (int percent = 0; percent <= 100 && CorUtilStatusCheckPercentDone(percent); ++percent) {
        note("step");
    }
    CorUtilStatusFinishPercentDone();
}

void ask() {
    char* name = nullptr;
    if (CorUtilDialogMessageBox("Really?", MessageBox_YesNo) &&
        CorUtilDialogGetFileName(SelectFile_Write, &name, "Films", "film", "*.avi")) {
        note(name);
    }
    CorUtilStringDealloc(&name);
}

void film() {
    CorUtilExportSetup("ExportFormat", nullptr, ExportFormat_AVI, 0.0);
    CorUtilExportSetup("ExportFName", "memory-host.avi", 0, 0.0);
    CorUtilExportStart();
    CorUtilExportNextFrame();
    CorUtilExportFinish();
}

CorBool command(char* text, char**) {
    note("command " + std::string(text));
    return std::string(text) == "Good";
}

void addControls() {
    static const char* const items[] = {"one", "two", "three"};
    const auto at = [](int line) { return line * 200; };
    CorGUIButtonAdd(dialog, 0, at(0), 900, 100, "&Work  ", work);
    CorGUIButtonAdd(dialog, 0, at(1), 900, 100, "Ask", ask);
    CorGUIButtonAdd(dialog, 0, at(2), 900, 100, "Film", film);
    CorGUILabelAdd(dialog, 0, at(3), "Name:");
    CorGUITextFieldAdd(dialog, 900, at(3), 900, 100, [](const char* text) {
        note("name " + std::string(text));
        return 1L;
    });
    CorGUILabelAdd(dialog, 0, at(4), "Count:");
    CorGUISpinTextFieldAdd(
        dialog, 900, at(4), 900, 100, [](const char*) { return 1L; }, [] { note("up"); },
        [] { note("down"); });
    CorGUIToggleAdd(dialog, 0, at(5), 900, 100, "Loud",
                    [](const long* isOn) { note("loud " + std::to_string(*isOn)); });
    const int list = CorGUIListAdd(dialog, 0, at(6), 900, 100, TRUE,
                                   [](const long* row) { note("row " + std::to_string(*row)); });
    for (const char* const item : items) {
        CorGUIListAppendItem(list, item);
    }
    CorGUIOptionMenuAdd(dialog, 0, at(7), 900, 100, items, 3,
                        [](const long* item) { note("item " + std::to_string(*item)); });
    CorGUIRadioBoxAdd(dialog, 0, at(8), 900, 100, items, 3,
                      [](const long* item) { note("radio " + std::to_string(*item)); });
    const int menu = CorGUIMenuAdd(CorGUIMenuBarAdd(dialog), "Menu");
    CorGUIMenuAddItem(menu, "&Item", nullptr, [] { note("menu item"); });
    CorGUIMenuAddToggle(menu, "Dim", nullptr, [](const long* isOn) {
        note("dim");
        static_cast<void>(isOn);
    });
    CorGUISetSensitivity(CorGUIButtonAdd(dialog, 0, at(9), 900, 100, "Dimmed", work), FALSE);
}

void enter() {
    addOnId = CorUtilAddOnRegister(110, "Face", "1", "somebody");
    CorUtilMenuAddOption("Animate", "&Face...", 1, openDialog);
    CorUtilMacroAddCommandCallback("Face", command);
    dialog = CorGUIDialogCreateModeless(
        COR_HANDLE_MAIN_WINDOW, 4000, 3000, "Face", [] { note("init"); },
        [] { CorGUIDialogDrop(dialog); }, [] { CorUtilHelp("face.html", FALSE, 0); });
    addControls();
}

class MemoryHostFaceTest : public testing::Test {
protected:
    MemoryHostFaceTest() {
        told.clear();
        CorMemoryHostLoadData(host);
        EXPECT_TRUE(CorMemoryHostCallEntryPoint(host, enter)) << CorMemoryHostGetError(host);
        EXPECT_TRUE(CorMemoryHostChooseMenuOption(host, "Animate", "Face..."));
        CorMemoryHostClearCalls(host);
        told.clear();
    }
    ~MemoryHostFaceTest() override {
        CorMemoryHostQuit(host);
        CorMemoryHostDestroy(&host);
    }
    int find(CorMemoryControl_e kind, const char* text = nullptr) {
        const int found = CorMemoryHostFindControl(host, dialog, kind, text);
        EXPECT_GE(found, 0) << CorMemoryHostGetError(host);
        return found;
    }
    CorBool press(const char* label) {
        return CorMemoryHostPress(host, find(CorMemoryControl_Button, label));
    }

    CorMemoryHost host = CorMemoryHostCreate(TRUE);
};

TEST_F(MemoryHostFaceTest, operatesEachKindOfControl) {
    const int field = find(CorMemoryControl_TextField, "Name:");
    const int list = find(CorMemoryControl_List);
    const int menu = find(CorMemoryControl_OptionMenu);
    const int radio = find(CorMemoryControl_RadioBox);
    const int toggle = find(CorMemoryControl_Toggle, "Loud");
    const int spin = find(CorMemoryControl_SpinField, "Count:");
    const std::vector<long> rows{2, 3};
    EXPECT_TRUE(CorMemoryHostType(host, field, "red"));
    EXPECT_TRUE(CorMemoryHostStep(host, spin, TRUE));
    EXPECT_TRUE(CorMemoryHostStep(host, spin, FALSE));
    EXPECT_TRUE(CorMemoryHostSwitch(host, toggle));
    EXPECT_TRUE(CorMemoryHostSelect(host, list, rows.data(), 2));
    EXPECT_TRUE(CorMemoryHostChoose(host, menu, 3));
    EXPECT_TRUE(CorMemoryHostChoose(host, radio, 2));
    EXPECT_TRUE(CorMemoryHostPress(host, find(CorMemoryControl_MenuItem, "Item")));
    EXPECT_TRUE(CorMemoryHostSwitch(host, find(CorMemoryControl_MenuToggle, "Dim")));
    EXPECT_THAT(told, ElementsAre("name red", "up", "down", "loud 1", "row 2", "item 3", "radio 2",
                                  "menu item", "dim"));
    EXPECT_STREQ(CorMemoryHostGetText(host, field), "red");
    EXPECT_TRUE(CorMemoryHostIsOn(host, toggle));
    EXPECT_EQ(CorMemoryHostGetItemCount(host, list), 3);
    EXPECT_STREQ(CorMemoryHostGetItem(host, radio, 3), "three");
    EXPECT_TRUE(CorMemoryHostIsChosen(host, list, 3));
    EXPECT_FALSE(CorMemoryHostIsChosen(host, list, 1));
    EXPECT_TRUE(CorMemoryHostIsChosen(host, menu, 3));
}

TEST_F(MemoryHostFaceTest, saysWhatAUserCannotDo) {
    EXPECT_FALSE(press("Dimmed"));
    EXPECT_THAT(CorMemoryHostGetError(host), HasSubstr("\"Dimmed\" is dimmed"));
    EXPECT_EQ(CorMemoryHostFindDialog(host, "Other"), COR_HANDLE_NOT_CREATED);
    EXPECT_THAT(CorMemoryHostGetError(host), HasSubstr("no dialog \"Other\""));
    EXPECT_EQ(CorMemoryHostFindControl(host, dialog, CorMemoryControl_Toggle, "Silent"),
              COR_HANDLE_NOT_CREATED);
    EXPECT_FALSE(CorMemoryHostPress(host, find(CorMemoryControl_List)));
    EXPECT_FALSE(CorMemoryHostPress(host, 4711));
    EXPECT_FALSE(CorMemoryHostChoose(host, find(CorMemoryControl_OptionMenu), 4));
    EXPECT_STREQ(CorMemoryHostGetItem(host, find(CorMemoryControl_List), 0), "");
    EXPECT_TRUE(CorMemoryHostPressDialogButton(host, dialog, CorMemoryDialogButton_Cancel));
    EXPECT_FALSE(CorMemoryHostIsUp(host, dialog));
    EXPECT_FALSE(press("Work"));
    EXPECT_FALSE(CorMemoryHostChooseMenuOption(host, "Animate", "Nothing"));
    EXPECT_FALSE(CorMemoryHostLoadAddOn(host, "none.so"));
    EXPECT_THAT(CorMemoryHostGetError(host), StartsWith("Cannot load the add-on none.so"));
    EXPECT_TRUE(told.empty());
}

TEST_F(MemoryHostFaceTest, answersQuestionsAndTellsWhatWasShown) {
    EXPECT_TRUE(press("Ask"));
    EXPECT_TRUE(told.empty());
    CorMemoryHostAnswer(host, "Really", TRUE);
    CorMemoryHostAnswerFile(host, "/films/red.avi");
    EXPECT_TRUE(press("Ask"));
    EXPECT_THAT(told, ElementsAre("/films/red.avi"));
    EXPECT_EQ(CorMemoryHostGetShownCount(host, CorMemoryShown_Question), 2);
    EXPECT_STREQ(CorMemoryHostGetShown(host, CorMemoryShown_FileToWrite, 1), "Films");
    EXPECT_TRUE(CorMemoryHostPressDialogButton(host, dialog, CorMemoryDialogButton_Help));
    EXPECT_STREQ(CorMemoryHostGetShown(host, CorMemoryShown_Help, 1), "face.html");
    EXPECT_EQ(CorMemoryHostGetHeldCount(host), 0);
}

TEST_F(MemoryHostFaceTest, stopsAndFailsOnCue) {
    CorMemoryHostStopAtCheck(host, 3);
    EXPECT_TRUE(press("Work"));
    EXPECT_EQ(told.size(), 2U);
    EXPECT_EQ(CorMemoryHostGetCallCount(host), 5);
    EXPECT_STREQ(CorMemoryHostGetCall(host, 5), "CorUtilStatusFinishPercentDone()");
    told.clear();
    CorMemoryHostFailCall(host, 2);
    EXPECT_TRUE(press("Work"));
    EXPECT_TRUE(CorMemoryHostHasFailed(host));
    EXPECT_EQ(told.size(), 1U);
    CorMemoryHostFailNext(host, "CorUtilStatusCheckPercentDone", 1);
    EXPECT_TRUE(press("Work"));
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(MemoryHostFaceTest, countsPicturesAndMovies) {
    EXPECT_TRUE(press("Film"));
    EXPECT_EQ(CorMemoryHostGetMovieFrameCount(host), 2);
    EXPECT_EQ(CorMemoryHostGetFinishedMovieCount(host), 1);
    const long before = CorMemoryHostGetPictureCount(host);
    CorUtilRedraw(TRUE);
    EXPECT_EQ(CorMemoryHostGetPictureCount(host), before + 1);
}

TEST_F(MemoryHostFaceTest, playsAndRecordsMacros) {
    CorMemoryHostStartRecording(host);
    EXPECT_TRUE(CorMemoryHostRunMacro(host, "$!EXTCOMMAND \"Face\" \"Good\""));
    EXPECT_FALSE(CorMemoryHostRunMacro(host, "$!EXTCOMMAND \"Face\" \"Bad\""));
    EXPECT_THAT(told, ElementsAre("command Good", "command Bad"));
    CorUtilMacroRecordExtCommand("Face", "Again");
    ASSERT_EQ(CorMemoryHostGetRecordedCount(host), 1);
    EXPECT_STREQ(CorMemoryHostGetRecorded(host, 1), "$!EXTCOMMAND \"Face\" \"Again\"");
}

TEST_F(MemoryHostFaceTest, tellsWhichRulesWereBroken) {
    EXPECT_EQ(CorMemoryHostGetBrokenCount(host), 0) << CorMemoryHostGetBroken(host, 1);
    CorUtilLockStart(addOnId);
    CorUtilDialogErrMsg(nullptr);
    ASSERT_EQ(CorMemoryHostGetBrokenCount(host), 2);
    EXPECT_THAT(CorMemoryHostGetBroken(host, 1), HasSubstr("message is NULL"));
    EXPECT_STREQ(CorMemoryHostGetBroken(host, 2), "locks held: 1");
    CorUtilLockFinish(addOnId);
    EXPECT_EQ(CorMemoryHostGetBrokenCount(host), 1);
}

TEST(MemoryHostFace, loadsDataThatTheTestDescribes) {
    CorMemoryHost host = CorMemoryHostCreate(TRUE);
    const std::vector<double> times{1.0, 2.5};
    const std::vector<double> low{0, 0, 0};
    const std::vector<double> high{4, 2, 1};
    EXPECT_FALSE(CorUtilDataSetIsAvailable());
    EXPECT_TRUE(CorMemoryHostAddBlock(host, "flow", 3, times.data(), 2));
    EXPECT_TRUE(CorMemoryHostAddBlock(host, "wall", 2, nullptr, 0));
    EXPECT_TRUE(CorMemoryHostAddVariable(host, "p", 1, -1.0, 1.0));
    EXPECT_TRUE(CorMemoryHostSetExtent(host, low.data(), high.data()));
    EXPECT_TRUE(CorMemoryHostLoadData(host)) << CorMemoryHostGetError(host);
    EXPECT_TRUE(CorUtilDataSetIsAvailable());
    EXPECT_EQ(CorUtilFrameGetPlotType(), PlotType_Cartesian3D);
    EXPECT_EQ(CorUtilZoneGetSolutionTime(2), 2.5);
    EXPECT_EQ(CorUtilZoneGetStrandID(3), 0);
    EXPECT_TRUE(CorMemoryHostRemoveData(host));
    EXPECT_FALSE(CorUtilDataSetIsAvailable());
    CorMemoryHostDestroy(&host);
    EXPECT_EQ(host, nullptr);
}

TEST(MemoryHostFace, loadsLibraries) {
    CorMemoryHost host = CorMemoryHostCreate(TRUE);
    CorMemoryHostLoadData(host);
    const std::string library = corvane::test::builtFile("tests/libraries/RuleBreaker.so");
    ASSERT_TRUE(CorMemoryHostLoadAddOn(host, library.c_str())) << CorMemoryHostGetError(host);
    EXPECT_TRUE(CorMemoryHostIsMenuOptionSensitive(host, "Animate", "Rules..."));
    EXPECT_TRUE(CorMemoryHostChooseMenuOption(host, "Animate", "Rules..."));
    EXPECT_TRUE(CorMemoryHostIsUp(host, CorMemoryHostFindDialog(host, "Rules")));
    EXPECT_TRUE(CorMemoryHostRunIdle(host));
    EXPECT_TRUE(CorMemoryHostQuit(host));
    CorMemoryHostDestroy(&host);
}

TEST(MemoryHostFace, keepsExceptionsOfEntryPointsInside) {
    CorMemoryHost host = CorMemoryHostCreate(TRUE);
    EXPECT_FALSE(CorMemoryHostCallEntryPoint(host, [] { throw std::runtime_error("no wind"); }));
    EXPECT_THAT(CorMemoryHostGetError(host), HasSubstr("no wind"));
    EXPECT_THAT(CorMemoryHostGetBroken(host, 1), HasSubstr("no wind"));
    CorMemoryHostDestroy(&host);
}

TEST(MemoryHostFace, hasNoDialogsWithoutWindows) {
    CorMemoryHost host = CorMemoryHostCreate(FALSE);
    EXPECT_TRUE(CorMemoryHostCallEntryPoint(host, enter));
    EXPECT_FALSE(CorMemoryHostChooseMenuOption(host, "Animate", "Face..."));
    EXPECT_EQ(CorMemoryHostFindDialog(host, "Face"), COR_HANDLE_NOT_CREATED);
    CorMemoryHostDestroy(&host);
}

TEST(MemoryHostFace, survivesNothing) {
    CorMemoryHostDestroy(nullptr);
    EXPECT_FALSE(CorMemoryHostLoadData(nullptr));
    EXPECT_STREQ(CorMemoryHostGetError(nullptr), "");
    EXPECT_STREQ(CorMemoryHostGetCall(nullptr, 1), "");
    EXPECT_EQ(CorMemoryHostGetCallCount(nullptr), 0);
    CorMemoryHost host = CorMemoryHostCreate(TRUE);
    EXPECT_FALSE(CorMemoryHostLoadAddOn(host, nullptr));
    EXPECT_STREQ(CorMemoryHostGetError(host), "library is NULL.");
    EXPECT_FALSE(CorMemoryHostAddBlock(host, nullptr, 3, nullptr, 0));
    EXPECT_FALSE(CorMemoryHostFailCall(host, -1));
    CorMemoryHostDestroy(&host);
}

} // namespace
