// Dialogs and controls, in a host without windows: none can be made, so creating one answers
// COR_HANDLE_NOT_CREATED, and every handle is a wrong one, to which nothing happens.
#include "hostapi/CorGui.h"

#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"

using namespace corvane::host;

namespace {

template <class... Arguments>
int notCreated(const char* operation, Arguments... arguments) {
    return TracedCall(operation, arguments...).answer(COR_HANDLE_NOT_CREATED, [](Application&) {
        return COR_HANDLE_NOT_CREATED;
    });
}

template <class... Arguments>
void ignored(const char* operation, Arguments... arguments) {
    TracedCall(operation, arguments...).perform([](Application&) {});
}

CorBool off(const char* operation, int control) {
    return TracedCall(operation, control).answer(false, [](Application&) { return false; });
}

long none(const char* operation, int control) {
    return TracedCall(operation, control).answer(0L, [](Application&) { return 0L; });
}

} // namespace

int CorGUIDialogCreateModeless(int parent, int width, int height, const char* title,
                               CorGUIVoidCB init, CorGUIVoidCB close, CorGUIVoidCB help) {
    return notCreated("CorGUIDialogCreateModeless", parent, width, height, title, init, close,
                      help);
}

int CorGUIDialogCreateModal(int parent, int width, int height, const char* title, CorGUIVoidCB init,
                            CorGUIVoidCB ok, CorGUIVoidCB apply, CorGUIVoidCB cancel,
                            CorGUIVoidCB help) {
    return notCreated("CorGUIDialogCreateModal", parent, width, height, title, init, ok, apply,
                      cancel, help);
}

void CorGUIDialogLaunch(int dialog) {
    ignored("CorGUIDialogLaunch", dialog);
}

void CorGUIDialogDrop(int dialog) {
    ignored("CorGUIDialogDrop", dialog);
}

CorBool CorGUIDialogIsUp(int dialog) {
    return off("CorGUIDialogIsUp", dialog);
}

int CorGUIButtonAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIVoidCB cb) {
    return notCreated("CorGUIButtonAdd", parent, x, y, w, h, label, cb);
}

int CorGUILabelAdd(int parent, int x, int y, const char* label) {
    return notCreated("CorGUILabelAdd", parent, x, y, label);
}

void CorGUILabelSetText(int label, const char* text) {
    ignored("CorGUILabelSetText", label, text);
}

int CorGUIFrameAdd(int parent, int x, int y, int w, int h, const char* label) {
    return notCreated("CorGUIFrameAdd", parent, x, y, w, h, label);
}

int CorGUITextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB cb) {
    return notCreated("CorGUITextFieldAdd", parent, x, y, w, h, cb);
}

void CorGUITextFieldSetString(int field, const char* text) {
    ignored("CorGUITextFieldSetString", field, text);
}

int CorGUISpinTextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB valueChanged,
                           CorGUIVoidCB up, CorGUIVoidCB down) {
    return notCreated("CorGUISpinTextFieldAdd", parent, x, y, w, h, valueChanged, up, down);
}

int CorGUIToggleAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIToggleCB cb) {
    return notCreated("CorGUIToggleAdd", parent, x, y, w, h, label, cb);
}

CorBool CorGUIToggleGet(int toggle) {
    return off("CorGUIToggleGet", toggle);
}

void CorGUIToggleSet(int toggle, CorBool on) {
    ignored("CorGUIToggleSet", toggle, on != FALSE);
}

int CorGUIListAdd(int parent, int x, int y, int w, int h, CorBool multiSelect, CorGUIListCB cb) {
    return notCreated("CorGUIListAdd", parent, x, y, w, h, multiSelect != FALSE, cb);
}

void CorGUIListAppendItem(int list, const char* text) {
    ignored("CorGUIListAppendItem", list, text);
}

void CorGUIListDeleteAllItems(int list) {
    ignored("CorGUIListDeleteAllItems", list);
}

void CorGUIListDeleteItemAtPos(int list, long position) {
    ignored("CorGUIListDeleteItemAtPos", list, position);
}

void CorGUIListReplaceItem(int list, const char* text, long position) {
    ignored("CorGUIListReplaceItem", list, text, position);
}

long CorGUIListGetItemCount(int list) {
    return none("CorGUIListGetItemCount", list);
}

void CorGUIListGetSelectedItems(int list, long** positions, long* count) {
    ignored("CorGUIListGetSelectedItems", list, positions, count);
    write(positions, static_cast<long*>(nullptr));
    write(count, 0L);
}

void CorGUIListSetSelectedItem(int list, long position) {
    ignored("CorGUIListSetSelectedItem", list, position);
}

void CorGUIListSetSelectedItems(int list, const int* positions, long count) {
    ignored("CorGUIListSetSelectedItems", list, positions, count);
}

void CorGUIListDeselectAllItems(int list) {
    ignored("CorGUIListDeselectAllItems", list);
}

int CorGUIOptionMenuAdd(int parent, int x, int y, int w, int h, const char* const* items,
                        int itemCount, CorGUIIndexCB cb) {
    return notCreated("CorGUIOptionMenuAdd", parent, x, y, w, h, items, itemCount, cb);
}

void CorGUIOptionMenuAppendItem(int menu, const char* text) {
    ignored("CorGUIOptionMenuAppendItem", menu, text);
}

void CorGUIOptionMenuDeleteAllItems(int menu) {
    ignored("CorGUIOptionMenuDeleteAllItems", menu);
}

long CorGUIOptionMenuGet(int menu) {
    return none("CorGUIOptionMenuGet", menu);
}

void CorGUIOptionMenuSet(int menu, long position) {
    ignored("CorGUIOptionMenuSet", menu, position);
}

int CorGUIRadioBoxAdd(int parent, int x, int y, int w, int h, const char* const* labels,
                      int labelCount, CorGUIIndexCB cb) {
    return notCreated("CorGUIRadioBoxAdd", parent, x, y, w, h, labels, labelCount, cb);
}

long CorGUIRadioBoxGetToggle(int box) {
    return none("CorGUIRadioBoxGetToggle", box);
}

void CorGUIRadioBoxSetToggle(int box, long position) {
    ignored("CorGUIRadioBoxSetToggle", box, position);
}

int CorGUIMenuBarAdd(int dialog) {
    return notCreated("CorGUIMenuBarAdd", dialog);
}

int CorGUIMenuAdd(int parentMenuOrBar, const char* label) {
    return notCreated("CorGUIMenuAdd", parentMenuOrBar, label);
}

int CorGUIMenuAddItem(int menu, const char* label, const char* help, CorGUIVoidCB cb) {
    return notCreated("CorGUIMenuAddItem", menu, label, help, cb);
}

int CorGUIMenuAddToggle(int menu, const char* label, const char* help, CorGUIToggleCB cb) {
    return notCreated("CorGUIMenuAddToggle", menu, label, help, cb);
}

void CorGUIMenuAddSeparator(int menu) {
    ignored("CorGUIMenuAddSeparator", menu);
}

void CorGUIMenuSetToggle(int toggle, CorBool on) {
    ignored("CorGUIMenuSetToggle", toggle, on != FALSE);
}

void CorGUISetSensitivity(int control, CorBool sensitive) {
    ignored("CorGUISetSensitivity", control, sensitive != FALSE);
}

void CorGUISetToolTip(int control, const char* text) {
    ignored("CorGUISetToolTip", control, text);
}
