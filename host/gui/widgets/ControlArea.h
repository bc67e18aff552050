// The part of a dialog where the controls of an add-on stand.
#pragma once

#include "host/core/controls/Control.h"

#include <QWidget>
#include <vector>

namespace corvane::gui {

/// Places controls by dialog units of its font. A control that needs more than its box gets it, and
/// the area grows with it: nothing is cut off, whatever the font and style.
class ControlArea : public QWidget {
public:
    ControlArea(const host::Dialog& dialog, QWidget* parent);

    /// The widget becomes a child.
    void add(QWidget* widget, const host::PlacedControl& control);
    /// To be called when something has changed that changes what a control needs.
    void place();
    /// What can take the focus, line by line, each from left to right.
    QList<QWidget*> focusOrder() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Placed {
        QWidget* widget;
        const host::PlacedControl* control;
    };
    QRect placeOf(const Placed& placed) const;
    const host::PlacedControl* fieldBeside(const host::PlacedControl& label) const;

    const host::Dialog& m_dialog;
    std::vector<Placed> m_placed;
};

} // namespace corvane::gui
