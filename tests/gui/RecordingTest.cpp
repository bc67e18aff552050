// A recording leads to what was there when it ended, however it came about.
#include "host/gui/controls/ColorButton.h"
#include "host/gui/controls/NumberEdit.h"
#include "host/gui/controls/SectionHeader.h"
#include "host/gui/controls/ValueSlider.h"
#include "host/gui/view/DrawingArea.h"
#include "tests/gui/KeyFrameWindowTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QSlider>
#include <QtTest>

namespace corvane::test {

namespace {

using ::testing::HasSubstr;

class Recording : public KeyFrameWindowTest {
protected:
    QPoint middle() { return drawingArea().rect().center(); }
    void wheel(int notches) {
        QWheelEvent event(middle(), drawingArea().mapToGlobal(middle()), {}, {0, 120 * notches},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&drawingArea(), &event);
    }

    /// What the recorded macro makes of a window of its own is what there is now.
    void expectReplay() {
        const QString macro = QString::fromStdString(folder.file("recorded.mcr"));
        ASSERT_TRUE(controller().macros().stopRecording(macro));
        const host::View3D view = frame().view;
        const host::FrameStyle style = frame().style;
        const double time = frame().solutionTime;
        const host::WorkArea area = session().page().workArea;
        startAgain();
        ASSERT_TRUE(controller().macros().play(macro)) << folder.read("recorded.mcr");
        EXPECT_EQ(frame().view, view);
        EXPECT_EQ(frame().style, style);
        EXPECT_EQ(frame().solutionTime, time);
        EXPECT_EQ(session().page().workArea, area);
    }

