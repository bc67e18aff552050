// The time animation options.
#include "addon/ui/DialogTimeOptions.h"

#include "tests/unit/addon/UiTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

class DialogTimeOptionsTest : public UiTest {
protected:
    void launch(TimeAnimationOperation_e operation, unsigned long numCycles) {
        options = {false, operation, numCycles};
        DialogTimeOptions::instance().launch(options, [this](bool ok) { answers.push_back(ok); });
    }

    MemoryDialog window() { return host.gui().dialog("Time Animation Options"); }
    MemorySpinField cycles() { return window().spinField(); }
    bool isUp() { return !host.gui().dialogsUp().empty(); }
    bool cyclesAreUsable() {
        EXPECT_EQ(cycles().isSensitive(), window().label("Num Cycles:").isSensitive());
        return cycles().isSensitive();
    }

    TimeAnimationOptions_s options{};
    std::vector<bool> answers;
};

TEST_F(DialogTimeOptionsTest, isMadeAsItsTableSays) {
    launch(TimeAnimationOperation_Forward, 1);
    EXPECT_THAT(host.callsOf("CorGUIDialogCreateModal"),
                ElementsAre("CorGUIDialogCreateModal(-1, 5357, 878, \"Time Animation Options\", "
                            "non-null, non-null, NULL, non-null, non-null)"));
    const std::string d = "(" + std::to_string(Dialog3Manager);
    EXPECT_THAT(host.callsOf("CorGUIFrameAdd"), ElementsAre("CorGUIFrameAdd" + d +
                                                            ", 207, 79, 4956, 732, "
                                                            "\"Animation Operation\")"));
    EXPECT_THAT(host.callsOf("CorGUIRadioBoxAdd"),
                ElementsAre(testing::HasSubstr(d + ", 587, 166, 2003, 573, ")));
    EXPECT_THAT(host.callsOf("CorGUILabelAdd"),
                ElementsAre("CorGUILabelAdd" + d + ", 2901, 159, \"Num Cycles:\")"));
    EXPECT_THAT(host.callsOf("CorGUISpinTextFieldAdd"),
                ElementsAre("CorGUISpinTextFieldAdd" + d +
                            ", 2918, 333, 1329, 145, non-null, non-null, non-null)"));
    EXPECT_THAT(window().radioBox().items(),
                ElementsAre("&Forward", "&Loop", "&Bounce", "&As Captured"));
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogTimeOptionsTest, isMadeOnce) {
    launch(TimeAnimationOperation_Forward, 1);
    window().cancel();
    launch(TimeAnimationOperation_Loop, 2);
    EXPECT_EQ(host.count("CorGUIDialogCreateModal"), 1u);
    EXPECT_TRUE(DialogTimeOptions::okToLaunch(0));
}

TEST_F(DialogTimeOptionsTest, showsEachOperation) {
    long position = 0;
    for (const TimeAnimationOperation_e operation :
         {TimeAnimationOperation_Forward, TimeAnimationOperation_Loop,
          TimeAnimationOperation_Bounce, TimeAnimationOperation_AsCaptured}) {
        launch(operation, 7);
        EXPECT_EQ(window().radioBox().chosen(), ++position);
        EXPECT_EQ(cyclesAreUsable(), position == 2 || position == 3);
        EXPECT_EQ(cycles().text(), "7");
        window().cancel();
    }
}

TEST_F(DialogTimeOptionsTest, leavesTheRadioBoxForAnUnknownOperation) {
    launch(TimeAnimationOperation_Bounce, 1);
    window().cancel();
    launch(static_cast<TimeAnimationOperation_e>(9), 1);
    EXPECT_EQ(window().radioBox().chosen(), 3);
    EXPECT_FALSE(cyclesAreUsable());
}

TEST_F(DialogTimeOptionsTest, followsTheClickedOperationAtOnce) {
    launch(TimeAnimationOperation_AsCaptured, 1);
    EXPECT_FALSE(cyclesAreUsable());
    window().radioBox().choose("Bounce");
    EXPECT_TRUE(cyclesAreUsable());
    window().radioBox().choose("Forward");
    EXPECT_FALSE(cyclesAreUsable());
    window().radioBox().choose("Loop");
    EXPECT_TRUE(cyclesAreUsable());
    EXPECT_EQ(options.operation, TimeAnimationOperation_AsCaptured);
}

TEST_F(DialogTimeOptionsTest, bringsTheCyclesIntoRange) {
    launch(TimeAnimationOperation_Loop, 0);
    EXPECT_EQ(cycles().text(), "1");
    window().cancel();
    launch(TimeAnimationOperation_Loop, 9999999999UL);
    EXPECT_EQ(cycles().text(), "2147483647");
    cycles().up();
    EXPECT_EQ(cycles().text(), "2147483647");
    cycles().down();
    EXPECT_EQ(cycles().text(), "2147483646");
}

