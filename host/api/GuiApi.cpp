// Dialogs and controls: finds what a handle means, and turns C callbacks into functions.
#include "hostapi/CorGui.h"

#include "host/api/AddOnMemory.h"
#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

using namespace corvane::host;

namespace {

/// Null for a wrong handle. One that was never set is nothing to complain of: controls are used
/// before their dialog has been built.
template <class T, class Call>
T* find(const Call& call, Session& session, int handle) {
    T* const found = session.controls().find<T>(handle);
    if (!found && handle != COR_HANDLE_NOT_CREATED && session.controls().areThere()) {
        call.misuse("no such control: " + std::to_string(handle));
    }
    return found;
}

/// Does work(controls, control) with the control that the handle means.
template <class T, class Call, class Work>
void onControl(const Call& call, int handle, const Work& work) {
    call.perform([&](Session& session) {
        if (T* const control = find<T>(call, session, handle)) {
            work(session.controls(), *control);
        }
    });
}

/// The result of query(control); 0 or false for a wrong handle.
template <class T, class Result, class Call, class Query>
Result ask(const Call& call, int handle, const Query& query) {
    return call.answer(Result{}, [&](Session& session) {
        const T* const control = find<T>(call, session, handle);
        return control ? static_cast<Result>(query(*control)) : Result{};
    });
}

/// Adds a control that knows everything but its place.
template <class T, class Call>
int addControl(const Call& call, int parent, Box box, T control) {
    return call.answer(COR_HANDLE_NOT_CREATED, [&](Session& session) {
        Dialog* const dialog = find<Dialog>(call, session, parent);
        control.box = box;
        return dialog ? session.controls().add(*dialog, std::move(control))
                      : COR_HANDLE_NOT_CREATED;
    });
}

template <class T, class Call>
int addEntry(const Call& call, int handle, T entry) {
    return call.answer(COR_HANDLE_NOT_CREATED, [&](Session& session) {
        Menu* const menu = find<Menu>(call, session, handle);
        return menu ? session.controls().addEntry(*menu, std::move(entry)) : COR_HANDLE_NOT_CREATED;
    });
}

template <class Call>
int createDialog(const Call& call, int parent, Dialog dialog) {
    return call.answer(COR_HANDLE_NOT_CREATED, [&](Session& session) {
        return session.controls().createDialog(parent, std::move(dialog));
    });
}

OnPress onPress(CorGUIVoidCB callback) {
    return callback ? OnPress(callback) : OnPress();
}

OnText onText(CorGUITextCB callback) {
    if (!callback) {
        return {};
    }
    return [callback](const std::string& text) { return callback(text.c_str()) != 0; };
}

/// Of lists, option menus and radio boxes.
OnPosition onPosition(CorGUIIndexCB callback) {
    if (!callback) {
        return {};
    }
    return [callback](long position) { callback(&position); };
}

OnState onState(CorGUIToggleCB callback) {
    if (!callback) {
        return {};
    }
    return [callback](bool isOn) {
        const long state = isOn ? 1 : 0;
        callback(&state);
    };
}

std::vector<std::string> texts(const char* const* items, int count) {
    std::vector<std::string> copies;
    for (int index = 0; items && index < count; ++index) {
        copies.push_back(textOf(items[index]));
    }
    return copies;
}

} // namespace

int CorGUIDialogCreateModeless(int parent, int width, int height, const char* title,
                               CorGUIVoidCB init, CorGUIVoidCB close, CorGUIVoidCB help) {
    const TracedCall call("CorGUIDialogCreateModeless", parent, width, height, title, init, close,
                          help);
    Dialog dialog;
    dialog.label = textOf(title);
    dialog.owner = call.callingLibrary();
    dialog.width = width;
    dialog.height = height;
    dialog.onInit = onPress(init);
    dialog.onDismiss = onPress(close);
    dialog.onHelp = onPress(help);
    return createDialog(call, parent, std::move(dialog));
}

