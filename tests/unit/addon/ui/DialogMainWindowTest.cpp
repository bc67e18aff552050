// The main dialog: its layout, its life and what it shows.
#include "tests/unit/addon/UiTest.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DialogMainLayoutTest : public UiTest {};

TEST_F(DialogMainLayoutTest, isMadeAsItsTableSays) {
    DialogMain::launch();
    EXPECT_THAT(
        host.callsOf("CorGUIDialogCreateModeless"),
        ElementsAre("CorGUIDialogCreateModeless(-1, 4870, 2620, \"Key Frame Animation\", non-null, "
                    "non-null, non-null)"));
    const std::string d = std::to_string(Dialog1Manager);
    EXPECT_THAT(host.callsOf("CorGUIListAdd"),
                ElementsAre("CorGUIListAdd(" + d + ", 224, 65, 2745, 1414, TRUE, non-null)"));
    const auto button = [&](const std::string& rest) {
        return "CorGUIButtonAdd(" + d + ", " + rest + ", non-null)";
    };
    EXPECT_THAT(host.callsOf("CorGUIButtonAdd"),
                ElementsAre(button("3160, 261, 1467, 145, \"&Insert         \""),
                            button("3160, 65, 1433, 145, \"&Append     \""),
                            button("3160, 580, 1433, 145, \"&Update      \""),
                            button("3160, 783, 1416, 145, \"A&pply        \""),
                            button("3160, 1138, 1416, 145, \"&Delete       \""),
                            button("3160, 1341, 1433, 145, \"&Clear         \""),
                            button("518, 2299, 1208, 232, \"A&nimate\\nAll\""),
                            button("2884, 2299, 1243, 232, \"  Animate \\n&Selected\"")));
    const auto label = [&](const std::string& rest) {
        return "CorGUILabelAdd(" + d + ", " + rest + ")";
    };
    EXPECT_THAT(host.callsOf("CorGUILabelAdd"), ElementsAre(label("207, 1595, \"View Name:\""),
                                                            label("189, 1806, \"Frame Count:\""),
                                                            label("207, 2016, \"Destination:\"")));
    EXPECT_THAT(host.callsOf("CorGUITextFieldAdd"),
                ElementsAre("CorGUITextFieldAdd(" + d + ", 1847, 1645, 2711, 145, non-null)",
                            "CorGUITextFieldAdd(" + d + ", 1847, 1856, 2711, 145, non-null)"));
    EXPECT_THAT(host.callsOf("CorGUIOptionMenuAdd"),
                ElementsAre(HasSubstr("(" + d + ", 1847, 2066, 2711, 145, ")));
}

TEST_F(DialogMainLayoutTest, explainsItsControls) {
    DialogMain::launch();
    const MemoryDialog window = host.gui().dialog("Key Frame Animation");
    EXPECT_EQ(window.button("Insert").toolTip(),
              "Add the current Corvane view as a key frame below the selected item(s) in the list");
    EXPECT_EQ(window.button("Append").toolTip(),
              "Append the current Corvane view as a key frame to the end of the list");
    EXPECT_EQ(window.button("Update").toolTip(),
              "Update the selected key frame with the current view in Corvane");
    EXPECT_EQ(window.button("Apply").toolTip(),
              "Apply the selected key frame as the view in Corvane");
    EXPECT_EQ(window.button("Delete").toolTip(), "Delete the selected key frame");
    EXPECT_EQ(window.button("Clear").toolTip(), "Delete all key frame views from the list");
    EXPECT_EQ(window.field("View Name:").toolTip(), "Enter the name of the selected view");
    EXPECT_EQ(window.field("Frame Count:").toolTip(),
              "Enter the number of frames between the selected and next key frame views");
    EXPECT_EQ(window.button("Animate All").toolTip(), "Animate through the list of all key frames");
    EXPECT_EQ(window.button("Animate Selected").toolTip(),
              "Animate between the selected and next key frames");
    EXPECT_EQ(window.list().toolTip(), "");
    EXPECT_EQ(window.optionMenu().toolTip(), "");
}