TEST_F(DialogTimeOptionsTest, stepsTheCyclesDownToOne) {
    launch(TimeAnimationOperation_Loop, 2);
    cycles().up();
    EXPECT_EQ(cycles().text(), "3");
    for (int step = 0; step < 4; ++step) {
        cycles().down();
    }
    EXPECT_EQ(cycles().text(), "1");
}

TEST_F(DialogTimeOptionsTest, refusesWhatIsNoNumberOfCycles) {
    launch(TimeAnimationOperation_Loop, 4);
    for (const char* const entry : {"many", "0", "-3"}) {
        cycles().type(entry);
        cycles().commit();
        EXPECT_EQ(cycles().text(), "4") << entry;
    }
    EXPECT_THAT(errors(),
                testing::AllOf(testing::SizeIs(3),
                               testing::Each("Invalid input. Input must be a number greater than "
                                             "or equal to 1.")));
    cycles().type("6 times");
    cycles().commit();
    EXPECT_EQ(cycles().text(), "6");
}

TEST_F(DialogTimeOptionsTest, isConfirmed) {
    launch(TimeAnimationOperation_Forward, 1);
    window().radioBox().choose("Loop");
    cycles().type("3");
    window().ok();
    EXPECT_EQ(options.operation, TimeAnimationOperation_Loop);
    EXPECT_EQ(options.numCycles, 3u);
    EXPECT_TRUE(options.animateTime);
    EXPECT_THAT(answers, ElementsAre(true));
    EXPECT_FALSE(isUp());
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogTimeOptionsTest, staysUpForACycleCountThatIsRefused) {
    launch(TimeAnimationOperation_Loop, 4);
    cycles().type("none");
    window().ok();
    EXPECT_TRUE(isUp());
    EXPECT_THAT(answers, IsEmpty());
    window().ok();
    EXPECT_EQ(options.numCycles, 4u);
}

TEST_F(DialogTimeOptionsTest, isCancelled) {
    for (int way = 0; way < 3; ++way) {
        launch(TimeAnimationOperation_Forward, 2);
        window().radioBox().choose("Loop");
        cycles().up();
        if (way == 0) {
            window().cancel();
        } else if (way == 1) {
            window().closeByWindow();
        } else {
            window().pressEscape();
        }
        EXPECT_FALSE(isUp());
    }
    EXPECT_EQ(options.operation, TimeAnimationOperation_Forward);
    EXPECT_EQ(options.numCycles, 2u);
    EXPECT_FALSE(options.animateTime);
    EXPECT_THAT(answers, ElementsAre(false, false, false));
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogTimeOptionsTest, isDroppedWithoutAWord) {
    launch(TimeAnimationOperation_Forward, 1);
    DialogTimeOptions::drop();
    EXPECT_FALSE(isUp());
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogTimeOptionsTest, changesNothingWhenNoOperationIsOn) {
    launch(TimeAnimationOperation_Forward, 1);
    CorGUIRadioBoxSetToggle(AnimationOperation_RADIO_D3, 0);
    EXPECT_THROW(DialogTimeOptions::ok_BTN_CB(), std::out_of_range);
    EXPECT_FALSE(options.animateTime);
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogTimeOptionsTest, refusesAnEmptyCallback) {
    options = {false, TimeAnimationOperation_Loop, 1};
    DialogTimeOptions::instance().launch(options, boost::function<void(bool)>());
    EXPECT_THROW(DialogTimeOptions::cancel_BTN_CB(), boost::bad_function_call);
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogTimeOptionsTest, mayBeLaunchedAgainByItsCallback) {
    options = {false, TimeAnimationOperation_Loop, 1};
    DialogTimeOptions::instance().launch(
        options, [this](bool) { launch(TimeAnimationOperation_Bounce, 5); });
    window().ok();
    EXPECT_TRUE(isUp());
    EXPECT_EQ(window().radioBox().chosen(), 3);
    window().cancel();
    EXPECT_THAT(answers, ElementsAre(false));
}

TEST_F(DialogTimeOptionsTest, isNotUpWhenTheHostCannotMakeIt) {
    host.failNext("CorGUIDialogCreateModal");
    launch(TimeAnimationOperation_Forward, 1);
    EXPECT_FALSE(isUp());
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogTimeOptionsTest, helps) {
    launch(TimeAnimationOperation_Forward, 1);
    host.clearCalls();
    window().help();
    EXPECT_THAT(host.calls(),
                ElementsAre(lockStart, "CorUtilHelp(\"time_animation_options.html\", FALSE, 0)",
                            lockFinish));
}

} // namespace
