// An add-on that breaks the rules of its host, one command a rule.
#include "hostapi/CorHost.h"

#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

constexpr char macroName[] = "Bad Add-On";

CorAddOnID addOnId = nullptr;

void throwAnException() {
    throw std::out_of_range("row 7 of 5");
}

void throwANumber() {
    throw 7;
}

void leaveALock() {
    CorUtilLockStart(addOnId);
    CorUtilLockOn();
}

void giveBackALockOfNobody() {
    CorUtilLockFinish(addOnId);
}

void leaveDrawingSuspended() {
    CorUtilDrawGraphics(FALSE);
}

void freeAStringTwice() {
    char* text = CorUtilStringAlloc(100);
    char* copy = text;
    CorUtilStringDealloc(&text);
    CorUtilStringDealloc(&copy);
}

void freeAStringOfItsOwn() {
    char own[] = "on the stack";
    char* text = own;
    CorUtilStringDealloc(&text);
}

void freeAListTwiceAndUseIt() {
    CorArgList list = CorUtilArgListAlloc();
    CorArgList copy = list;
    CorArgList freed = list;
    CorUtilArgListDealloc(&list);
    CorUtilArgListAppendInt(freed, "IValue", 1);
    CorUtilStyleSet(freed);
    CorUtilStateChangeAddCallbackX(freed);
    CorUtilArgListDealloc(&copy);
}

void freeASetTwiceAndUseIt() {
    CorSet set = nullptr;
    if (!CorUtilZoneGetEnabled(&set)) {
        throw std::runtime_error("This command needs data.");
    }
    CorSet copy = set;
    CorSet freed = set;
    CorUtilSetDealloc(&set);
    CorUtilSetGetNextMember(freed, 0);
    CorUtilSetDealloc(&copy);
}

// What the thread is told is a failure each time, and nothing happens.
void callFromAThread() {
    bool isRefused = false;
    std::thread([&] {
        char* const text = CorUtilStringAlloc(10);
        const long frames = CorUtilFrameGetCount();
        CorUtilLockStart(addOnId);
        isRefused = CorUtilRedraw(TRUE) == FALSE && !text && frames == 0;
    }).join();
    if (!isRefused) {
        throw std::runtime_error("The host works on other threads.");
    }
}

void useAnIdOfNobody() {
    int anything = 0;
    const auto nobody = reinterpret_cast<CorAddOnID>(&anything);
    CorUtilLockStart(nobody);
    CorUtilLockFinish(nobody);
}

void throwInAListener(StateChange_e, void* clientData) {
    CorUtilStateChangeRemoveListener(&throwInAListener, clientData);
    CorUtilLockStart(addOnId);
    throw std::runtime_error("the listener has no ears");
}

void listenBadly() {
    static int ears = 0;
    CorUtilStateChangeAddListener(StateChangeMode_Synchronous, &throwInAListener, &ears);
}

void exitAsIfAllWereWell() {
    std::exit(EXIT_SUCCESS);
}

const std::map<std::string, std::function<void()>>& deeds() {
    static const std::map<std::string, std::function<void()>> all{
        {"throw an exception", throwAnException},
        {"throw a number", throwANumber},
        {"leave a lock", leaveALock},
        {"give back a lock of nobody", giveBackALockOfNobody},
        {"leave drawing suspended", leaveDrawingSuspended},
        {"free a string twice", freeAStringTwice},
        {"free a string of its own", freeAStringOfItsOwn},
        {"free a list twice", freeAListTwiceAndUseIt},
        {"free a set twice", freeASetTwiceAndUseIt},
        {"call from a thread", callFromAThread},
        {"use an id of nobody", useAnIdOfNobody},
        {"listen badly", listenBadly},
        {"exit", exitAsIfAllWereWell},
    };
    return all;
}

CorBool command(char* text, char** errorMessage) {
    if (std::strcmp(text, "hand over a message of its own") == 0) {
        static char message[] = "This text is not the host's to free.";
        *errorMessage = message;
        return FALSE;
    }
    deeds().at(text)();
    return TRUE;
}

} // namespace

extern "C" __attribute__((visibility("default"))) void InitCorAddOn113(void) {
    addOnId = CorUtilAddOnRegister(110, macroName, "1", "somebody");
    CorUtilMacroAddCommandCallback(macroName, command);
    // In the window every deed is an option, to be tried by hand.
    CorUtilMenuAddOption("Animate", "Throw", 1, throwAnException);
    CorUtilMenuAddOption("Animate", "Leave a Lock", 1, leaveALock);
    CorUtilMenuAddOption("Animate", "Leave Drawing Suspended", 1, leaveDrawingSuspended);
    CorUtilMenuAddOption("Animate", "Call from a Thread", 1, callFromAThread);
    // A lock that is never given back.
    CorUtilLockOn();
}