TEST_F(DialogMainLayoutTest, hasItsMenus) {
    DialogMain::launch();
    const MemoryDialog window = host.gui().dialog("Key Frame Animation");
    EXPECT_THAT(window.menus(), ElementsAre("&File", "&Options"));
    EXPECT_THAT(window.menu("File").entries(),
                ElementsAre("&Open Animation File...", "-", "&Save Animation File",
                            "Save Animation File &As..."));
    EXPECT_THAT(window.menu("Options").entries(),
                ElementsAre("Animate &Time Concurrently", "Time &Animation Options...", "-",
                            "Animate &Streamtraces Concurrently", "-", "Fade &In", "Fade &Out"));
    EXPECT_EQ(window.menu("File").item("Open Animation File...").help(),
              "Open a saved key frame animation file.");
    EXPECT_EQ(window.menu("File").item("Save Animation File").help(),
              "Save the key frame animation state to a file.");
    EXPECT_EQ(window.menu("File").item("Save Animation File As...").help(),
              "Save the key frame animation state to a file.");
    EXPECT_EQ(window.menu("Options").toggle("Animate Time Concurrently").help(),
              "Enable this option to animate time during the key frame animation.");
    EXPECT_EQ(window.menu("Options").toggle("Animate Streamtraces Concurrently").help(),
              "Enable this option to animate streamtrace markers during the key frame animation.");
    EXPECT_EQ(window.menu("Options").item("Time Animation Options...").help(), "");
    EXPECT_EQ(window.menu("Options").toggle("Fade In").help(), "");
    EXPECT_EQ(window.menu("Options").toggle("Fade Out").help(), "");
}

TEST_F(DialogMainLayoutTest, isMadeOnceAndRaisedAfterwards) {
    DialogMain::launch();
    DialogMain::launch();
    EXPECT_EQ(host.count("CorGUIDialogCreateModeless"), 1u);
    EXPECT_EQ(host.count("CorGUIMenuBarAdd"), 1u);
    EXPECT_THAT(host.gui().windowCalls(),
                ElementsAre("show Key Frame Animation", "raise Key Frame Animation"));
    DialogMain::drop();
    DialogMain::launch();
    EXPECT_EQ(host.count("CorGUIDialogCreateModeless"), 1u);
    EXPECT_EQ(host.count("CorGUIMenuBarAdd"), 1u);
}

TEST_F(DialogMainLayoutTest, isNotThereWhenTheHostCannotMakeIt) {
    host.failNext("CorGUIDialogCreateModeless");
    DialogMain::launch();
    EXPECT_THAT(host.callsOf("CorGUIMenuBarAdd"), IsEmpty());
    EXPECT_THAT(host.callsOf("CorGUIButtonAdd"), IsEmpty());
    EXPECT_FALSE(DialogMain::instance().isVisible());
    DialogMain::launch();
    EXPECT_TRUE(DialogMain::instance().isVisible());
    EXPECT_THAT(host.gui().dialog("Key Frame Animation").menus(), testing::SizeIs(2));
}

TEST_F(DialogMainWindowTest, startsEmpty) {
    EXPECT_THAT(rows(), ElementsAre("No Key Frames established."));
    EXPECT_FALSE(window().list().isSensitive());
    EXPECT_EQ(fieldText("Frame Count:"), "30");
    EXPECT_EQ(fieldText("View Name:"), "");
    EXPECT_THAT(window().optionMenu().items(), ElementsAre("On Screen", "To File"));
    EXPECT_EQ(window().optionMenu().chosenText(), "On Screen");
}

const std::string alwaysUsable = "Append";

TEST_F(DialogMainWindowTest, dimsWhatNeedsKeyFrames) {
    for (const char* const button :
         {"Apply", "Update", "Delete", "Insert", "Clear", "Animate All", "Animate Selected"}) {
        EXPECT_FALSE(window().button(button).isSensitive()) << button;
    }
    EXPECT_TRUE(window().button(alwaysUsable).isSensitive());
    for (const char* const label : {"View Name:", "Frame Count:"}) {
        EXPECT_FALSE(window().label(label).isSensitive()) << label;
        EXPECT_FALSE(window().field(label).isSensitive()) << label;
    }
    EXPECT_TRUE(window().label("Destination:").isSensitive());
}

