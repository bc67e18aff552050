// The window of a dialog of an add-on.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"
#include "host/gui/widgets/ControlArea.h"

#include <QDialog>

class QDialogButtonBox;
class QMenuBar;

namespace corvane::gui {

/// Menu bar, controls, and the standard buttons. It never closes by itself: the add-on decides.
class DialogWindow : public QDialog {
public:
    DialogWindow(const host::Dialog& dialog, host::ControlActions& actions, QWidget* parent);

    ControlArea& area() { return *m_area; }
    QMenuBar* addMenuBar();
    void reject() override; ///< Esc

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addButtons();
    void orderTabs();

    const host::Dialog& m_dialog;
    host::ControlActions& m_actions;
    ControlArea* m_area;
    QDialogButtonBox* m_buttons;
};

} // namespace corvane::gui
