/* Dialogs and controls of add-ons.
 *
 *   1. Create a dialog; it stays hidden.
 *   2. Add its controls.
 *   3. Launch it: its init callback runs, then callbacks arrive as the user acts.
 *   4. Drop it to hide it. It keeps its state and can be launched again.
 * Dialogs and controls live until the host quits, which deletes them. In a run without windows none
 * can be created.
 *
 * Places and sizes are in dialog units: 100 are the width of an average character across, and the
 * height of a line of text down. x and y count from the left and top edge of the dialog; a parent
 * is a dialog.
 *
 * Handles are integers of 0 or more. With one that does not exist or means another kind of thing,
 * an operation does nothing, a query returns 0, FALSE or nothing, and a control that is added to it
 * is COR_HANDLE_NOT_CREATED.
 *
 * Setting a control by an operation calls no callback: callbacks tell what the user did.
 *
 * Texts are plain. '&' marks the mnemonic in labels of buttons, menus, toggles and radio boxes, and
 * stands for itself elsewhere. A line break in the label of a button breaks the line; trailing
 * blanks are kept.
 *
 * A text that is still being edited is committed before any other callback of its dialog. When it
 * is refused, that other callback is not called, so that the user sees what the field was set to.
 *
 * Callbacks may be NULL. They are called one after the other, and what they are given is valid
 * until they return. */
#ifndef HOSTAPI_COR_GUI_H
#define HOSTAPI_COR_GUI_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* The user acted: pressed a button, chose an item, closed a dialog.
 *   [main-thread] */
typedef void (*CorGUIVoidCB)(void);

/* The user committed the text of a field, by Enter or by leaving the field, and it differs from
 * what was committed or set last. Never called for single keys.
 *   returns  other than 0 when the text is accepted
 *            0 when it is refused; the callback has set the field to something valid
 *   [main-thread] */
typedef long (*CorGUITextCB)(const char* text);

/* The user changed the selection of a list.
 *   positions  of the first selected row; CorGUIListGetSelectedItems tells all of them
 *   [main-thread] */
typedef void (*CorGUIListCB)(const long* positions);

/* The user chose an item of an option menu or a radio box.
 *   position  of the item, from 1
 *   [main-thread] */
typedef void (*CorGUIIndexCB)(const long* position);

/* The user switched a toggle.
 *   isOn  1 or 0, the new state
 *   [main-thread] */
typedef void (*CorGUIToggleCB)(const long* isOn);

/* Creates a hidden dialog that leaves the other windows usable.
 *   parent   a dialog, or COR_HANDLE_MAIN_WINDOW
 *   init     called at each launch, when all controls work, before any other callback
 *   close    called when the user closes the window or presses Esc; the dialog stays until it is
 *            dropped
 *   help     called for Help; NULL for no Help button
 *   returns  the dialog
 *            COR_HANDLE_NOT_CREATED when the parent does not exist, or without windows
 *   [main-thread] */
int CorGUIDialogCreateModeless(int parent, int width, int height, const char* title,
                               CorGUIVoidCB init, CorGUIVoidCB close, CorGUIVoidCB help);

/* Creates a hidden dialog that blocks the input of all other windows while it is up.
 *   ok      called for OK; the dialog stays until it is dropped. Enter in a text field commits the
 *           text first, and only a second Enter is OK.
 *   apply   called for Apply; NULL for no Apply button
 *   cancel  called for Cancel, and when the user closes the window or presses Esc
 *   parent, init, help and the result are as for CorGUIDialogCreateModeless
 *   [main-thread] */
int CorGUIDialogCreateModal(int parent, int width, int height, const char* title, CorGUIVoidCB init,
                            CorGUIVoidCB ok, CorGUIVoidCB apply, CorGUIVoidCB cancel,
                            CorGUIVoidCB help);

/* Shows a dialog and calls its init callback. Returns at once, for a modal dialog too. A dialog
 * that is up already is raised, without init.
 *   [main-thread] */
void CorGUIDialogLaunch(int dialog);

/* Hides a dialog. Calls none of its callbacks. Does nothing when it is hidden already.
 *   [main-thread] */
void CorGUIDialogDrop(int dialog);

/* Tells whether a dialog is shown.
 *   [main-thread] */
CorBool CorGUIDialogIsUp(int dialog);

/* Adds a button.
 *   returns  the button
 *   [main-thread] */
int CorGUIButtonAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIVoidCB cb);

/* Adds a line of text in its natural size.
 *   returns  the label
 *   [main-thread] */
int CorGUILabelAdd(int parent, int x, int y, const char* label);

/* Replaces the text of a label; its size follows.
 *   [main-thread] */
void CorGUILabelSetText(int label, const char* text);

/* Adds a box with a title round other controls, which remain children of the dialog.
 *   returns  the box
 *   [main-thread] */
int CorGUIFrameAdd(int parent, int x, int y, int w, int h, const char* label);

/* Adds an empty text field of one line.
 *   returns  the field
 *   [main-thread] */
int CorGUITextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB cb);

/* Sets the text of a text field or spin field. It counts as committed.
 *   [main-thread] */
void CorGUITextFieldSetString(int field, const char* text);

/* Adds a text field with two arrows. The arrows only call: the callback sets the text.
 *   valueChanged  as for CorGUITextFieldAdd
 *   up, down      called for each step of an arrow
 *   returns       the field, for CorGUITextFieldSetString
 *   [main-thread] */
int CorGUISpinTextFieldAdd(int parent, int x, int y, int w, int h, CorGUITextCB valueChanged,
                           CorGUIVoidCB up, CorGUIVoidCB down);

/* Adds a toggle that is off.
 *   returns  the toggle
 *   [main-thread] */