    QDockWidget& sidebar() { return part<QDockWidget>("plotSidebar"); }
    void unfoldAll() {
        const auto headers = sidebar().findChildren<gui::SectionHeader*>();
        for (gui::SectionHeader* const header : headers) {
            header->setChecked(true);
        }
        settle();
    }
    void tickAll();
    void chooseInAll();
    void colorAll();
    void typeInAll();
    void slideAll();
};

void Recording::tickAll() {
    auto lists = sidebar().findChildren<QListWidget*>();
    for (QListWidget* const list : lists) {
        QListWidgetItem& item = *list->item(list->count() - 1);
        const bool isOn = item.checkState() == Qt::Checked;
        item.setCheckState(isOn ? Qt::Unchecked : Qt::Checked);
    }
    const auto boxes = sidebar().findChildren<QCheckBox*>();
    for (QCheckBox* const box : boxes) {
        QTest::keyClick(box, Qt::Key_Space);
    }
}

void Recording::chooseInAll() {
    const auto boxes = sidebar().findChildren<QComboBox*>();
    for (QComboBox* const box : boxes) {
        const Qt::Key way = box->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up;
        QTest::keyClick(box, way);
    }
}

void Recording::colorAll() {
    int hue = 0;
    const auto buttons = sidebar().findChildren<gui::ColorButton*>();
    for (gui::ColorButton* const button : buttons) {
        hue += 37;
        // The dialog that asks for the colour is Qt's own.
        Q_EMIT button->committed(QColor::fromHsv(hue, 200, 230));
    }
}

void Recording::typeInAll() {
    double number = 0.0;
    const auto fields = sidebar().findChildren<QLineEdit*>();
    for (QLineEdit* const field : fields) {
        const bool isNumber = qobject_cast<gui::NumberEdit*>(field) != nullptr;
        const QString text = QString::number(number += 0.1);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, isNumber ? text : QStringLiteral("0.5 1 ") + text);
        QTest::keyClick(field, Qt::Key_Return);
    }
}

void Recording::slideAll() {
    const auto sliders = sidebar().findChildren<gui::ValueSlider*>();
    for (gui::ValueSlider* const slider : sliders) {
        QTest::keyClick(&slider->slider(), Qt::Key_PageUp);
        QTest::keyClick(&slider->slider(), Qt::Key_Left);
    }
}

TEST_F(Recording, holdsEveryControlOfTheSidebar) {
    record();
    unfoldAll();
    chooseInAll();
    const host::FrameStyle before = frame().style;
    slideAll();
    EXPECT_FALSE(frame().style == before);
    typeInAll();
    tickAll();
    colorAll();
    prompts.clear(); // counts are whole, and were told so
    expectReplay();
}

TEST_F(Recording, isToldInTheStatusLine) {
    auto& text = part<QLabel>("statusText");
    record();
    EXPECT_EQ(text.text(), QStringLiteral("Recording a macro"));
    ASSERT_TRUE(controller().macros().stopRecording(QString::fromStdString(folder.file("a.mcr"))));
    EXPECT_NE(text.text(), QStringLiteral("Recording a macro"));
}

TEST_F(Recording, holdsAViewThatTheWheelHasJustZoomed) {
    record();
    wheel(3);
    part<QCheckBox>("Contour/ShowLegend").click();
    EXPECT_THAT(program().recorder().lines().back(), HasSubstr("ShowLegend"));
    wheel(1);
    expectReplay();
}

TEST_F(Recording, holdsOneLineOfAMovement) {
    record();
    const std::size_t scene = program().recorder().lines().size();
    turn();
    wheel(2);
    settle();
    turn();
    EXPECT_EQ(program().recorder().lines().size(), scene + 1);
    expectReplay();
}

TEST_F(Recording, holdsTheSizeOfAWindowThatWasResized) {
    record();
    window().resize(window().width() - 200, window().height() - 100);
    ASSERT_TRUE(
        waitUntil([this] { return drawingArea().image().size() == drawingArea().pixels(); }));
    EXPECT_THAT(program().recorder().lines().back(), HasSubstr("$!WORKAREA"));
    expectReplay();
}

TEST_F(Recording, holdsASliderThatCameBackToItsPlace) {
    program().perform("STYLE", {"Slice/1/Position", "=", "0.123456789"});
    settle();
    record();
    QSlider& slider = part<gui::ValueSlider>("Position").slider();
    const int start = slider.value();
    slider.setSliderDown(true);
    slider.setSliderPosition(start + 50);
    slider.setSliderPosition(start);
    slider.setSliderDown(false);
    expectReplay();
}

TEST_F(Recording, holdsWhatAKeyFrameWasAppliedFor) {
    const DialogUser dialog = openDialog();
    capture(dialog, 1);
    program().perform("SOLUTIONTIME", {"=", "2"});
    record();
    dialog.activate();
    dialog.clickRow(0);
    ASSERT_TRUE(waitUntil([&] { return dialog.button(QStringLiteral("Apply")).isEnabled(); }));
    dialog.click(QStringLiteral("Apply"));
    EXPECT_EQ(frame().solutionTime, 0.0);
    dialog.click(QStringLiteral("Close"));
    expectReplay();
}

TEST_F(Recording, isEndedByTheFlightItself) {
    const DialogUser dialog = openDialog();
    capture(dialog, 2);
    ASSERT_TRUE(
        waitUntil([&] { return dialog.button(QStringLiteral("Animate All")).isEnabled(); }));
    record();
    dialog.activate();
    dialog.click(QStringLiteral("Animate All"));
    settle();
    EXPECT_THAT(program().recorder().stop().back(),
                HasSubstr("Animate AnimationDestination=OnScreen"));
}

TEST_F(Recording, aMacroOfAnotherSizeLeavesTheWindowItsOwn) {
    const QSize size = drawingArea().pixels();
    const QString macro = QString::fromStdString(folder.write(
        "square.mcr", "$!WORKAREA Width = 300 Height = 300\n$!REDRAW\n$!PICTURE \"square.png\"\n"));
    ASSERT_TRUE(controller().macros().play(macro));
    EXPECT_EQ(drawingArea().image().size(),
              size.scaled(size.height(), size.height(), Qt::IgnoreAspectRatio))
        << "all of it, as large as fits";
    EXPECT_EQ(session().page().workArea.width, 300);
    settle();
    EXPECT_TRUE(waitUntil([&] { return drawingArea().image().size() == size; }));
    EXPECT_EQ(session().page().workArea.width, size.width());
    EXPECT_TRUE(session().page().isFilledByOneFrame());
}

} // namespace

} // namespace corvane::test