int CorGUIDialogCreateModal(int parent, int width, int height, const char* title, CorGUIVoidCB init,
                            CorGUIVoidCB ok, CorGUIVoidCB apply, CorGUIVoidCB cancel,
                            CorGUIVoidCB help) {
    const TracedCall call("CorGUIDialogCreateModal", parent, width, height, title, init, ok, apply,
                          cancel, help);
    Dialog dialog;
    dialog.label = textOf(title);
    dialog.owner = call.callingLibrary();
    dialog.width = width;
    dialog.height = height;
    dialog.isModal = true;
    dialog.onInit = onPress(init);
    dialog.onOk = onPress(ok);
    dialog.onApply = onPress(apply);
    dialog.onDismiss = onPress(cancel);
    dialog.onHelp = onPress(help);
    return createDialog(call, parent, std::move(dialog));
}

void CorGUIDialogLaunch(int dialog) {
    onControl<Dialog>(TracedCall("CorGUIDialogLaunch", dialog), dialog,
                      [](Controls& controls, Dialog& found) { controls.launch(found); });
}

void CorGUIDialogDrop(int dialog) {
    onControl<Dialog>(TracedCall("CorGUIDialogDrop", dialog), dialog,
                      [](Controls& controls, Dialog& found) { controls.drop(found); });
}

CorBool CorGUIDialogIsUp(int dialog) {
    return ask<Dialog, bool>(TracedCall("CorGUIDialogIsUp", dialog), dialog,
                             [](const Dialog& found) { return found.isUp; });
}

int CorGUIButtonAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIVoidCB cb) {
    Button button;
    button.label = textOf(label);
    button.onPress = onPress(cb);
    return addControl(TracedCall("CorGUIButtonAdd", parent, x, y, w, h, label, cb), parent,
                      {x, y, w, h}, std::move(button));
}

int CorGUILabelAdd(int parent, int x, int y, const char* label) {
    Label added;
    added.label = textOf(label);
    return addControl(TracedCall("CorGUILabelAdd", parent, x, y, label), parent, {x, y, 0, 0},
                      std::move(added));
}

void CorGUILabelSetText(int label, const char* text) {
    onControl<Label>(
        TracedCall("CorGUILabelSetText", label, text), label,
        [&](Controls& controls, Label& found) { controls.setLabel(found, textOf(text)); });
}

int CorGUIFrameAdd(int parent, int x, int y, int w, int h, const char* label) {
    GroupBox box;
    box.label = textOf(label);
    return addControl(TracedCall("CorGUIFrameAdd", parent, x, y, w, h, label), parent, {x, y, w, h},
                      std::move(box));
}

int CorGUITextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB cb) {
    TextField field;
    field.onText = onText(cb);
    return addControl(TracedCall("CorGUITextFieldAdd", parent, x, y, w, h, cb), parent,
                      {x, y, w, h}, std::move(field));
}

void CorGUITextFieldSetString(int field, const char* text) {
    onControl<TextField>(
        TracedCall("CorGUITextFieldSetString", field, text), field,
        [&](Controls& controls, TextField& found) { controls.setText(found, textOf(text)); });
}

int CorGUISpinTextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB valueChanged,
                           CorGUIVoidCB up, CorGUIVoidCB down) {
    SpinField field;
    field.onText = onText(valueChanged);
    field.onUp = onPress(up);
    field.onDown = onPress(down);
    return addControl(
        TracedCall("CorGUISpinTextFieldAdd", parent, x, y, w, h, valueChanged, up, down), parent,
        {x, y, w, h}, std::move(field));
}

int CorGUIToggleAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIToggleCB cb) {
    Toggle toggle;
    toggle.label = textOf(label);
    toggle.onState = onState(cb);
    return addControl(TracedCall("CorGUIToggleAdd", parent, x, y, w, h, label, cb), parent,
                      {x, y, w, h}, std::move(toggle));
}

CorBool CorGUIToggleGet(int toggle) {
    return ask<Toggle, bool>(TracedCall("CorGUIToggleGet", toggle), toggle,
                             [](const Toggle& found) { return found.isOn; });
}

void CorGUIToggleSet(int toggle, CorBool on) {
    onControl<Toggle>(
        TracedCall("CorGUIToggleSet", toggle, on != FALSE), toggle,
        [&](Controls& controls, Toggle& found) { controls.setState(found, on != FALSE); });
}

