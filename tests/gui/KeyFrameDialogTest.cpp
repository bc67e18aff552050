// The key frame dialog: its options and fields, how it comes and goes, and many key frames.
#include "tests/gui/KeyFrameDialogTest.h"

#include "host/core/base/HostError.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>
#include <ctime>
#include <functional>
#include <iostream>
#include <sstream>
#include <string>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(KeyFrameDialog, optionsAreSwitchedAndShown) {
    const DialogUser dialog = openDialog();
    const QString menu = QStringLiteral("Options");
    for (const char* text : {"Fade In", "Fade Out", "Animate Streamtraces Concurrently",
                             "Animate Time Concurrently"}) {
        const QString option = QString::fromUtf8(text);
        EXPECT_FALSE(dialog.entry(menu, option).isChecked()) << text;
        dialog.choose(menu, option);
        EXPECT_TRUE(dialog.entry(menu, option).isChecked()) << text;
        dialog.choose(menu, option);
        EXPECT_FALSE(dialog.entry(menu, option).isChecked()) << text;
    }
    DialogUser::chooseByKeys(dialog.window(), Qt::Key_O, Qt::Key_I);
    EXPECT_TRUE(dialog.entry(menu, QStringLiteral("Fade In")).isChecked());
}

TEST_F(KeyFrameDialog, optionsThatCannotBeAreTurnedOff) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    const QString streams = QStringLiteral("Animate Streamtraces Concurrently");
    dialog.choose(QStringLiteral("Options"), streams);
    ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    dialog.click(animateAll);
    EXPECT_THAT(notices(), ElementsAre("Neither streamtrace markers nor dashes are enabled.\n"
                                       "Concurrent streamtrace animation will be disabled."));
    EXPECT_FALSE(dialog.entry(QStringLiteral("Options"), streams).isChecked());
}

TEST_F(KeyFrameDialog, closesWhenTheFrameShowsNo3DAndComesBackWithItsKeyFrames) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    program().perform("PLOTTYPE", {"=", "CARTESIAN2D"});
    EXPECT_TRUE(waitUntil([&] { return !DialogUser::isUp(title); }));
    EXPECT_TRUE(window().isVisible());
    program().perform("PLOTTYPE", {"=", "CARTESIAN3D"});
    settle();
    const DialogUser again = openDialog();
    EXPECT_EQ(again.rows(), views({1, 2}));
    capture(again, 1);
    EXPECT_EQ(again.rows(), views({1, 2, 3}));
}

TEST_F(KeyFrameDialog, closesAndComesBackAsItWas) {
    const QString fadeIn = QStringLiteral("Fade In");
    {
        const DialogUser dialog = openDialog();
        capture(dialog, 3);
        dialog.choose(QStringLiteral("Options"), fadeIn);
        dialog.pick(QStringLiteral("Destination:"), QStringLiteral("To File"));
        dialog.click(QStringLiteral("Close"));
    }
    EXPECT_FALSE(DialogUser::isUp(title));
    const DialogUser dialog = openDialog();
    EXPECT_EQ(dialog.rows(), views({1, 2, 3}));
    EXPECT_TRUE(dialog.entry(QStringLiteral("Options"), fadeIn).isChecked());
    EXPECT_EQ(dialog.options(QStringLiteral("Destination:")).currentText(),
              QStringLiteral("To File"));
    dialog.press(Qt::Key_Escape);
    EXPECT_FALSE(DialogUser::isUp(title));
}

TEST_F(KeyFrameDialog, aMacroThatOpensAFileIsSeen) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    saveAs(dialog, "flight.keyframe");
    dialog.click(QStringLiteral("Clear"));
    ASSERT_TRUE(waitUntil([&] { return !dialog.list().isEnabled(); }));
    runCommand("OpenSettingsFile FileName=\"" + folder.file("flight.keyframe") + "\"");
    EXPECT_TRUE(waitUntil([&] { return dialog.rows() == views({1, 2}); }));
}

TEST_F(KeyFrameDialog, aMacroThatFliesIntoAFileIsSeen) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    session().exportSetup().fileName = folder.file("flight.avi");
    const auto destination = [&] {
        return dialog.options(QStringLiteral("Destination:")).currentText();
    };
    for (const char* wrong : {"Animate", "Animate AnimationDestination=AVI"}) {
        EXPECT_THROW(runCommand(wrong), host::HostError);
        settle();
        EXPECT_EQ(destination(), QStringLiteral("On Screen"));
    }
    runCommand("animate animationdestination=tofile");
    EXPECT_TRUE(waitUntil([&] { return destination() == QStringLiteral("To File"); }));
    ASSERT_EQ(movies.movies().size(), 1U);
    EXPECT_TRUE(movies.movies().front().finished);
}

