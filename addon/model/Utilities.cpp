// Columns of a key frame list, and small questions to the host's data set.
#include "addon/model/Utilities.h"

#include "addon/model/EnabledZones.h"
#include "hostapi/CorHost.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvane::corutiltools {

namespace {

// Replaces the output by one value of each key frame. The output is touched only when all are
// there.
template <class Value>
void extractColumn(const std::vector<KeyFrame_s>& keyFrames, Value KeyFrame_s::*field,
                   std::vector<Value>& output) {
    std::vector<Value> column;
    column.reserve(keyFrames.size());
    for (const KeyFrame_s& keyFrame : keyFrames) {
        column.push_back(keyFrame.*field);
    }
    output.swap(column);
}

unsigned long saturatedSum(unsigned long left, unsigned long right) {
    const unsigned long largest = std::numeric_limits<unsigned long>::max();
    return right > largest - left ? largest : left + right;
}

} // namespace

void ClampAngleTo180(double& angle) {
    if (!std::isfinite(angle)) {
        return;
    }
    // Far out, steps of 360 would be many, and past 2^53 they would not change the angle at all.
    if (std::abs(angle) > 1e6) {
        angle = std::fmod(angle, 360.0);
    }
    while (angle > 180.0) {
        angle -= 360.0;
    }
    while (-180.0 > angle) {
        angle += 360.0;
    }
}

void ExtractViews(const std::vector<KeyFrame_s>& keyFrames, std::vector<View>& views) {
    extractColumn(keyFrames, &KeyFrame_s::view, views);
}

void ExtractFrameCounts(const std::vector<KeyFrame_s>& keyFrames,
                        std::vector<unsigned long>& counts) {
    extractColumn(keyFrames, &KeyFrame_s::frameCount, counts);
}

void ExtractSolutionTimes(const std::vector<KeyFrame_s>& keyFrames, std::vector<double>& times) {
    extractColumn(keyFrames, &KeyFrame_s::solutionTime, times);
}

void ExtractFrameCountsForIndices(const std::vector<KeyFrame_s>& keyFrames,
                                  const std::vector<unsigned long>& indices,
                                  std::vector<unsigned long>& counts) {
    std::vector<unsigned long> chosen;
    chosen.reserve(indices.size());
    for (unsigned long index : indices) {
        chosen.push_back(keyFrames.at(index).frameCount);
    }
    counts.swap(chosen);
}

unsigned long GetTotalFrameCount(const std::vector<KeyFrame_s>& keyFrames) {
    unsigned long total = 1;
    // The last key frame's own count leads nowhere and is ignored.
    for (std::size_t i = 0; i + 1 < keyFrames.size(); ++i) {
        total = saturatedSum(total, keyFrames[i].frameCount);
    }
    return total;
}

void GetSolutionTimeMinMax(double& minimum, double& maximum) {
    const EnabledZones zones;
    bool isFirst = true;
    for (long zone = zones.next(0); zone != 0; zone = zones.next(zone)) {
        const double time = CorUtilZoneGetSolutionTime(zone);
        minimum = isFirst ? time : std::min(minimum, time);
        maximum = isFirst ? time : std::max(maximum, time);
        isFirst = false;
    }
}

bool DataSetIsTransient() {
    if (!CorUtilDataSetIsAvailable()) {
        return false;
    }
    const EnabledZones zones;
    for (long zone = zones.next(0); zone != 0; zone = zones.next(zone)) {
        if (CorUtilZoneGetStrandID(zone) > 0) {
            return true;
        }
    }
    return false;
}

bool StreamtraceTimingIsEnabled() {
    const toolbox::StyleValue timing("StreamAttributes", "StreamTiming");
    bool showMarkers = false;
    timing.getBoolean(showMarkers, "ShowMarkers");
    bool showDashes = false;
    timing.getBoolean(showDashes, "ShowDashes");
    return showMarkers || showDashes;
}

} // namespace corvane::corutiltools