TEST_F(DialogMainWindowTest, dimsWhatNeedsASelection) {
    capture(2);
    for (const char* const button : {"Apply", "Update", "Delete", "Insert", "Animate Selected"}) {
        EXPECT_FALSE(window().button(button).isSensitive()) << button;
    }
    for (const char* const button : {"Append", "Clear", "Animate All"}) {
        EXPECT_TRUE(window().button(button).isSensitive()) << button;
    }
    EXPECT_FALSE(window().field("View Name:").isSensitive());
    EXPECT_FALSE(window().field("Frame Count:").isSensitive());
}

TEST_F(DialogMainWindowTest, offersEverythingForOneKeyFrameButToPlayIt) {
    capture(1);
    select({1});
    for (const char* const button : {"Apply", "Update", "Delete", "Insert", "Append", "Clear"}) {
        EXPECT_TRUE(window().button(button).isSensitive()) << button;
    }
    for (const char* const button : {"Animate All", "Animate Selected"}) {
        EXPECT_FALSE(window().button(button).isSensitive()) << button;
    }
    for (const char* const label : {"View Name:", "Frame Count:"}) {
        EXPECT_TRUE(window().label(label).isSensitive()) << label;
        EXPECT_TRUE(window().field(label).isSensitive()) << label;
    }
}

TEST_F(DialogMainWindowTest, offersForManyKeyFramesWhatSuitsThem) {
    capture(3);
    select({1, 2});
    for (const char* const button :
         {"Delete", "Insert", "Append", "Clear", "Animate All", "Animate Selected"}) {
        EXPECT_TRUE(window().button(button).isSensitive()) << button;
    }
    for (const char* const button : {"Apply", "Update"}) {
        EXPECT_FALSE(window().button(button).isSensitive()) << button;
    }
    EXPECT_FALSE(window().field("View Name:").isSensitive());
    EXPECT_FALSE(window().label("View Name:").isSensitive());
    EXPECT_TRUE(window().field("Frame Count:").isSensitive());
    EXPECT_TRUE(window().label("Frame Count:").isSensitive());
}

TEST_F(DialogMainWindowTest, showsTheSelectedKeyFrame) {
    capture(2);
    setFrameCounts({10, 12});
    model().setName(1, "Stern");
    select({2});
    EXPECT_EQ(fieldText("View Name:"), "Stern");
    EXPECT_EQ(fieldText("Frame Count:"), "12");
}

TEST_F(DialogMainWindowTest, showsTheCommonFrameCountOfMany) {
    capture(3);
    setFrameCounts({10, 10, 10});
    select({1, 2, 3});
    EXPECT_EQ(fieldText("Frame Count:"), "10");
    EXPECT_EQ(fieldText("View Name:"), "View 1");
}

TEST_F(DialogMainWindowTest, showsNoFrameCountWhenTheyDiffer) {
    capture(3);
    setFrameCounts({10, 10, 12});
    select({1, 2, 3});
    EXPECT_EQ(fieldText("Frame Count:"), "");
}

TEST_F(DialogMainWindowTest, keepsWhatItShowsWhenNothingIsSelected) {
    capture(2);
    setFrameCounts({10, 12});
    select({2});
    select({});
    EXPECT_EQ(fieldText("Frame Count:"), "12");
    EXPECT_EQ(fieldText("View Name:"), "View 2");
}

TEST_F(DialogMainWindowTest, bringsAFrameCountIntoTheRangeOfItsField) {
    capture(2);
    setFrameCounts({0, 9999999999UL});
    select({1});
    EXPECT_EQ(fieldText("Frame Count:"), "1");
    select({2});
    EXPECT_EQ(fieldText("Frame Count:"), "2147483647");
    EXPECT_THAT(frameCounts(), ElementsAre(0, 9999999999UL));
}