TEST_F(KeyFrameDialog, whatWasTypedCountsBeforeAButtonDoes) {
    const DialogUser dialog = openDialog();
    capture(dialog, 1);
    dialog.clickRow(0);
    ASSERT_TRUE(waitUntil([&] { return dialog.field(viewName).isEnabled(); }));
    dialog.type(viewName, QStringLiteral("Start"));
    EXPECT_EQ(dialog.rows(), views({1})) << "not by the keys alone";
    dialog.click(QStringLiteral("Append"));
    EXPECT_TRUE(waitUntil([&] { return dialog.rows().size() == 2; }));
    EXPECT_EQ(dialog.rows().at(0), QStringLiteral("Start"));
    EXPECT_EQ(dialog.rows().at(1), QStringLiteral("View 2"));
}

TEST_F(KeyFrameDialog, anEmptyNameIsRefused) {
    const DialogUser dialog = openDialog();
    capture(dialog, 1);
    dialog.clickRow(0);
    ASSERT_TRUE(waitUntil([&] { return dialog.field(viewName).isEnabled(); }));
    dialog.enter(viewName, {});
    EXPECT_THAT(errors(), ElementsAre("The view name must be at least one character."));
    EXPECT_EQ(dialog.field(viewName).text(), QStringLiteral("View 1"));
}

TEST_F(KeyFrameDialog, differentCountsShowNone) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    dialog.clickRow(1);
    ASSERT_TRUE(waitUntil([&] { return dialog.field(frameCount).isEnabled(); }));
    dialog.enter(frameCount, QStringLiteral("12"));
    dialog.clickRow(0, Qt::ShiftModifier);
    EXPECT_TRUE(waitUntil([&] { return dialog.field(frameCount).text().isEmpty(); }));
    dialog.clickRow(0);
    EXPECT_TRUE(waitUntil([&] { return dialog.field(frameCount).text() == u"30"; }));
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(KeyFrameDialog, tenChangesAreShownByOneUpdate) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    saveAs(dialog, "flight.keyframe");
    dialog.clickRow(0);
    ASSERT_TRUE(isEnabledSoon(dialog, QStringLiteral("Delete")));
    int updates = 0;
    // Every update chooses the destination in the menu, and nothing else does.
    session().trace().connect({.onCall = [&updates](const host::TraceRecord& record) {
        updates += record.call.starts_with("CorGUIOptionMenuSet(") ? 1 : 0;
    }});
    for (int change = 0; change < 10; ++change) {
        runCommand("OpenSettingsFile FileName=\"" + folder.file("flight.keyframe") + "\"");
    }
    EXPECT_EQ(updates, 0);
    EXPECT_TRUE(waitUntil([&] { return updates > 0; }));
    settle();
    EXPECT_EQ(updates, 1);
    session().trace().disconnect();
}

TEST_F(KeyFrameDialog, tabGoesDownTheDialog) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    dialog.clickRow(0);
    dialog.clickRow(1, Qt::ShiftModifier);
    ASSERT_TRUE(isEnabledSoon(dialog, animateSelected));
    dialog.list().setFocus();
    QList<QWidget*> order;
    for (const char* text : {"Append", "Insert", "Delete", "Clear"}) {
        order.append(&dialog.button(QString::fromUtf8(text)));
    }
    order.append(&dialog.field(frameCount));
    order.append(&dialog.options(QStringLiteral("Destination:")));
    for (const char* text : {"Animate All", "Animate Selected", "Close", "Help"}) {
        order.append(&dialog.button(QString::fromUtf8(text)));
    }
    order.append(&dialog.list());
    for (const QWidget* const next : order) {
        dialog.press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next)
            << next->metaObject()->className() << " at " << next->y();
    }
}

