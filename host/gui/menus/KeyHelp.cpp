#include "host/gui/menus/KeyHelp.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <array>

namespace corvane::gui {

namespace {

/// With empty keys, the heading of a group.
struct Line {
    const char* keys;
    const char* meaning;
};

constexpr std::array helpLines{
    Line{"", QT_TR_NOOP("Mouse, in the picture")},
    Line{QT_TR_NOOP("Left drag"), QT_TR_NOOP("Turn")},
    Line{QT_TR_NOOP("Middle drag, Shift + left drag"), QT_TR_NOOP("Move")},
    Line{QT_TR_NOOP("Wheel, right drag"), QT_TR_NOOP("Zoom toward the pointer")},
    Line{QT_TR_NOOP("Ctrl + left drag"), QT_TR_NOOP("Twist about the line of sight")},
    Line{QT_TR_NOOP("Click"), QT_TR_NOOP("Make a frame the active one")},
    Line{"", QT_TR_NOOP("Keys, in the picture")},
    Line{QT_TR_NOOP("F, Home"), QT_TR_NOOP("Fit the data")},
    Line{"1  2  3  4  5  6", QT_TR_NOOP("Look from +X, −X, +Y, −Y, +Z, −Z")},
    Line{"7", QT_TR_NOOP("Look from the corner")},
    Line{"P", QT_TR_NOOP("Perspective on and off")},
    Line{QT_TR_NOOP("Space"), QT_TR_NOOP("Play and pause time")},
    Line{QT_TR_NOOP("Left, Right"), QT_TR_NOOP("Previous and next time")},
    Line{QT_TR_NOOP("Ctrl + Left, Ctrl + Right"), QT_TR_NOOP("First and last time")},
    Line{"", QT_TR_NOOP("While an animation plays")},
    Line{QT_TR_NOOP("Esc"), QT_TR_NOOP("Stop")}};

QLabel* label(const QString& text, bool isBold) {
    auto* const made = new QLabel(text);
    QFont font = made->font();
    font.setBold(isBold);
    made->setFont(font);
    return made;
}

} // namespace

KeyHelp::KeyHelp(QWidget* parent) : QDialog(parent) {
    setWindowTitle(tr("Mouse and Keys"));
    auto* const grid = new QGridLayout(this);
    grid->setHorizontalSpacing(24);
    grid->setContentsMargins(20, 12, 20, 16);
    int row = 0;
    for (const Line& line : helpLines) {
        const bool isHeading = *line.keys == '\0';
        if (isHeading) {
            grid->setRowMinimumHeight(row++, 8);
            grid->addWidget(label(tr(line.meaning), true), row++, 0, 1, 2);
        } else {
            grid->addWidget(label(tr(line.keys), false), row, 0);
            grid->addWidget(label(tr(line.meaning), false), row++, 1);
        }
    }
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    grid->setRowMinimumHeight(row++, 12);
    grid->addWidget(buttons, row, 0, 1, 2);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

} // namespace corvane::gui
