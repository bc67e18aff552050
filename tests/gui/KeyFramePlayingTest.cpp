// The key frame dialog plays what is in it, and is stopped.
#include "tests/gui/KeyFrameDialogTest.h"

#include <QPushButton>
#include <QtTest>
#include <set>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(KeyFrameDialog, animatesAll) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    const host::View3D last = frame().view;
    capture(dialog, 1);
    ASSERT_NE(frame().view.theta, last.theta);
    ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    renderer.clear();
    dialog.click(animateAll);
    settle();
    // Two times 30 steps, and the view that they end at.
    EXPECT_GE(renderer.renders(), 61U);
    EXPECT_LE(renderer.renders(), 63U);
    EXPECT_NEAR(frame().view.theta, last.theta, 1e-9);
    EXPECT_TRUE(dialog.window().isVisible());
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(KeyFrameDialog, animatesTheSelectedRange) {
    const DialogUser dialog = openDialog();
    capture(dialog, 3);
    dialog.clickRow(1);
    dialog.clickRow(2, Qt::ShiftModifier);
    ASSERT_TRUE(isEnabledSoon(dialog, animateSelected));
    renderer.clear();
    dialog.click(animateSelected);
    settle();
    EXPECT_GE(renderer.renders(), 31U);
    EXPECT_LE(renderer.renders(), 33U);
    EXPECT_EQ(dialog.selectedRows(), QList<int>({1, 2}));
}

TEST_F(KeyFrameDialog, animatesNoSelectionWithAGap) {
    const DialogUser dialog = openDialog();
    capture(dialog, 3);
    dialog.clickRow(0);
    dialog.clickRow(2, Qt::ControlModifier);
    ASSERT_TRUE(isEnabledSoon(dialog, animateSelected));
    renderer.clear();
    dialog.click(animateSelected);
    EXPECT_THAT(errors(), ElementsAre("Selected items must be a continuous range."));
    EXPECT_EQ(renderer.renders(), 0U);
}

TEST_F(KeyFrameDialog, animatesASelectionOnTheScreenAlone) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    dialog.pick(QStringLiteral("Destination:"), QStringLiteral("To File"));
    dialog.clickRow(0);
    dialog.clickRow(1, Qt::ShiftModifier);
    ASSERT_TRUE(isEnabledSoon(dialog, animateSelected));
    dialog.click(animateSelected);
    EXPECT_THAT(notices(), ElementsAre(HasSubstr("The destination has been reset to")));
    EXPECT_TRUE(waitUntil([&] {
        return dialog.options(QStringLiteral("Destination:")).currentText() ==
               QStringLiteral("On Screen");
    }));
    EXPECT_THAT(movies.movies(), IsEmpty());
}

TEST_F(KeyFrameDialog, escStopsAndLeavesTheDialogUp) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    playAnd(dialog, animateAll, [&] { dialog.press(Qt::Key_Escape); });
    EXPECT_THAT(errors(), ElementsAre("Animation canceled."));
    EXPECT_LT(renderer.renders(), 30U);
    EXPECT_TRUE(dialog.window().isVisible());
    EXPECT_EQ(dialog.rows(), views({1, 2}));
    dialog.press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.window().isVisible()) << "Esc closes again when nothing plays";
}

TEST_F(KeyFrameDialog, closingTheMainWindowStopsAndClosesAllAfterwards) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    playAnd(dialog, animateAll, [&] { window().close(); });
    EXPECT_THAT(errors(), ElementsAre("Animation canceled."));
    EXPECT_LT(renderer.renders(), 30U);
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
}

TEST_F(KeyFrameDialog, theStopButtonStops) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    auto& stop = part<QPushButton>("stop");
    playAnd(dialog, animateAll, [&] { DialogUser::click(stop, stop.rect().center()); });
    EXPECT_THAT(errors(), ElementsAre("Animation canceled."));
    EXPECT_LT(renderer.renders(), 30U);
    EXPECT_FALSE(stop.isVisible());
}

TEST_F(KeyFrameDialog, nothingElseCanBeReachedWhileItPlays) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    playAnd(dialog, animateAll, [&] {
        dialog.click(QStringLiteral("Append"));
        dialog.click(QStringLiteral("Clear"));
        dialog.click(QStringLiteral("Close"));
        dialog.clickRow(0);
        dialog.press(Qt::Key_D, Qt::AltModifier);
        dialog.window().close();
        dialog.press(Qt::Key_Escape);
    });
    QTest::qWait(50);
    EXPECT_EQ(dialog.rows(), views({1, 2}));
    EXPECT_THAT(dialog.selectedRows(), IsEmpty());
    EXPECT_TRUE(dialog.window().isVisible());
    EXPECT_THAT(errors(), ElementsAre("Animation canceled."));
    dialog.click(QStringLiteral("Append"));
    EXPECT_TRUE(waitUntil([&] { return dialog.rows() == views({1, 2, 3}); }));
}

TEST_F(KeyFrameDialog, fliesThroughTime) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    dialog.choose(QStringLiteral("Options"), QStringLiteral("Animate Time Concurrently"));
    ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    renderer.clear();
    dialog.click(animateAll);
    settle();
    std::set<double> times;
    for (const RenderedState& state : renderer.states()) {
        times.insert(state.solutionTime);
    }
    ASSERT_FALSE(times.empty());
    EXPECT_EQ(*times.begin(), 0.0);
    EXPECT_EQ(*times.rbegin(), 2.0);
    EXPECT_GE(times.size(), 3U);
    EXPECT_THAT(errors(), IsEmpty());
}

} // namespace

} // namespace corvane::test
