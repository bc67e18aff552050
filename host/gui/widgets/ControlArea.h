// The area of a dialog that holds the controls of an add-on.
#pragma once

#include "host/core/controls/Control.h"

#include <QWidget>
#include <vector>

namespace corvane::gui {

/// Places controls in dialog units of its font. A control that needs more space than its box gets
/// it, and the area grows with it, so that nothing is cut off whatever the font and style.
class ControlArea : public QWidget {
public:
    ControlArea(const host::Dialog& dialog, QWidget* parent);

    /// The widget becomes a child.
    void add(QWidget* widget, const host::PlacedControl& control);
    /// To be called when the space that a control needs may have changed.
    void place();
    /// The widgets that can take the focus: line by line, each from left to right.
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
