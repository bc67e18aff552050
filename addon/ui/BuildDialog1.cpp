// The layout of the main dialog.
#include "addon/ui/DialogLayout.h"

#include "addon/ui/DialogMain.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

namespace {

int addButton(int x, int y, int w, int h, const char* label, CorGUIVoidCB callback,
              const char* toolTip) {
    const int button = CorGUIButtonAdd(Dialog1Manager, x, y, w, h, label, callback);
    CorGUISetToolTip(button, toolTip);
    return button;
}

int addTextField(int x, int y, int w, int h, CorGUITextCB callback, const char* toolTip) {
    const int field = CorGUITextFieldAdd(Dialog1Manager, x, y, w, h, callback);
    CorGUISetToolTip(field, toolTip);
    return field;
}

void addListWithButtons() {
    KeyFrameList_MLST_D1 =
        CorGUIListAdd(Dialog1Manager, 224, 65, 2745, 1414, TRUE, DialogMain::keyFrameList_MLST_CB);
    InsertKeyFrame_BTN_D1 = addButton(
        3160, 261, 1467, 145, "&Insert         ", DialogMain::insertKeyFrame_BTN_CB,
        "Add the current Corvane view as a key frame below the selected item(s) in the list");
    AppendKeyFrame_BTN_D1 =
        addButton(3160, 65, 1433, 145, "&Append     ", DialogMain::appendKeyFrame_BTN_CB,
                  "Append the current Corvane view as a key frame to the end of the list");
    Update_BTN_D1 = addButton(3160, 580, 1433, 145, "&Update      ", DialogMain::update_BTN_CB,
                              "Update the selected key frame with the current view in Corvane");
    Apply_BTN_D1 = addButton(3160, 783, 1416, 145, "A&pply        ", DialogMain::apply_BTN_CB,
                             "Apply the selected key frame as the view in Corvane");
    Delete_BTN_D1 = addButton(3160, 1138, 1416, 145, "&Delete       ", DialogMain::delete_BTN_CB,
                              "Delete the selected key frame");
    Clear_BTN_D1 = addButton(3160, 1341, 1433, 145, "&Clear         ", DialogMain::clear_BTN_CB,
                             "Delete all key frame views from the list");
}

void addKeyFrameFields() {
    ViewName_LBL_D1 = CorGUILabelAdd(Dialog1Manager, 207, 1595, "View Name:");
    ViewName_TF_D1 = addTextField(1847, 1645, 2711, 145, DialogMain::viewName_TF_CB,
                                  "Enter the name of the selected view");
    FrameCount_LBL_D1 = CorGUILabelAdd(Dialog1Manager, 189, 1806, "Frame Count:");
    FrameCount_TF_D1 =
        addTextField(1847, 1856, 2711, 145, DialogMain::frameCount_TF_CB,
                     "Enter the number of frames between the selected and next key frame views");
}

void addAnimationControls() {
    const char* const items[] = {" "};
    Destination_LBL_D1 = CorGUILabelAdd(Dialog1Manager, 207, 2016, "Destination:");
    Destination_OPT_D1 = CorGUIOptionMenuAdd(Dialog1Manager, 1847, 2066, 2711, 145, items, 1,
                                             DialogMain::destination_OPT_CB);
    AnimateAll_BTN_D1 =
        addButton(518, 2299, 1208, 232, "A&nimate\nAll", DialogMain::animateAll_BTN_CB,
                  "Animate through the list of all key frames");
    AnimateSelected_BTN_D1 = addButton(2884, 2299, 1243, 232, "  Animate \n&Selected",
                                       DialogMain::animateSelected_BTN_CB,
                                       "Animate between the selected and next key frames");
}

} // namespace

int BuildDialog1(int parent) {
    if (Dialog1Manager != COR_HANDLE_NOT_CREATED) {
        return Dialog1Manager;
    }
    Dialog1Manager =
        CorGUIDialogCreateModeless(parent, 4870, 2620, "Key Frame Animation", DialogMain::init_CB,
                                   DialogMain::drop, DialogMain::help_BTN_CB);
    if (Dialog1Manager == COR_HANDLE_NOT_CREATED) {
        return COR_HANDLE_NOT_CREATED;
    }
    addListWithButtons();
    addKeyFrameFields();
    addAnimationControls();
    return Dialog1Manager;
}

} // namespace corvane::corutiltools
