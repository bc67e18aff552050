// One step of the host's camera from a view towards another.
#pragma once

#include "addon/model/View.h"

namespace corvane::corutiltools {

// Moves the host's 3D view from the given view by 1/stepsToGo of the way to the target and returns
// the view that the host then shows. Angles take the short way round and are turned by the host
// itself; position and width are moved by equal shares of what the turn leaves over. Leaves no lock
// and no suspended drawing behind, also when the host throws. Throws KeyFrameError when the active
// frame is no 3D Cartesian plot.
//   stepsToGo   steps from the given view to the target, this one included; at least 1
View StepTowards(const View& from, const View& target, double stepsToGo);

} // namespace corvane::corutiltools
