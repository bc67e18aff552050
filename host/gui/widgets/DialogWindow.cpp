#include "host/gui/widgets/DialogWindow.h"

#include "host/gui/base/QtText.h"
#include "host/gui/widgets/ScrolledArea.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QIcon>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace corvane::gui {

DialogWindow::DialogWindow(const host::Dialog& dialog, host::ControlActions& actions,
                           QWidget* parent)
    : QDialog(parent),
      m_dialog(dialog),
      m_actions(actions),
      m_area(new ControlArea(dialog, this)),
      m_buttons(new QDialogButtonBox(this)) {
    setWindowTitle(toQt(dialog.label));
    setWindowModality(dialog.isModal ? Qt::ApplicationModal : Qt::NonModal);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(new ScrolledArea(m_area, this));
    addButtons();
}

void DialogWindow::addButtons() {
    using Standard = QDialogButtonBox::StandardButton;
    using Action = void (host::ControlActions::*)(int);
    const auto add = [&](Standard kind, Action action) {
        QPushButton* const button = m_buttons->addButton(kind);
        button->setIcon({}); // like the other buttons of the dialog
        // Without OK, Return would press a button that the user did not mean.
        button->setAutoDefault(m_dialog.isModal);
        button->setDefault(kind == QDialogButtonBox::Ok);
        connect(button, &QPushButton::clicked, this,
                [this, action] { (m_actions.*action)(m_dialog.handle); });
    };
    if (m_dialog.isModal) {
        add(QDialogButtonBox::Ok, &host::ControlActions::ok);
    }
    if (m_dialog.onApply) {
        add(QDialogButtonBox::Apply, &host::ControlActions::apply);
    }
    add(m_dialog.isModal ? QDialogButtonBox::Cancel : QDialogButtonBox::Close,
        &host::ControlActions::dismiss);
    if (m_dialog.onHelp) {
        add(QDialogButtonBox::Help, &host::ControlActions::help);
    }
    const int margin = fontMetrics().lineSpacing() / 2;
    m_buttons->setContentsMargins(margin, 0, margin, margin);
    layout()->addWidget(m_buttons);
}

QMenuBar* DialogWindow::addMenuBar() {
    auto* const bar = new QMenuBar(this);
    bar->setNativeMenuBar(false); // the native one belongs to the main window
    layout()->setMenuBar(bar);
    return bar;
}

void DialogWindow::reject() {
    m_actions.dismiss(m_dialog.handle);
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    m_actions.dismiss(m_dialog.handle);
}

void DialogWindow::showEvent(QShowEvent* event) {
    m_area->place();
    orderTabs();
    QDialog::showEvent(event);
}

void DialogWindow::orderTabs() {
    QList<QWidget*> order = m_area->focusOrder();
    const auto buttons = m_buttons->buttons();
    order.append(QList<QWidget*>(buttons.begin(), buttons.end()));
    for (qsizetype next = 1; next < order.size(); ++next) {
        setTabOrder(order[next - 1], order[next]);
    }
}

} // namespace corvane::gui
