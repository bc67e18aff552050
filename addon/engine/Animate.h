// Plays a flight at the word of the user or a macro.
#pragma once

#include "addon/model/Records.h"

#include <vector>

namespace corvane::corutiltools {

// Plays a flight through the key frames, on screen or to a file, and returns when it is over.
//   count equal to the number of key frames plays everything, whatever startIndex says; otherwise
//   the flight runs from key frame startIndex up to and including key frame startIndex + count.
// Throws KeyFrameError on every failure and when the user stops it. On every way out the host's
// lock, status line, lists, light, axis, anchor and export are as they should be; the view of the
// last drawn frame stays.
void Animate(const std::vector<KeyFrame_s>& keyFrames, unsigned long startIndex,
             unsigned long count, const Settings_s& settings, MacroOption_e macroOption);

} // namespace corvane::corutiltools
