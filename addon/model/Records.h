// The plain records that dialogs, files, macro commands and the engine hand to each other.
#pragma once

#include "addon/model/View.h"

#include <cstdint>
#include <string>

namespace corvane::corutiltools {

// How solution time runs over the frames of a flight.
enum TimeAnimationOperation_e : std::int32_t {
    TimeAnimationOperation_Forward = 0,
    TimeAnimationOperation_Loop = 1,
    TimeAnimationOperation_Bounce = 2,
    TimeAnimationOperation_AsCaptured = 3
};

// Where a flight goes.
enum Destination_e : std::int32_t { Destination_OnScreen = 0, Destination_ToFile = 1 };

// Whether a flight is recorded as a command while the host records a macro.
enum MacroOption_e : std::int32_t { MacroOption_Record = 0, MacroOption_DoNotRecord = 1 };

// One stop of the camera.
struct KeyFrame_s {
    View view;
    std::string name; // may be empty
    unsigned long
        frameCount;      // frames from here to the next key frame; the last one's does not count
    double solutionTime; // shown here when time is animated as captured
};

// Equal in view, name, frame count and solution time.
bool operator==(const KeyFrame_s& left, const KeyFrame_s& right);

struct TimeAnimationOptions_s {
    bool animateTime;
    TimeAnimationOperation_e operation;
    unsigned long numCycles; // of Loop and Bounce; 0 counts as 1
};

// None of the records sets defaults; the main dialog starts from forward time, one cycle, on screen
// and every option off.
struct Settings_s {
    TimeAnimationOptions_s timeOptions; // first, so that settings lead with their time options
    Destination_e destination;
    bool animateStreamtraces;
    bool fadeIn;
    bool fadeOut;
};

} // namespace corvane::corutiltools
