// Columns of a key frame list, and small questions to the host's data set.
#pragma once

#include "addon/model/Records.h"

#include <vector>

namespace corvane::corutiltools {

// Brings an angle in degrees into -180..180, both ends included and left as they are. Values that
// are not finite stay what they are.
void ClampAngleTo180(double& angle);

// The columns replace what the output held.
void ExtractViews(const std::vector<KeyFrame_s>& keyFrames, std::vector<View>& views);
void ExtractFrameCounts(const std::vector<KeyFrame_s>& keyFrames,
                        std::vector<unsigned long>& counts);
void ExtractSolutionTimes(const std::vector<KeyFrame_s>& keyFrames, std::vector<double>& times);

// The frame counts of the key frames at the given indices, in the order of the indices, which may
// repeat. Throws std::out_of_range for an index without key frame; counts is then unchanged.
void ExtractFrameCountsForIndices(const std::vector<KeyFrame_s>& keyFrames,
                                  const std::vector<unsigned long>& indices,
                                  std::vector<unsigned long>& counts);

// Number of frames of a flight through all key frames: the counts of all but the last one, and one
// frame for the last one itself. A sum beyond the type stays at its largest value, so that a list
// which nobody can hold is refused for want of memory. The list must not be empty.
unsigned long GetTotalFrameCount(const std::vector<KeyFrame_s>& keyFrames);

// Smallest and largest solution time of the enabled zones. Without any, both stay as they are.
void GetSolutionTimeMinMax(double& minimum, double& maximum);

// Whether an enabled zone of the current data set changes with time.
bool DataSetIsTransient();

// Whether streamtraces show markers or dashes that an animation could move.
bool StreamtraceTimingIsEnabled();

} // namespace corvane::corutiltools