int CorGUIListAdd(int parent, int x, int y, int w, int h, CorBool multiSelect, CorGUIListCB cb) {
    List list;
    list.isMulti = multiSelect != FALSE;
    list.onPosition = onPosition(cb);
    return addControl(TracedCall("CorGUIListAdd", parent, x, y, w, h, multiSelect != FALSE, cb),
                      parent, {x, y, w, h}, std::move(list));
}

void CorGUIListAppendItem(int list, const char* text) {
    onControl<List>(
        TracedCall("CorGUIListAppendItem", list, text), list,
        [&](Controls& controls, List& found) { controls.appendRow(found, textOf(text)); });
}

void CorGUIListDeleteAllItems(int list) {
    onControl<List>(TracedCall("CorGUIListDeleteAllItems", list), list,
                    [](Controls& controls, List& found) { controls.deleteAllRows(found); });
}

void CorGUIListDeleteItemAtPos(int list, long position) {
    onControl<List>(TracedCall("CorGUIListDeleteItemAtPos", list, position), list,
                    [&](Controls& controls, List& found) { controls.deleteRow(found, position); });
}

void CorGUIListReplaceItem(int list, const char* text, long position) {
    onControl<List>(TracedCall("CorGUIListReplaceItem", list, text, position), list,
                    [&](Controls& controls, List& found) {
                        controls.replaceRow(found, position, textOf(text));
                    });
}

long CorGUIListGetItemCount(int list) {
    return ask<List, long>(TracedCall("CorGUIListGetItemCount", list), list,
                           [](const List& found) { return found.rows.size(); });
}

void CorGUIListGetSelectedItems(int list, long** positions, long* count) {
    const TracedCall call("CorGUIListGetSelectedItems", list, positions, count);
    write(positions, static_cast<long*>(nullptr));
    write(count, 0L);
    onControl<List>(call, list, [&](Controls&, List& found) {
        const std::vector<long> selection = Controls::selectionOf(found);
        if (selection.empty() || !positions || !count) {
            return;
        }
        if (auto* const copy =
                static_cast<long*>(allocateForAddOn(selection.size(), sizeof(long)))) {
            std::copy(selection.begin(), selection.end(), copy);
            *positions = copy;
            *count = static_cast<long>(selection.size());
        }
    });
}

void CorGUIListSetSelectedItem(int list, long position) {
    onControl<List>(TracedCall("CorGUIListSetSelectedItem", list, position), list,
                    [&](Controls& controls, List& found) {
                        if (position >= 1 && position <= static_cast<long>(found.rows.size())) {
                            controls.select(found, {position});
                        }
                    });
}

void CorGUIListSetSelectedItems(int list, const int* positions, long count) {
    onControl<List>(TracedCall("CorGUIListSetSelectedItems", list, positions, count), list,
                    [&](Controls& controls, List& found) {
                        const bool isEmpty = !positions || count <= 0;
                        controls.select(found,
                                        isEmpty ? std::vector<long>{}
                                                : std::vector<long>(positions, positions + count));
                    });
}

void CorGUIListDeselectAllItems(int list) {
    onControl<List>(TracedCall("CorGUIListDeselectAllItems", list), list,
                    [](Controls& controls, List& found) { controls.select(found, {}); });
}

int CorGUIOptionMenuAdd(int parent, int x, int y, int w, int h, const char* const* items,
                        int itemCount, CorGUIIndexCB cb) {
    OptionMenu menu;
    menu.items = texts(items, itemCount);
    menu.onPosition = onPosition(cb);
    return addControl(TracedCall("CorGUIOptionMenuAdd", parent, x, y, w, h, items, itemCount, cb),
                      parent, {x, y, w, h}, std::move(menu));
}

void CorGUIOptionMenuAppendItem(int menu, const char* text) {
    onControl<OptionMenu>(
        TracedCall("CorGUIOptionMenuAppendItem", menu, text), menu,
        [&](Controls& controls, OptionMenu& found) { controls.appendItem(found, textOf(text)); });
}

void CorGUIOptionMenuDeleteAllItems(int menu) {
    onControl<OptionMenu>(
        TracedCall("CorGUIOptionMenuDeleteAllItems", menu), menu,
        [](Controls& controls, OptionMenu& found) { controls.deleteAllItems(found); });
}

