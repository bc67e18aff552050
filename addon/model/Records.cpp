// The plain records that dialogs, files, macro commands and the engine hand to each other.
#include "addon/model/Records.h"

#include <cstddef>

namespace corvane::corutiltools {

static_assert(offsetof(Settings_s, timeOptions) == 0);
static_assert(sizeof(unsigned long) == 8, "frame counts are unsigned 64-bit numbers");

bool operator==(const KeyFrame_s& left, const KeyFrame_s& right) {
    return left.view == right.view && left.name == right.name &&
           left.frameCount == right.frameCount && left.solutionTime == right.solutionTime;
}

} // namespace corvane::corutiltools
