#include "host/gui/widgets/ControlArea.h"

#include "host/gui/widgets/DialogUnits.h"

#include <QEvent>
#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace corvane::gui {

namespace {

/// Controls whose tops are at most this far apart are on one line, in dialog units.
constexpr int sameLine = 80;

bool isLabel(const host::PlacedControl& control) {
    return dynamic_cast<const host::Label*>(&control) != nullptr;
}

bool isGroupBox(const host::PlacedControl& control) {
    return dynamic_cast<const host::GroupBox*>(&control) != nullptr;
}

bool isField(const host::PlacedControl& control) {
    return dynamic_cast<const host::TextField*>(&control) != nullptr ||
           dynamic_cast<const host::OptionMenu*>(&control) != nullptr;
}

/// Grows equally above and below, so that controls on one line stay aligned.
QRect grown(QRect rect, QSize needed) {
    rect.setWidth(qMax(rect.width(), needed.width()));
    const int missing = qMax(0, needed.height() - rect.height());
    rect.adjust(0, -missing / 2, 0, missing - missing / 2);
    rect.moveTop(qMax(0, rect.top()));
    return rect;
}

} // namespace

ControlArea::ControlArea(const host::Dialog& dialog, QWidget* parent)
    : QWidget(parent), m_dialog(dialog) {
    place();
}

void ControlArea::add(QWidget* widget, const host::PlacedControl& control) {
    m_placed.push_back({widget, &control});
    if (isVisible()) {
        place();
        widget->show();
    }
}

/// Labels have no size, and add-ons place them by eye: they are aligned with the field that they
/// belong to.
const host::PlacedControl* ControlArea::fieldBeside(const host::PlacedControl& label) const {
    const host::PlacedControl* nearest = nullptr;
    for (const Placed& each : m_placed) {
        const host::Box& box = each.control->box;
        const bool isBeside = isField(*each.control) && box.x > label.box.x &&
                              std::abs(box.y - label.box.y) <= sameLine;
        if (isBeside && (nearest == nullptr || box.x < nearest->box.x)) {
            nearest = each.control;
        }
    }
    return nearest;
}

QRect ControlArea::placeOf(const Placed& placed) const {
    const DialogUnits units(font());
    const QRect box = units.rect(placed.control->box);
    if (isGroupBox(*placed.control)) {
        // Add-ons expect the title on the frame line; Qt styles put it above.
        return {QPoint(box.left(), qMax(0, box.top() - units.down(50))), box.bottomRight()};
    }
    if (!isLabel(*placed.control)) {
        return grown(box,
                     placed.widget->minimumSizeHint().expandedTo(
                         isField(*placed.control) ? QSize(0, placed.widget->sizeHint().height())
                                                  : QSize(0, 0)));
    }
    QRect rect(box.topLeft(), placed.widget->sizeHint());
    if (const host::PlacedControl* field = fieldBeside(*placed.control)) {
        rect.moveCenter({rect.center().x(), units.rect(field->box).center().y()});
    }
    return rect;
}

void ControlArea::place() {
    const DialogUnits units(font());
    const QSize whole(units.across(m_dialog.width), units.down(m_dialog.height));
    const QPoint margin(units.across(100), units.down(50));
    QRect needed({0, 0}, whole);
    for (const Placed& each : m_placed) {
        const QRect rect = placeOf(each);
        each.widget->setGeometry(rect);
        needed |= QRect(rect.topLeft(), rect.bottomRight() + margin);
    }
    setFixedSize(needed.size());
}

/// Add-ons create their controls in any order; users expect Tab to go down the dialog.
QList<QWidget*> ControlArea::focusOrder() const {
    std::vector<Placed> sorted = m_placed;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Placed& a, const Placed& b) {
        const host::Box& first = a.control->box;
        const host::Box& second = b.control->box;
        return std::tie(first.y, first.x) < std::tie(second.y, second.x);
    });
    QList<QWidget*> order;
    for (const Placed& each : sorted) {
        if (each.widget->focusPolicy() != Qt::NoFocus) {
            order.append(each.widget);
            continue;
        }
        // Not a radio box itself takes the focus, but its buttons.
        const auto parts =
            each.widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        std::copy_if(parts.begin(), parts.end(), std::back_inserter(order),
                     [](const QWidget* part) { return part->focusPolicy() != Qt::NoFocus; });
    }
    return order;
}

void ControlArea::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        place();
    }
}

} // namespace corvane::gui
