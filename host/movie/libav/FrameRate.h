// Frame rates as exact fractions.
#pragma once

extern "C" {
#include <libavutil/rational.h>
}

namespace corvane::movie {

/// The fraction nearest to the frame rate with both terms up to largestTerm: 29.97 is 2997/100.
AVRational frameRate(double framesPerSecond, int largestTerm);

/// The distance between key frames: about a second, so that players seek quickly and little is lost
/// if the program is killed while it writes.
int picturesPerGroup(AVRational rate);

} // namespace corvane::movie