int CorGUIToggleAdd(int parent, int x, int y, int w, int h, const char* label, CorGUIToggleCB cb);

/* Tells whether a toggle is on.
 *   [main-thread] */
CorBool CorGUIToggleGet(int toggle);

/* Switches a toggle.
 *   [main-thread] */
void CorGUIToggleSet(int toggle, CorBool on);

/* Adds an empty list.
 *   multiSelect  TRUE when more than one row can be selected at a time
 *   returns      the list
 *   [main-thread] */
int CorGUIListAdd(int parent, int x, int y, int w, int h, CorBool multiSelect, CorGUIListCB cb);

/* Appends a row. Selects nothing.
 *   [main-thread] */
void CorGUIListAppendItem(int list, const char* text);

/* Empties a list.
 *   [main-thread] */
void CorGUIListDeleteAllItems(int list);

/* Deletes a row. The selection of the other rows may be lost.
 *   position  from 1; outside of the list nothing happens
 *   [main-thread] */
void CorGUIListDeleteItemAtPos(int list, long position);

/* Replaces the text of a row, which stays selected if it was.
 *   position  from 1; outside of the list nothing happens
 *   [main-thread] */
void CorGUIListReplaceItem(int list, const char* text, long position);

/* Counts the rows of a list.
 *   [main-thread] */
long CorGUIListGetItemCount(int list);

/* Tells which rows are selected; none while the list is dimmed.
 *   positions  receives an array, ascending from 1, that the caller frees with CorUtilArrayDealloc;
 *              NULL when nothing is selected
 *   count      receives its length
 *   [main-thread] */
void CorGUIListGetSelectedItems(int list, long** positions, long* count);

/* Selects one row instead of what was selected.
 *   position  from 1; outside of the list nothing happens
 *   [main-thread] */
void CorGUIListSetSelectedItem(int list, long position);

/* Selects some rows instead of what was selected. Those outside of the list are skipped.
 *   positions  count of them, in any order; int here, long where the host tells them
 *   [main-thread] */
void CorGUIListSetSelectedItems(int list, const int* positions, long count);

/* Selects nothing.
 *   [main-thread] */
void CorGUIListDeselectAllItems(int list);

/* Adds an option menu, a list of which one item is chosen: at first the first one.
 *   items      itemCount texts, copied
 *   itemCount  0 or more
 *   returns    the option menu
 *   [main-thread] */
int CorGUIOptionMenuAdd(int parent, int x, int y, int w, int h, const char* const* items,
                        int itemCount, CorGUIIndexCB cb);

/* Appends an item. See CorGUIOptionMenuDeleteAllItems for the choice.
 *   [main-thread] */
void CorGUIOptionMenuAppendItem(int menu, const char* text);

/* Empties an option menu. It remembers the chosen position: once the items that are appended
 * afterwards reach it, it is chosen again; until then the first item is.
 *   [main-thread] */
void CorGUIOptionMenuDeleteAllItems(int menu);

/* Tells the chosen position.
 *   returns  from 1; 0 when the menu is empty
 *   [main-thread] */
long CorGUIOptionMenuGet(int menu);

/* Chooses an item.
 *   position  from 1; outside of the menu nothing happens
 *   [main-thread] */
void CorGUIOptionMenuSet(int menu, long position);

/* Adds a column of buttons of which one is on: at first the first one.
 *   labels      labelCount texts, copied
 *   labelCount  0 or more
 *   returns     the radio box
 *   [main-thread] */
int CorGUIRadioBoxAdd(int parent, int x, int y, int w, int h, const char* const* labels,
                      int labelCount, CorGUIIndexCB cb);

/* Tells which button is on.
 *   returns  from 1; 0 when none is
 *   [main-thread] */
long CorGUIRadioBoxGetToggle(int box);

/* Switches one button on and the others off.
 *   position  from 1; 0 for none on; beyond the last one nothing happens
 *   [main-thread] */
void CorGUIRadioBoxSetToggle(int box, long position);

/* Adds a menu bar along the top of a dialog.
 *   returns  the menu bar
 *   [main-thread] */
int CorGUIMenuBarAdd(int dialog);

/* Adds a menu to a menu bar, or a submenu to a menu.
 *   returns  the menu
 *   [main-thread] */
int CorGUIMenuAdd(int parentMenuOrBar, const char* label);

/* Adds an item to a menu.
 *   help     a sentence on what the item does; may be NULL
 *   returns  the item
 *   [main-thread] */
int CorGUIMenuAddItem(int menu, const char* label, const char* help, CorGUIVoidCB cb);

/* Adds an item with a check mark, which is off at first and changes when the user chooses it.
 *   help     as for CorGUIMenuAddItem
 *   returns  the item, for CorGUIMenuSetToggle
 *   [main-thread] */
int CorGUIMenuAddToggle(int menu, const char* label, const char* help, CorGUIToggleCB cb);

/* Adds a line between the items before and after it.
 *   [main-thread] */
void CorGUIMenuAddSeparator(int menu);

/* Sets the check mark of an item of CorGUIMenuAddToggle.
 *
 * Rationale: that this calls no callback, as for all controls, matters most here: a callback that
 * inverts a setting would invert it back.
 *   [main-thread] */
void CorGUIMenuSetToggle(int toggle, CorBool on);

/* Makes a control of any kind usable, or dims it: labels, menus and menu items too. A dimmed text
 * field does not take the focus. New controls are usable.
 *   [main-thread] */
void CorGUISetSensitivity(int control, CorBool sensitive);

/* Sets the text that appears while the pointer rests on a control.
 *   text  NULL or empty for none
 *   [main-thread] */
void CorGUISetToolTip(int control, const char* text);

COR_END_DECLS

#endif
