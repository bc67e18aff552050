// Places of controls: they follow the font, and nothing is cut off.
#include "host/gui/widgets/ControlArea.h"

#include "host/gui/widgets/DialogUnits.h"
#include "host/gui/widgets/DialogWindow.h"
#include "tests/unit/host/gui/widgets/SampleDialogs.h"
#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDir>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

namespace corvane::test {
namespace {

class ControlAreaTest : public WidgetsTest {
protected:
    gui::ControlArea& area(int dialog) const { return widget<gui::DialogWindow>(dialog)->area(); }
    /// Of the controls themselves, not of what they are made of.
    QList<QWidget*> controls(int dialog) const {
        return area(dialog).findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    }
    void expectNothingIsCutOff(int dialog) const;
    /// A picture in the folder of the tests, for looking at.
    void keepPicture(int dialog, const QString& name) const {
        widgets.widget(dialog)->grab().save(QStringLiteral("dialog-") + name +
                                            QStringLiteral(".png"));
    }
};

void ControlAreaTest::expectNothingIsCutOff(int dialog) const {
    for (const QWidget* control : controls(dialog)) {
        const std::string name = control->metaObject()->className() + std::string(" at y ") +
                                 std::to_string(control->y());
        EXPECT_TRUE(area(dialog).rect().contains(control->geometry())) << name;
        EXPECT_GE(control->height(), control->minimumSizeHint().height()) << name;
        EXPECT_GE(control->width(), control->minimumSizeHint().width()) << name;
    }
    for (const QPushButton* button : area(dialog).findChildren<QPushButton*>()) {
        const QSize text =
            button->fontMetrics().size(Qt::TextShowMnemonic, button->text().trimmed());
        EXPECT_GE(button->width(), text.width()) << button->text().toStdString();
        EXPECT_GE(button->height(), text.height()) << button->text().toStdString();
    }
    for (const QLabel* label : area(dialog).findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
    }
}

TEST_F(ControlAreaTest, aHundredUnitsAreACharacterAndALine) {
    const QFont font = mainWindow.font();
    const gui::DialogUnits units(font);
    EXPECT_EQ(units.across(10000), qRound(QFontMetricsF(font).averageCharWidth() * 100));
    EXPECT_EQ(units.down(10000), qRound(QFontMetricsF(font).lineSpacing() * 100));
    EXPECT_EQ(units.rect({0, 0, 0, 0}), QRect(0, 0, 0, 0));
}

TEST_F(ControlAreaTest, aListStandsExactlyInItsBox) {
    const int rows = CorGUIListAdd(kites, 200, 100, 2000, 1500, TRUE, nullptr);
    launch(kites);
    const gui::DialogUnits units(area(kites).font());
    EXPECT_EQ(widgets.widget(rows)->geometry(), units.rect({200, 100, 2000, 1500}));
    EXPECT_EQ(area(kites).size(), QSize(units.across(4000), units.down(2000)));
}

TEST_F(ControlAreaTest, whatNeedsMoreThanItsBoxGetsIt) {
    const int button =
        CorGUIButtonAdd(kites, 3500, 1900, 100, 20, "A label much wider than that", &press);
    launch(kites);
    const QWidget* const shown = widgets.widget(button);
    EXPECT_GE(shown->width(), shown->minimumSizeHint().width());
    EXPECT_GE(shown->height(), shown->minimumSizeHint().height());
    EXPECT_TRUE(area(kites).rect().contains(shown->geometry()));
}

TEST_F(ControlAreaTest, aLabelStandsInTheLineOfItsField) {
    const int label = CorGUILabelAdd(kites, 207, 595, "View Name:");
    const int field = CorGUITextFieldAdd(kites, 1847, 645, 1711, 145, nullptr);
    const int alone = CorGUILabelAdd(kites, 207, 1000, "Alone");
    launch(kites);
    EXPECT_NEAR(widgets.widget(label)->geometry().center().y(),
                widgets.widget(field)->geometry().center().y(), 1);
    const gui::DialogUnits units(area(kites).font());
    EXPECT_EQ(widgets.widget(alone)->pos(), QPoint(units.across(207), units.down(1000)));
}

TEST_F(ControlAreaTest, controlsFollowTheFont) {
    const int rows = CorGUIListAdd(kites, 200, 100, 2000, 1500, TRUE, nullptr);
    launch(kites);
    const int before = widgets.widget(rows)->width();
    QFont large = widgets.widget(kites)->font();
    large.setPointSize(large.pointSize() * 2);
    widgets.widget(kites)->setFont(large);
    settle();
    EXPECT_NEAR(widgets.widget(rows)->width(), before * 2, before / 4);
}

TEST_F(ControlAreaTest, nothingIsCutOffAtAnySizeOfTheFont) {
    const SampleDialogs samples = makeSampleDialogs();
    CorGUIDialogLaunch(samples.modeless);
    CorGUIDialogLaunch(samples.modal);
    for (const int size : {9, 12, 18}) {
        for (const int dialog : {samples.modeless, samples.modal}) {
            QFont font = widgets.widget(dialog)->font();
            font.setPointSize(size);
            widgets.widget(dialog)->setFont(font);
            settle();
            expectNothingIsCutOff(dialog);
            keepPicture(dialog, QStringLiteral("%1-%2").arg(dialog).arg(size));
        }
    }
}

TEST_F(ControlAreaTest, whatIsTooLargeForTheScreenScrolls) {
    const int top = CorGUIButtonAdd(kites, 100, 100, 1000, 150, "Top", &press);
    const int bottom = CorGUIButtonAdd(kites, 100, 1800, 1000, 150, "Bottom", &press);
    launch(kites);
    QWidget* const window = widgets.widget(kites);
    EXPECT_FALSE(widgets.widget(bottom)->visibleRegion().isEmpty());
    QFont huge = window->font();
    huge.setPointSize(60);
    window->setFont(huge);
    settle();
    EXPECT_LE(window->height(), window->screen()->availableSize().height());
    EXPECT_LE(window->width(), window->screen()->availableSize().width());
    EXPECT_TRUE(widgets.widget(bottom)->visibleRegion().isEmpty());

    widgets.widget(top)->setFocus();
    QTest::keyClick(widgets.widget(top), Qt::Key_Tab);
    settle();
    EXPECT_TRUE(widgets.widget(bottom)->hasFocus());
    EXPECT_FALSE(widgets.widget(bottom)->visibleRegion().isEmpty());
}

TEST_F(ControlAreaTest, controlsDoNotCoverEachOther) {
    const SampleDialogs samples = makeSampleDialogs();
    CorGUIDialogLaunch(samples.modeless);
    settle();
    const QList<QWidget*> all = controls(samples.modeless);
    for (const QWidget* one : all) {
        for (const QWidget* another : all) {
            EXPECT_TRUE(one == another || !one->geometry().intersects(another->geometry()))
                << one->metaObject()->className() << " at y " << one->y() << ", "
                << another->metaObject()->className() << " at y " << another->y();
        }
    }
}

} // namespace
} // namespace corvane::test
