// A small add-on: tells how the active frame is looked at, on request of a menu or a macro.
#include "hostapi/CorHost.h"

#include <cstdio>
#include <cstring>
#include <numbers>
#include <stdexcept>
#include <string>

namespace {

constexpr int hostInterfaceNumber = 110;
constexpr char addOnName[] = "View Teller";
constexpr char tellCommand[] = "Tell";

CorAddOnID addOnId = nullptr;

// While one lives, the host does not draw its frames by itself.
class HostLock {
public:
    HostLock() { CorUtilLockStart(addOnId); }
    ~HostLock() { CorUtilLockFinish(addOnId); }
    HostLock(const HostLock&) = delete;
    HostLock& operator=(const HostLock&) = delete;
};

double degrees(double radians) {
    return radians * 180.0 / std::numbers::pi;
}

std::string currentView() {
    if (CorUtilFrameGetPlotType() != PlotType_Cartesian3D) {
        throw std::runtime_error("The active frame shows no 3D plot, so there is no view to tell.");
    }
    double psi = 0.0, theta = 0.0, alpha = 0.0;
    CorUtilThreeDViewGetViewerAngle(&psi, &theta, &alpha); // radians
    double x = 0.0, y = 0.0, z = 0.0;
    CorUtilThreeDViewGetViewerPos(&x, &y, &z);
    char text[256];
    std::snprintf(
        text, sizeof text,
        "The viewer stands at (%.3f, %.3f, %.3f); psi %.1f, theta %.1f, alpha %.1f degrees.", x, y,
        z, degrees(psi), degrees(theta), degrees(alpha));
    return text;
}

void record(const char* command) {
    if (CorUtilMacroIsRecordingActive()) {
        CorUtilMacroRecordExtCommand(addOnName, command);
    }
}

void tellView() {
    const HostLock lock;
    CorUtilDialogMessageBox(currentView().c_str(), MessageBox_Notice);
    record(tellCommand);
}

void menuOptionChosen() {
    try {
        tellView();
    } catch (const std::exception& error) {
        CorUtilDialogErrMsg(error.what());
    }
}

void giveToHost(const std::string& message, char** errorMessage) {
    *errorMessage = CorUtilStringAlloc(static_cast<long>(message.size()));
    if (*errorMessage) {
        std::memcpy(*errorMessage, message.c_str(), message.size() + 1);
    }
}

CorBool runCommand(char* commandString, char** errorMessage) {
    try {
        const std::string command = commandString;
        if (command != tellCommand) {
            throw std::runtime_error("There is no command \"" + command + "\"; there is " +
                                     tellCommand + ".");
        }
        tellView();
        return TRUE;
    } catch (const std::exception& error) {
        giveToHost(error.what(), errorMessage);
        return FALSE;
    }
}

} // namespace

void InitCorAddOn113() {
    CorUtilLockOn();
    addOnId = CorUtilAddOnRegister(hostInterfaceNumber, addOnName, "1.0", "The Corvane developers");
    CorUtilMenuAddOption("Animate", "Tell the &View", 1, menuOptionChosen);
    CorUtilMacroAddCommandCallback(addOnName, runCommand);
    CorUtilLockOff();
}
