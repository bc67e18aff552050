// Dialogs with controls of every kind, laid out as add-ons do it.
#include "tests/unit/host/gui/widgets/SampleDialogs.h"

namespace corvane::test {

namespace {

void noted() {}

void addFields(int dialog) {
    CorGUILabelAdd(dialog, 207, 1595, "View Name:");
    CorGUITextFieldSetString(CorGUITextFieldAdd(dialog, 1847, 1645, 2711, 145, nullptr), "View 3");
    CorGUILabelAdd(dialog, 189, 1806, "Frame Count:");
    CorGUITextFieldSetString(CorGUITextFieldAdd(dialog, 1847, 1856, 2711, 145, nullptr), "30");
    CorGUILabelAdd(dialog, 207, 2016, "Destination:");
    const char* const destinations[] = {"On Screen", "To File"};
    CorGUIOptionMenuAdd(dialog, 1847, 2066, 2711, 145, destinations, 2, nullptr);
}

void addButtons(int dialog) {
    CorGUIButtonAdd(dialog, 3160, 65, 1433, 145, "&Append     ", &noted);
    CorGUIButtonAdd(dialog, 3160, 261, 1467, 145, "&Insert         ", &noted);
    CorGUISetSensitivity(CorGUIButtonAdd(dialog, 3160, 580, 1433, 145, "&Update      ", &noted),
                         FALSE);
    CorGUIButtonAdd(dialog, 3160, 783, 1416, 145, "A&pply        ", &noted);
    CorGUIButtonAdd(dialog, 518, 2299, 1208, 232, "A&nimate\nAll", &noted);
    CorGUIButtonAdd(dialog, 2884, 2299, 1243, 232, "  Animate \n&Selected", &noted);
}

int makeModeless() {
    const int dialog = CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 4870, 2620,
                                                  "Key Frame Animation", nullptr, nullptr, &noted);
    const int rows = CorGUIListAdd(dialog, 224, 65, 2745, 1414, TRUE, nullptr);
    for (const char* row : {"View 1, 30 frames", "View 2, 30 frames", "View 3, 30 frames"}) {
        CorGUIListAppendItem(rows, row);
    }
    CorGUIListSetSelectedItem(rows, 3);
    addButtons(dialog);
    addFields(dialog);
    const int bar = CorGUIMenuBarAdd(dialog);
    CorGUIMenuAddItem(CorGUIMenuAdd(bar, "&File"), "&Open Animation File...", "Open", &noted);
    CorGUIMenuAddToggle(CorGUIMenuAdd(bar, "&Options"), "Fade &In", nullptr, nullptr);
    return dialog;
}

int makeModal() {
    const int dialog =
        CorGUIDialogCreateModal(COR_HANDLE_MAIN_WINDOW, 5357, 1400, "Time Animation Options",
                                nullptr, &noted, nullptr, &noted, &noted);
    CorGUIFrameAdd(dialog, 207, 79, 4956, 732, "Animation Operation");
    const char* const operations[] = {"&Forward", "&Loop", "&Bounce", "&As Captured"};
    CorGUIRadioBoxAdd(dialog, 587, 166, 2003, 573, operations, 4, nullptr);
    CorGUILabelAdd(dialog, 2901, 159, "Num Cycles:");
    const int cycles =
        CorGUISpinTextFieldAdd(dialog, 2918, 333, 1329, 145, nullptr, &noted, &noted);
    CorGUITextFieldSetString(cycles, "3");
    const char* const widths[] = {"&Use Width of Image on Screen", "&Enter Width:"};
    CorGUIRadioBoxAdd(dialog, 207, 900, 3400, 350, widths, 2, nullptr);
    CorGUITextFieldAdd(dialog, 3700, 1090, 900, 145, nullptr);
    CorGUIToggleAdd(dialog, 3700, 900, 1500, 145, "&Antialiasing", nullptr);
    return dialog;
}

} // namespace

SampleDialogs makeSampleDialogs() {
    return {makeModeless(), makeModal()};
}

} // namespace corvane::test
