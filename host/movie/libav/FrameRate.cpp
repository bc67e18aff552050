#include "host/movie/libav/FrameRate.h"

#include <algorithm>
#include <cmath>

namespace corvane::movie {

AVRational frameRate(double framesPerSecond, int largestTerm) {
    return av_d2q(framesPerSecond, largestTerm);
}

int picturesPerGroup(AVRational rate) {
    return std::max(1, static_cast<int>(std::lround(av_q2d(rate))));
}

} // namespace corvane::movie
