// The layout of the time animation options.
#include "addon/ui/DialogLayout.h"

#include "addon/ui/DialogTimeOptions.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

int BuildDialog3(int parent) {
    if (Dialog3Manager != COR_HANDLE_NOT_CREATED) {
        return Dialog3Manager;
    }
    Dialog3Manager =
        CorGUIDialogCreateModal(parent, 5357, 878, "Time Animation Options",
                                DialogTimeOptions::init_CB, DialogTimeOptions::ok_BTN_CB, nullptr,
                                DialogTimeOptions::cancel_BTN_CB, DialogTimeOptions::help_BTN_CB);
    if (Dialog3Manager == COR_HANDLE_NOT_CREATED) {
        return COR_HANDLE_NOT_CREATED;
    }
    const char* const operations[] = {"&Forward", "&Loop", "&Bounce", "&As Captured"};
    CorGUIFrameAdd(Dialog3Manager, 207, 79, 4956, 732, "Animation Operation");
    AnimationOperation_RADIO_D3 =
        CorGUIRadioBoxAdd(Dialog3Manager, 587, 166, 2003, 573, operations, 4,
                          DialogTimeOptions::animationOperation_RADIO_CB);
    NumCycles_LBL_D3 = CorGUILabelAdd(Dialog3Manager, 2901, 159, "Num Cycles:");
    NumCycles_TFS_D3 = CorGUISpinTextFieldAdd(Dialog3Manager, 2918, 333, 1329, 145,
                                              DialogTimeOptions::numCycles_TFS_ValueChanged_CB,
                                              DialogTimeOptions::numCycles_TFS_ButtonUp_CB,
                                              DialogTimeOptions::numCycles_TFS_ButtonDown_CB);
    return Dialog3Manager;
}

} // namespace corvane::corutiltools
