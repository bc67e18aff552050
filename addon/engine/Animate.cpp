// The main loop of a flight.
#include "addon/engine/Animate.h"

#include "addon/base/EnumMap.h"
#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/engine/AnimationManager.h"
#include "addon/engine/Status.h"
#include "addon/engine/SuspendDisplayLists.h"
#include "addon/macro/MacroManager.h"
#include "hostapi/CorHost.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace corvane::corutiltools {

namespace {

void playFrames(AnimationManager& manager, Status& status) {
    while (manager.hasNextFrame() && !status.isCanceled()) {
        manager.drawNextFrame();
        ++status;
    }
    if (status.isCanceled()) {
        manager.cancelAnimation();
        CorUtilRedraw(TRUE);
        throw KeyFrameError("Animation canceled.");
    }
}

void recordFlight(Destination_e destination, MacroOption_e macroOption) {
    if (macroOption == MacroOption_Record && CorUtilMacroIsRecordingActive()) {
        const std::vector<std::pair<Parameter_e, std::string>> parameters{
            {Parameter_AnimationDestination,
             EnumMap<Destination_e>::instance().toString(destination)}};
        MacroManager::instance().recordCommand(Command_Animate, parameters);
    }
}

// What lives in here ends in reverse order: the display lists come back, the percent-done display
// ends, and then the chain goes, putting back what it changed or finishing the file.
void play(const std::vector<KeyFrame_s>& keyFrames, unsigned long startIndex, unsigned long count,
          const Settings_s& settings, MacroOption_e macroOption) {
    AnimationManager manager(keyFrames, startIndex, count, settings);
    Status status(static_cast<double>(manager.numFrames()), "Animating....");
    const SuspendDisplayLists displayListsOff;
    playFrames(manager, status);
    recordFlight(settings.destination, macroOption);
}

[[noreturn]] void throwOutOfMemory() {
    throw KeyFrameError("Not enough memory to produce the animation.\n"
                        "Try reducing the number of total frames in the animation.");
}

} // namespace

void Animate(const std::vector<KeyFrame_s>& keyFrames, unsigned long startIndex,
             unsigned long count, const Settings_s& settings, MacroOption_e macroOption) {
    const HostLock lock;
    if (CorUtilFrameGetPlotType() != PlotType_Cartesian3D) {
        throw KeyFrameError("The current frame must be in 3D Cartesian mode.");
    }
    // A list too long for a vector shows as a logic error, so all of them are taken for want of
    // memory.
    try {
        play(keyFrames, startIndex, count, settings, macroOption);
    } catch (const std::logic_error&) {
        throwOutOfMemory();
    } catch (const std::bad_alloc&) {
        throwOutOfMemory();
    }
}

} // namespace corvane::corutiltools
