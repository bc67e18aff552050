// The list of the key frame dialog: capturing, changing, keeping in files.
#include "tests/gui/KeyFrameDialogTest.h"

#include <QtTest>
#include <string>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// How often a word stands in a text.
long countOf(const std::string& word, const std::string& text) {
    long count = 0;
    for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        ++count;
    }
    return count;
}

TEST_F(KeyFrameDialog, comesUpEmptyWithWhatCanBeDone) {
    const DialogUser dialog = openDialog();
    EXPECT_EQ(dialog.rows(), QStringList(QStringLiteral("No Key Frames established.")));
    EXPECT_FALSE(dialog.list().isEnabled());
    EXPECT_TRUE(dialog.button(QStringLiteral("Append")).isEnabled());
    for (const char* text :
         {"Insert", "Update", "Apply", "Delete", "Clear", "Animate All", "Animate Selected"}) {
        EXPECT_FALSE(dialog.button(QString::fromUtf8(text)).isEnabled()) << text;
    }
    EXPECT_FALSE(dialog.field(viewName).isEnabled());
    EXPECT_FALSE(dialog.label(frameCount).isEnabled());
}

TEST_F(KeyFrameDialog, capturesViewsAndSavesThem) {
    const DialogUser dialog = openDialog();
    capture(dialog, 3);
    EXPECT_EQ(dialog.rows(), views({1, 2, 3}));
    EXPECT_TRUE(isEnabledSoon(dialog, animateAll));

    dialog.clickRow(1);
    ASSERT_TRUE(waitUntil([&] { return dialog.field(viewName).isEnabled(); }));
    dialog.enter(viewName, QStringLiteral("The wake"));
    EXPECT_EQ(dialog.rows().at(1), QStringLiteral("The wake"));

    dialog.clickRow(0);
    dialog.clickRow(2, Qt::ShiftModifier);
    EXPECT_EQ(dialog.selectedRows(), QList<int>({0, 1, 2}));
    ASSERT_TRUE(waitUntil([&] { return !dialog.field(viewName).isEnabled(); }));
    dialog.enter(frameCount, QStringLiteral("25"));
    EXPECT_EQ(dialog.selectedRows(), QList<int>({0, 1, 2}));

    prompts.answerFile(folder.file("flight.keyframe"));
    dialog.choose(QStringLiteral("File"), QStringLiteral("Save Animation File"));
    const std::string saved = folder.read("flight.keyframe");
    EXPECT_EQ(countOf("FrameCount 25", saved), 3);
    EXPECT_THAT(saved, HasSubstr("Name \"The wake\""));
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(KeyFrameDialog, insertsBeforeTheSelectedOne) {
    const DialogUser dialog = openDialog();
    capture(dialog, 3);
    dialog.clickRow(1);
    ASSERT_TRUE(isEnabledSoon(dialog, QStringLiteral("Insert")));
    dialog.click(QStringLiteral("Insert"));
    EXPECT_TRUE(waitUntil([&] { return dialog.rows() == views({1, 4, 2, 3}); }));
}

TEST_F(KeyFrameDialog, deletesWithAGap) {
    const DialogUser dialog = openDialog();
    capture(dialog, 3);
    dialog.clickRow(0);
    dialog.clickRow(2, Qt::ControlModifier);
    EXPECT_EQ(dialog.selectedRows(), QList<int>({0, 2}));
    ASSERT_TRUE(isEnabledSoon(dialog, QStringLiteral("Delete")));
    dialog.click(QStringLiteral("Delete"));
    EXPECT_TRUE(waitUntil([&] { return dialog.rows() == views({2}); }));
    EXPECT_TRUE(waitUntil([&] { return !dialog.button(animateAll).isEnabled(); }));
}

TEST_F(KeyFrameDialog, clearsAndStartsAgainWithTheFirstName) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    ASSERT_TRUE(isEnabledSoon(dialog, QStringLiteral("Clear")));
    dialog.click(QStringLiteral("Clear"));
    EXPECT_TRUE(waitUntil([&] { return !dialog.list().isEnabled(); }));
    dialog.choose(QStringLiteral("File"), QStringLiteral("Save Animation File"));
    EXPECT_THAT(errors(), ElementsAre("No Key Frames established."));
    capture(dialog, 1);
    EXPECT_EQ(dialog.rows(), views({1}));
}

TEST_F(KeyFrameDialog, appliesAndUpdatesTheSelectedView) {
    const DialogUser dialog = openDialog();
    const host::View3D first = frame().view;
    capture(dialog, 2);
    dialog.clickRow(0);
    ASSERT_TRUE(isEnabledSoon(dialog, QStringLiteral("Apply")));
    dialog.click(QStringLiteral("Apply"));
    EXPECT_NEAR(frame().view.theta, first.theta, 1e-9);
    EXPECT_NEAR(frame().view.psi, first.psi, 1e-9);

    turn();
    const host::View3D second = frame().view;
    ASSERT_NE(second.theta, first.theta);
    dialog.click(QStringLiteral("Update"));
    turn();
    dialog.click(QStringLiteral("Apply"));
    EXPECT_NEAR(frame().view.theta, second.theta, 1e-9);
    EXPECT_NEAR(frame().view.psi, second.psi, 1e-9);
}

TEST_F(KeyFrameDialog, opensWhatItSaved) {
    const DialogUser dialog = openDialog();
    capture(dialog, 3);
    dialog.choose(QStringLiteral("Options"), QStringLiteral("Fade Out"));
    saveAs(dialog, "flight.keyframe");
    dialog.choose(QStringLiteral("Options"), QStringLiteral("Fade Out"));
    dialog.click(QStringLiteral("Clear"));
    ASSERT_TRUE(waitUntil([&] { return !dialog.list().isEnabled(); }));

    openFile(dialog, folder.file("flight.keyframe"));
    EXPECT_TRUE(waitUntil([&] { return dialog.rows() == views({1, 2, 3}); }));
    EXPECT_TRUE(dialog.list().isEnabled());
    EXPECT_TRUE(isEnabledSoon(dialog, animateAll));
    EXPECT_TRUE(dialog.entry(QStringLiteral("Options"), QStringLiteral("Fade Out")).isChecked());
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(KeyFrameDialog, tellsOnceThatAFileIsNone) {
    const DialogUser dialog = openDialog();
    capture(dialog, 1);
    openFile(dialog, folder.write("none.keyframe", "Nothing of the kind\n"));
    EXPECT_EQ(errors().size(), 1U);
    EXPECT_EQ(dialog.rows(), views({1}));
}

} // namespace

} // namespace corvane::test