TEST_F(KeyFrameDialog, aHundredThousandKeyFramesAreOpenedAndUsed) {
    constexpr int count = 100000;
    std::ostringstream file;
    file << "#!KeyFrame 1\n%Settings\n AnimateTime false\n TimeAnimationOperation Forward\n"
            " NumCycles 1\n AnimateStreamtraces false\n FadeIn false\n FadeOut false\n%Settings\n";
    for (int number = 1; number <= count; ++number) {
        file << "%KeyFrameView\n Name \"View " << number
             << "\"\n Position -8.4 -16.4 10.4\n Angle 68 38 0\n Width 21.4\n FrameCount 2\n"
                " SolutionTime 0\n%KeyFrameView\n";
    }
    const std::string name = folder.write("long.keyframe", file.str());
    const DialogUser dialog = openDialog();
    const auto timed = [](const char* what, const std::function<void()>& work) {
        // Of this process alone, whatever else the machine is doing.
        const std::clock_t start = std::clock();
        work();
        const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        std::cout << what << ": " << seconds << " s\n";
        EXPECT_LT(seconds, 20.0) << what;
    };
    timed("opening 100,000 key frames", [&] {
        openFile(dialog, name);
        ASSERT_TRUE(waitUntil([&] { return dialog.list().model()->rowCount() == count; }));
        ASSERT_TRUE(isEnabledSoon(dialog, animateAll));
    });
    timed("selecting them all, and setting their counts", [&] {
        dialog.clickRow(0);
        dialog.press(Qt::Key_A, Qt::ControlModifier);
        ASSERT_TRUE(waitUntil([&] { return dialog.field(frameCount).isEnabled(); }));
        ASSERT_TRUE(isEnabledSoon(dialog, animateSelected));
        dialog.enter(frameCount, QStringLiteral("3"));
    });
    timed("inserting at the top", [&] {
        dialog.clickRow(0);
        dialog.click(QStringLiteral("Insert"));
        ASSERT_TRUE(waitUntil([&] { return dialog.list().model()->rowCount() == count + 1; }));
    });
    timed("deleting a thousand", [&] {
        dialog.clickRow(1);
        dialog.clickRow(1000, Qt::ShiftModifier);
        ASSERT_TRUE(isEnabledSoon(dialog, QStringLiteral("Delete")));
        dialog.click(QStringLiteral("Delete"));
        ASSERT_TRUE(waitUntil([&] { return dialog.list().model()->rowCount() == count - 999; }));
    });
    EXPECT_THAT(errors(), IsEmpty());
}

class KeyFrameDialogWithBoxes : public KeyFrameDialog {
protected:
    KeyFrameDialogWithBoxes() : KeyFrameDialog({.hasRealDialogs = true}) {}

    /// Looks after every message box that comes up, and closes it with Return.
    void watchBoxes() {
        QObject::connect(&m_look, &QTimer::timeout, &window(), [this] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr) {
                m_texts.append(box->text());
                QTest::keyClick(box, Qt::Key_Return);
            }
        });
        m_look.start(5);
    }
    const QStringList& boxes() const { return m_texts; }

private:
    QTimer m_look;
    QStringList m_texts;
};

TEST_F(KeyFrameDialogWithBoxes, aRefusedCountShowsOneBoxAndComesBack) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    dialog.clickRow(0);
    ASSERT_TRUE(waitUntil([&] { return dialog.field(frameCount).isEnabled(); }));
    watchBoxes();
    const QString refusal =
        QStringLiteral("Invalid input. Input must be a number between 1 and 2147483647.");

    dialog.enter(frameCount, QStringLiteral("0"));
    QTest::qWait(50);
    EXPECT_EQ(boxes(), QStringList(refusal));
    EXPECT_EQ(dialog.field(frameCount).text(), QStringLiteral("30"));

    // By leaving the field, and by a button, which then does nothing.
    dialog.activate();
    dialog.type(frameCount, QStringLiteral("many"));
    dialog.press(Qt::Key_Tab);
    ASSERT_TRUE(waitUntil([&] { return boxes().size() == 2; }));
    EXPECT_EQ(dialog.field(frameCount).text(), QStringLiteral("30"));
    dialog.activate();
    dialog.type(frameCount, QStringLiteral("-1"));
    dialog.click(QStringLiteral("Append"));
    QTest::qWait(50);
    EXPECT_EQ(boxes(), QStringList({refusal, refusal, refusal}));
    EXPECT_EQ(dialog.field(frameCount).text(), QStringLiteral("30"));
    EXPECT_EQ(dialog.rows(), views({1, 2}));
}

} // namespace

} // namespace corvane::test
