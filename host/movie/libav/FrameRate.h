// Speeds of movies as exact fractions.
#pragma once

extern "C" {
#include <libavutil/rational.h>
}

namespace corvane::movie {

/// The fraction with both terms up to largestTerm that is nearest to the speed: 29.97 is 2997/100.
AVRational frameRate(double framesPerSecond, int largestTerm);

/// Pictures from one key picture to the next: about a second, so that players seek quickly and
/// little is lost of a movie whose writer was killed.
int picturesPerGroup(AVRational rate);

} // namespace corvane::movie
