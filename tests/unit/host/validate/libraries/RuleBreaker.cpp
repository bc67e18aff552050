// An add-on that breaks one rule: the one that its file is called after, each with another kind of
// control. Under any other name it breaks none.
#include "hostapi/CorHost.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

CorAddOnID addOnId = nullptr;
int dialog = COR_HANDLE_NOT_CREATED;
int options = COR_HANDLE_NOT_CREATED;

void crash() {
    std::raise(SIGSEGV);
}

/// What most callers forget to look at.
void useWhatWasNotGiven() {
    char* text = CorUtilStringAlloc(10);
    if (!text) {
        crash();
    }
    CorUtilStringDealloc(&text);
}

void computeForEver() {
    std::puts("computing");
    std::fflush(stdout);
    volatile bool goesOn = true;
    while (goesOn) {
    }
}

void leaveALock() {
    CorUtilLockStart(addOnId);
}

void leaveALockWhenSomethingFails() {
    CorUtilLockStart(addOnId);
    if (CorUtilRedraw(TRUE)) {
        CorUtilLockFinish(addOnId);
    }
}

void leaveDrawingSuspended() {
    CorUtilDrawGraphics(FALSE);
}

void callFromAThread() {
    std::thread([] { CorUtilFrameGetCount(); }).join();
}

void freeTwice() {
    char* text = CorUtilStringAlloc(10);
    char* copy = text;
    CorUtilStringDealloc(&text);
    CorUtilStringDealloc(&copy);
}

void forgetToFree() {
    CorUtilArgListAlloc();
}

void throwOut() {
    throw std::out_of_range("row 7 of 5");
}

void leaveTheDisplayOpen() {
    CorUtilStatusStartPercentDone("Working", TRUE, TRUE);
}

void workOn(bool listens) {
    CorUtilStatusStartPercentDone("Working", TRUE, TRUE);
    for (int percent = 0; percent < 100; ++percent) {
        if (!CorUtilStatusCheckPercentDone(percent) && listens) {
            break;
        }
    }
    CorUtilStatusFinishPercentDone();
}

void workWithoutListening() {
    workOn(false);
}

void leaveAMovie() {
    CorUtilExportSetup("ExportFName", "film.avi", 0, 0.0);
    CorUtilExportSetup("ExportFormat", nullptr, ExportFormat_AVI, 0.0);
    CorUtilExportStart();
}

void handOverNothing() {
    CorUtilDialogErrMsg(nullptr);
}

/// What there is to use, besides the dialogs themselves.
enum class Means {
    None,
    Entry,
    MenuOption,
    Button,
    Toggle,
    TextField,
    SpinField,
    List,
    OptionMenu,
    RadioBox,
    MenuItem,
    MenuToggle,
    ModalOk,
    Help,
    Idle,
    StateChange,
    Macro,
    End
};

struct Deed {
    Means means = Means::None;
    void (*perform)() = nullptr;
};

void leaveNothingDone() {}

/// The name of the file, without its extension.
std::string ownName() {
    Dl_info found{};
    dladdr(reinterpret_cast<const void*>(&leaveNothingDone), &found);
    return std::filesystem::path(found.dli_fname).stem().string();
}

const Deed& deed() {
    static const std::map<std::string, Deed> all{
        {"crash", {Means::ModalOk, crash}},
        {"crash-in-entry", {Means::Entry, crash}},
        {"crash-at-end", {Means::End, crash}},
        {"crash-on-failure", {Means::RadioBox, useWhatWasNotGiven}},
        {"exit", {Means::MenuItem, [] { std::exit(EXIT_SUCCESS); }}},
        {"hang", {Means::Button, computeForEver}},
        {"locks", {Means::Toggle, leaveALock}},
        {"locks-on-failure", {Means::MenuOption, leaveALockWhenSomethingFails}},
        {"drawing", {Means::List, leaveDrawingSuspended}},
        {"threads", {Means::Idle, callFromAThread}},
        {"memory-twice", {Means::TextField, freeTwice}},
        {"memory-never", {Means::OptionMenu, forgetToFree}},
        {"exceptions", {Means::StateChange, throwOut}},
        {"exceptions-in-macro", {Means::Macro, throwOut}},
        {"progress", {Means::SpinField, leaveTheDisplayOpen}},
        {"stopping", {Means::MenuToggle, workWithoutListening}},
        {"movies", {Means::Help, leaveAMovie}},
        {"arguments", {Means::Button, handOverNothing}},
    };
    static const auto own = all.find(ownName());
    static const Deed none;
    return own != all.end() ? own->second : none;
}

