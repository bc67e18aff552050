// The dialogs and controls of add-ons, by handle, and what add-ons do with them.
#include "host/core/controls/Controls.h"

#include <algorithm>

namespace corvane::host {

namespace {

bool hasPosition(std::size_t count, long position) {
    return position >= 1 && static_cast<std::size_t>(position) <= count;
}

bool isWithin(const Dialog& dialog, const Dialog& ancestor) {
    for (const Dialog* each = &dialog; each != nullptr; each = each->parent) {
        if (each == &ancestor) {
            return true;
        }
    }
    return false;
}

/// Text that is being edited when its field goes out of reach is lost: committing it there would be
/// a callback that no user caused.
bool forgetEdit(TextField& field) {
    const bool wasPending = field.isPending();
    field.shown = field.committed;
    return wasPending;
}

} // namespace

Controls::~Controls() {
    close();
}

/// Users act whether or not there is memory for a name, which only the trace wants.
void Controls::callAddOn(const Control& control, const std::function<void()>& call) const {
    std::string name;
    try {
        name = nameInTrace(control);
    } catch (const std::bad_alloc&) {
        name.clear();
    }
    m_caller(name, call);
}

void Controls::close() {
    if (Widgets* const toolkit = std::exchange(m_toolkit, nullptr)) {
        toolkit->close();
    }
}

void Controls::show(const Control& control, ControlChange change) const {
    if (m_toolkit != nullptr) {
        m_toolkit->changed(control, change);
    }
}

int Controls::createDialog(int parent, Dialog dialog) {
    dialog.parent = find<Dialog>(parent);
    if (m_toolkit == nullptr || (parent != COR_HANDLE_MAIN_WINDOW && dialog.parent == nullptr)) {
        return COR_HANDLE_NOT_CREATED;
    }
    Dialog& added = adopt(std::move(dialog));
    added.dialog = &added;
    m_toolkit->add(added);
    return added.handle;
}

int Controls::addMenuBar(Dialog& dialog) {
    for (const auto& control : m_controls) {
        if (control->dialog == &dialog && dynamic_cast<MenuBar*>(control.get()) != nullptr) {
            return control->handle;
        }
    }
    return add(dialog, MenuBar{});
}

int Controls::addMenu(MenuParent& parent, std::string label) {
    Menu menu;
    menu.dialog = parent.dialog;
    menu.parent = &parent;
    menu.label = std::move(label);
    const Menu& added = adopt(std::move(menu));
    parent.entries.push_back(&added);
    m_toolkit->add(added);
    return added.handle;
}

void Controls::addSeparator(Menu& menu) {
    menu.entries.push_back(nullptr);
    m_toolkit->addSeparator(menu);
}

void Controls::launch(Dialog& dialog) {
    if (dialog.isUp) {
        m_toolkit->raise(dialog);
        return;
    }
    dialog.isUp = true;
    if (dialog.isModal) {
        m_modal.push_back(&dialog);
        ++m_modalLaunches;
    }
    m_toolkit->show(dialog);
    if (dialog.onInit) {
        m_caller("launch of " + nameInTrace(dialog), dialog.onInit);
    }
}

void Controls::drop(Dialog& dialog) {
    if (!dialog.isUp) {
        return;
    }
    dialog.isUp = false;
    m_modalDrops += static_cast<int>(std::erase(m_modal, &dialog));
    for (const auto& control : m_controls) {
        auto* const field = dynamic_cast<TextField*>(control.get());
        if (field != nullptr && field->dialog == &dialog && forgetEdit(*field)) {
            show(*field, ControlChange::Text);
        }
    }
    m_toolkit->hide(dialog);
}

bool Controls::isBlocked(const Dialog& dialog) const {
    return !m_modal.empty() && !isWithin(dialog, *m_modal.back());
}

void Controls::setLabel(Label& label, std::string text) {
    label.label = std::move(text);
    show(label, ControlChange::Text);
}

void Controls::setText(TextField& field, std::string text) {
    field.shown = std::move(text);
    field.committed = field.shown;
    show(field, ControlChange::Text);
}

void Controls::setState(Toggle& toggle, bool isOn) {
    toggle.isOn = isOn;
    show(toggle, ControlChange::State);
}

void Controls::setState(MenuToggle& toggle, bool isOn) {
    toggle.isOn = isOn;
    show(toggle, ControlChange::State);
}

void Controls::setSensitivity(Control& control, bool isSensitive) {
    control.isSensitive = isSensitive;
    auto* const field = dynamic_cast<TextField*>(&control);
    if (field != nullptr && !isSensitive && forgetEdit(*field)) {
        show(control, ControlChange::Text);
    }
    show(control, ControlChange::Sensitivity);
}

void Controls::setToolTip(Control& control, std::string text) {
    control.toolTip = std::move(text);
    show(control, ControlChange::ToolTip);
}

void Controls::appendRow(List& list, std::string text) {
    list.rows.push_back(std::move(text));
    show(list, ControlChange::Rows);
}

void Controls::deleteRow(List& list, long position) {
    if (!hasPosition(list.rows.size(), position)) {
        return;
    }
    list.rows.erase(list.rows.begin() + (position - 1));
    // Sorted, so that deleting rows from the last to the first looks at few of them.
    auto selected = std::lower_bound(list.selection.begin(), list.selection.end(), position);
    if (selected != list.selection.end() && *selected == position) {
        selected = list.selection.erase(selected);
    }
    std::for_each(selected, list.selection.end(), [](long& later) { --later; });
    show(list, ControlChange::Rows);
}

void Controls::replaceRow(List& list, long position, std::string text) {
    if (hasPosition(list.rows.size(), position)) {
        list.rows[static_cast<std::size_t>(position - 1)] = std::move(text);
        show(list, ControlChange::Rows);
    }
}

void Controls::deleteAllRows(List& list) {
    list.rows.clear();
    list.selection.clear();
    show(list, ControlChange::Rows);
}

void Controls::select(List& list, std::vector<long> positions) {
    std::erase_if(positions,
                  [&](long position) { return !hasPosition(list.rows.size(), position); });
    if (!list.isMulti && positions.size() > 1) {
        positions.erase(positions.begin() + 1, positions.end());
    }
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    list.selection = std::move(positions);
    show(list, ControlChange::Selection);
}

std::vector<long> Controls::selectionOf(const List& list) {
    return isDimmed(list) ? std::vector<long>{} : list.selection;
}

void Controls::appendItem(OptionMenu& menu, std::string text) {
    menu.items.push_back(std::move(text));
    show(menu, ControlChange::Items);
}

void Controls::deleteAllItems(OptionMenu& menu) {
    if (!menu.items.empty()) {
        menu.wanted = menu.chosen();
    }
    menu.items.clear();
    show(menu, ControlChange::Items);
}

void Controls::choose(OptionMenu& menu, long position) {
    if (hasPosition(menu.items.size(), position)) {
        menu.wanted = position;
        show(menu, ControlChange::Choice);
    }
}

void Controls::choose(RadioBox& box, long position) {
    if (position == 0 || hasPosition(box.items.size(), position)) {
        box.chosen = position;
        show(box, ControlChange::Choice);
    }
}

} // namespace corvane::host