TEST_F(DialogMainWindowTest, refreshesOnceAtIdleTime) {
    capture(3);
    host.clearCalls();
    window().list().select({1});
    window().list().select({2});
    window().optionMenu().choose("To File");
    EXPECT_THAT(host.callsOf("CorGUITextFieldSetString"), IsEmpty());
    EXPECT_THAT(host.callsOf("CorGUISetSensitivity"), IsEmpty());
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 1u);
    host.runIdle();
    EXPECT_EQ(host.count("CorGUITextFieldSetString"), 2u);
    EXPECT_EQ(fieldText("View Name:"), "View 2");
}

TEST_F(DialogMainWindowTest, isClosedByItsWindow) {
    host.clearCalls();
    window().closeByWindow();
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(host.count("CorGUIDialogDrop"), 1u);
    host.clearCalls();
    model().setDataList({KeyFrame_s{View(), "View 1", 30, 0.0}});
    dialog().registerOnIdleUpdate();
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 0u);
    EXPECT_THAT(host.callsOf("CorGUIList"), IsEmpty());
}

TEST_F(DialogMainWindowTest, asksForNoRefreshWhileClosed) {
    window().closeByWindow();
    host.clearCalls();
    dialog().applySettings(defaultSettings());
    dialog().applyDataModel(ListModelKeyFrame());
    dialog().onSettingsFileRead("orbit.keyframe");
    dialog().selectionChanged({});
    DialogMain::clear_BTN_CB();
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 0u);
    EXPECT_THAT(host.callsOf("CorGUIMenuSetToggle"), IsEmpty());
}

TEST_F(DialogMainWindowTest, survivesClosing) {
    capture(2);
    select({2});
    window().pressEscape();
    DialogMain::launch();
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 2"));
    EXPECT_EQ(model().size(), 2u);
    capture(1);
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 2", "View 3"));
}

TEST_F(DialogMainWindowTest, showsAListThatWasReplacedWhileItWasClosed) {
    capture(2);
    window().closeByWindow();
    ListModelKeyFrame other;
    other.setDataList({KeyFrame_s{View(), "Bow", 30, 0.0}});
    dialog().applyDataModel(other);
    DialogMain::launch();
    EXPECT_THAT(rows(), ElementsAre("Bow"));
    capture(1);
    EXPECT_THAT(rows(), ElementsAre("Bow", "View 2"));
    select({1});
    click("Delete");
    EXPECT_THAT(rows(), ElementsAre("View 2"));
}

TEST_F(DialogMainWindowTest, takesSettingsFromOutside) {
    const Settings_s settings{
        {true, TimeAnimationOperation_Bounce, 5}, Destination_ToFile, true, false, true};
    dialog().applySettings(settings);
    EXPECT_EQ(dialog().settings(), settings);
    const MemoryMenu options = window().menu("Options");
    EXPECT_TRUE(options.toggle("Animate Time Concurrently").isOn());
    EXPECT_TRUE(options.toggle("Animate Streamtraces Concurrently").isOn());
    EXPECT_FALSE(options.toggle("Fade In").isOn());
    EXPECT_TRUE(options.toggle("Fade Out").isOn());
    EXPECT_EQ(window().optionMenu().chosenText(), "On Screen");
    host.runIdle();
    EXPECT_EQ(window().optionMenu().chosenText(), "To File");
}

TEST_F(DialogMainWindowTest, takesAListFromOutside) {
    capture(3);
    ListModelKeyFrame other;
    other.setDataList({KeyFrame_s{View(), "Bow", 30, 0.0}});
    dialog().applyDataModel(other);
    host.runIdle();
    EXPECT_THAT(rows(), ElementsAre("Bow"));
    EXPECT_FALSE(window().button("Animate All").isSensitive());
}