void use(Means means) {
    if (means == deed().means) {
        deed().perform();
    }
}

void idleWork(long) {
    use(Means::Idle);
}

void buttonPressed() {
    use(Means::Button);
    workOn(true);
    CorUtilOnIdleQueueAddCallback(idleWork, 0);
}

void optionsCancelled() {
    if (ownName() != "dialogs") {
        CorGUIDialogDrop(options);
    }
}

void optionsAccepted() {
    use(Means::ModalOk);
    CorGUIDialogDrop(options);
}

void addControls() {
    static const char* const items[] = {"one", "two"};
    CorGUIButtonAdd(dialog, 0, 0, 100, 100, "Press", buttonPressed);
    CorGUIButtonAdd(dialog, 0, 100, 100, 100, "Options", [] { CorGUIDialogLaunch(options); });
    CorGUIToggleAdd(dialog, 0, 200, 100, 100, "Switch", [](const long*) { use(Means::Toggle); });
    CorGUITextFieldAdd(dialog, 0, 300, 100, 100, [](const char*) {
        use(Means::TextField);
        return 1L;
    });
    CorGUISpinTextFieldAdd(
        dialog, 0, 400, 100, 100, [](const char*) { return 1L; }, [] { use(Means::SpinField); },
        [] {});
    const int list =
        CorGUIListAdd(dialog, 0, 500, 100, 100, TRUE, [](const long*) { use(Means::List); });
    CorGUIListAppendItem(list, "row");
    CorGUIOptionMenuAdd(dialog, 0, 600, 100, 100, items, 2,
                        [](const long*) { use(Means::OptionMenu); });
    CorGUIRadioBoxAdd(dialog, 0, 700, 100, 100, items, 2,
                      [](const long*) { use(Means::RadioBox); });
    const int menu = CorGUIMenuAdd(CorGUIMenuBarAdd(dialog), "Menu");
    CorGUIMenuAddItem(menu, "Item", nullptr, [] { use(Means::MenuItem); });
    CorGUIMenuAddToggle(menu, "Toggle", nullptr, [](const long*) { use(Means::MenuToggle); });
}

void makeDialogs() {
    dialog = CorGUIDialogCreateModeless(
        COR_HANDLE_MAIN_WINDOW, 1000, 1000, "Rules", [] {}, [] { CorGUIDialogDrop(dialog); },
        [] { use(Means::Help); });
    options = CorGUIDialogCreateModal(
        dialog, 1000, 1000, "Options", [] {}, optionsAccepted, nullptr, optionsCancelled, nullptr);
    addControls();
}

void menuOptionChosen() {
    use(Means::MenuOption);
    if (dialog < 0) {
        makeDialogs();
    }
    CorGUIDialogLaunch(dialog);
}

void stateChanged(StateChange_e change, void*) {
    use(change == StateChange_HostQuit ? Means::End : Means::StateChange);
}

CorBool command(char*, char**) {
    use(Means::Macro);
    return FALSE;
}

} // namespace

void InitCorAddOn113() {
    if (ownName() == "loading") {
        return;
    }
    addOnId = CorUtilAddOnRegister(110, "Rule Breaker", "1", "somebody");
    CorUtilMenuAddOption("Animate", "Rules...", 1, menuOptionChosen);
    CorUtilMacroAddCommandCallback("Rule Breaker", command);
    CorUtilStateChangeAddListener(StateChangeMode_Synchronous, stateChanged, nullptr);
    use(Means::Entry);
}
