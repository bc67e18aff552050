/* Dialogs and controls of add-ons. */
#ifndef HOSTAPI_COR_GUI_H
#define HOSTAPI_COR_GUI_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

typedef void (*CorGUIVoidCB)(void);
typedef long (*CorGUITextCB)(const char* text);
typedef void (*CorGUIListCB)(const long* positions);
typedef void (*CorGUIIndexCB)(const long* position);
typedef void (*CorGUIToggleCB)(const long* isOn);

int CorGUIDialogCreateModeless(int parent, int width, int height, const char* title,
                               CorGUIVoidCB init, CorGUIVoidCB close, CorGUIVoidCB help);
int CorGUIDialogCreateModal(int parent, int width, int height, const char* title, CorGUIVoidCB init,
                            CorGUIVoidCB ok, CorGUIVoidCB apply, CorGUIVoidCB cancel,
                            CorGUIVoidCB help);
void CorGUIDialogLaunch(int dialog);
void CorGUIDialogDrop(int dialog);
CorBool CorGUIDialogIsUp(int dialog);
int CorGUIButtonAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIVoidCB cb);
int CorGUILabelAdd(int parent, int x, int y, const char* label);
void CorGUILabelSetText(int label, const char* text);
int CorGUIFrameAdd(int parent, int x, int y, int w, int h, const char* label);
int CorGUITextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB cb);
void CorGUITextFieldSetString(int field, const char* text);
int CorGUISpinTextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB valueChanged,
                           CorGUIVoidCB up, CorGUIVoidCB down);
int CorGUIToggleAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIToggleCB cb);
CorBool CorGUIToggleGet(int toggle);
void CorGUIToggleSet(int toggle, CorBool on);
int CorGUIListAdd(int parent, int x, int y, int w, int h, CorBool multiSelect, CorGUIListCB cb);
void CorGUIListAppendItem(int list, const char* text);
void CorGUIListDeleteAllItems(int list);
void CorGUIListDeleteItemAtPos(int list, long position);
void CorGUIListReplaceItem(int list, const char* text, long position);
long CorGUIListGetItemCount(int list);
void CorGUIListGetSelectedItems(int list, long** positions, long* count);
void CorGUIListSetSelectedItem(int list, long position);
void CorGUIListSetSelectedItems(int list, const int* positions, long count);
void CorGUIListDeselectAllItems(int list);
int CorGUIOptionMenuAdd(int parent, int x, int y, int w, int h, const char* const* items,
                        int itemCount, CorGUIIndexCB cb);
void CorGUIOptionMenuAppendItem(int menu, const char* text);
void CorGUIOptionMenuDeleteAllItems(int menu);
long CorGUIOptionMenuGet(int menu);
void CorGUIOptionMenuSet(int menu, long position);
int CorGUIRadioBoxAdd(int parent, int x, int y, int w, int h, const char* const* labels,
                      int labelCount, CorGUIIndexCB cb);
long CorGUIRadioBoxGetToggle(int box);
void CorGUIRadioBoxSetToggle(int box, long position);
int CorGUIMenuBarAdd(int dialog);
int CorGUIMenuAdd(int parentMenuOrBar, const char* label);
int CorGUIMenuAddItem(int menu, const char* label, const char* help, CorGUIVoidCB cb);
int CorGUIMenuAddToggle(int menu, const char* label, const char* help, CorGUIToggleCB cb);
void CorGUIMenuAddSeparator(int menu);
void CorGUIMenuSetToggle(int toggle, CorBool on);
void CorGUISetSensitivity(int control, CorBool sensitive);
void CorGUISetToolTip(int control, const char* text);

COR_END_DECLS

#endif