TEST_F(DialogMainWindowTest, setsItsTogglesInThisOrder) {
    host.clearCalls();
    dialog().onSettingsFileRead("/flights/orbit.keyframe");
    const std::vector<std::string> calls = host.callsOf("CorGUIMenuSetToggle");
    ASSERT_EQ(calls.size(), 4u);
    const MemoryMenu options = window().menu("Options");
    int index = 0;
    for (const char* const label : {"Animate Streamtraces Concurrently",
                                    "Animate Time Concurrently", "Fade In", "Fade Out"}) {
        EXPECT_EQ(calls.at(static_cast<std::size_t>(index++)),
                  "CorGUIMenuSetToggle(" + std::to_string(options.toggle(label).handle()) +
                      ", FALSE)");
    }
    EXPECT_EQ(dialog().currentFile().fileName(), "/flights/orbit.keyframe");
}

TEST_F(DialogMainWindowTest, refreshesItsTogglesAgainAfterAFailure) {
    host.throwAt("CorGUIMenuSetToggle");
    EXPECT_THROW(dialog().applySettings(defaultSettings()), std::runtime_error);
    EXPECT_EQ(lockDepth(), 0);
    host.clearCalls();
    dialog().applySettings(defaultSettings());
    EXPECT_EQ(host.count("CorGUIMenuSetToggle"), 4u);
}

TEST_F(DialogMainWindowTest, helps) {
    host.clearCalls();
    window().help();
    EXPECT_THAT(
        host.calls(),
        ElementsAre(lockStart, "CorUtilHelp(\"key_frame_animation.html\", FALSE, 0)", lockFinish));
}

TEST_F(DialogMainWindowTest, comesUpInThisOrder) {
    capture(1);
    window().closeByWindow();
    host.clearCalls();
    DialogMain::launch();
    std::vector<std::string> operations;
    for (const std::string& call : host.calls()) {
        const std::string name = call.substr(0, call.find('('));
        const bool isNoise = name.starts_with("CorUtilLock") || name == "CorGUIDialogIsUp" ||
                             name.starts_with("CorGUIListGet");
        if (!isNoise && (operations.empty() || operations.back() != name)) {
            operations.push_back(name);
        }
    }
    const std::vector<std::string> filled = {"CorGUISetSensitivity", "CorGUIListDeleteAllItems",
                                             "CorGUIListAppendItem", "CorGUIListDeselectAllItems",
                                             "CorGUIListSetSelectedItems"};
    std::vector<std::string> expected = {"CorGUIOptionMenuDeleteAllItems",
                                         "CorGUIOptionMenuAppendItem", "CorGUITextFieldSetString"};
    expected.insert(expected.end(), filled.begin(), filled.end());
    expected.push_back("CorUtilOnIdleQueueAddCallback");
    expected.insert(expected.end(), filled.begin(), filled.end());
    for (const char* const name : {"CorGUIMenuSetToggle", "CorGUISetSensitivity",
                                   "CorGUIOptionMenuSet", "CorGUIDialogLaunch"}) {
        expected.push_back(name);
    }
    EXPECT_THAT(operations, testing::ElementsAreArray(expected));
}

class LongListTest : public DialogMainWindowTest {
protected:
    LongListTest() { host.stopRemembering(); }
};

constexpr unsigned long manyKeyFrames = 100000;

// Generous, for busy machines: work per row and row would take minutes.
TEST_F(LongListTest, staysUsable) {
    ListModelKeyFrame many;
    many.setDataList(std::vector<KeyFrame_s>(manyKeyFrames, KeyFrame_s{View(), "View", 30, 0.0}));
    const std::size_t requestsBefore = host.idleRequests();
    const auto start = std::chrono::steady_clock::now();
    dialog().applyDataModel(many);
    host.runIdle();
    window().closeByWindow();
    DialogMain::launch();
    std::vector<long> all(manyKeyFrames);
    for (unsigned long index = 0; index < manyKeyFrames; ++index) {
        all[index] = static_cast<long>(index) + 1;
    }
    window().list().select(all);
    host.runIdle();
    const auto seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_LT(seconds, 10.0);
    EXPECT_LT(host.idleRequests() - requestsBefore, 20u);
    EXPECT_EQ(fieldText("Frame Count:"), "30");
    click("Delete");
    EXPECT_THAT(rows(), ElementsAre("No Key Frames established."));
}

} // namespace