long CorGUIOptionMenuGet(int menu) {
    return ask<OptionMenu, long>(TracedCall("CorGUIOptionMenuGet", menu), menu,
                                 [](const OptionMenu& found) { return found.chosen(); });
}

void CorGUIOptionMenuSet(int menu, long position) {
    onControl<OptionMenu>(
        TracedCall("CorGUIOptionMenuSet", menu, position), menu,
        [&](Controls& controls, OptionMenu& found) { controls.choose(found, position); });
}

int CorGUIRadioBoxAdd(int parent, int x, int y, int w, int h, const char* const* labels,
                      int labelCount, CorGUIIndexCB cb) {
    RadioBox box;
    box.items = texts(labels, labelCount);
    box.chosen = box.items.empty() ? 0 : 1;
    box.onPosition = onPosition(cb);
    return addControl(TracedCall("CorGUIRadioBoxAdd", parent, x, y, w, h, labels, labelCount, cb),
                      parent, {x, y, w, h}, std::move(box));
}

long CorGUIRadioBoxGetToggle(int box) {
    return ask<RadioBox, long>(TracedCall("CorGUIRadioBoxGetToggle", box), box,
                               [](const RadioBox& found) { return found.chosen; });
}

void CorGUIRadioBoxSetToggle(int box, long position) {
    onControl<RadioBox>(
        TracedCall("CorGUIRadioBoxSetToggle", box, position), box,
        [&](Controls& controls, RadioBox& found) { controls.choose(found, position); });
}

int CorGUIMenuBarAdd(int dialog) {
    const TracedCall call("CorGUIMenuBarAdd", dialog);
    return call.answer(COR_HANDLE_NOT_CREATED, [&](Session& session) {
        Dialog* const found = find<Dialog>(call, session, dialog);
        return found ? session.controls().addMenuBar(*found) : COR_HANDLE_NOT_CREATED;
    });
}

int CorGUIMenuAdd(int parentMenuOrBar, const char* label) {
    const TracedCall call("CorGUIMenuAdd", parentMenuOrBar, label);
    return call.answer(COR_HANDLE_NOT_CREATED, [&](Session& session) {
        MenuParent* const parent = find<MenuParent>(call, session, parentMenuOrBar);
        return parent ? session.controls().addMenu(*parent, textOf(label)) : COR_HANDLE_NOT_CREATED;
    });
}

int CorGUIMenuAddItem(int menu, const char* label, const char* help, CorGUIVoidCB cb) {
    MenuItem item;
    item.label = textOf(label);
    item.help = textOf(help);
    item.onPress = onPress(cb);
    return addEntry(TracedCall("CorGUIMenuAddItem", menu, label, help, cb), menu, std::move(item));
}

int CorGUIMenuAddToggle(int menu, const char* label, const char* help, CorGUIToggleCB cb) {
    MenuToggle toggle;
    toggle.label = textOf(label);
    toggle.help = textOf(help);
    toggle.onState = onState(cb);
    return addEntry(TracedCall("CorGUIMenuAddToggle", menu, label, help, cb), menu,
                    std::move(toggle));
}

void CorGUIMenuAddSeparator(int menu) {
    onControl<Menu>(TracedCall("CorGUIMenuAddSeparator", menu), menu,
                    [](Controls& controls, Menu& found) { controls.addSeparator(found); });
}

void CorGUIMenuSetToggle(int toggle, CorBool on) {
    onControl<MenuToggle>(
        TracedCall("CorGUIMenuSetToggle", toggle, on != FALSE), toggle,
        [&](Controls& controls, MenuToggle& found) { controls.setState(found, on != FALSE); });
}

void CorGUISetSensitivity(int control, CorBool sensitive) {
    onControl<Control>(TracedCall("CorGUISetSensitivity", control, sensitive != FALSE), control,
                       [&](Controls& controls, Control& found) {
                           controls.setSensitivity(found, sensitive != FALSE);
                       });
}

void CorGUISetToolTip(int control, const char* text) {
    onControl<Control>(
        TracedCall("CorGUISetToolTip", control, text), control,
        [&](Controls& controls, Control& found) { controls.setToolTip(found, textOf(text)); });
}
