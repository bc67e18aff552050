// The values of an EnSight Gold variable.
#pragma once

#include "host/scene/formats/ensight/EnSightCase.h"
#include "host/scene/formats/ensight/EnSightGeometry.h"

namespace corvane::scene {

/// Adds the variable to the meshes of the parts that it has values for; in a file of several
/// states, those at the index. Cells without values have NaN. Throws ReadFailure: what follows
/// the file's name in a sentence.
void readEnSightValues(EnSightInput& input, int index, const EnSightVariable& variable,
                       EnSightParts& parts);

} // namespace corvane::scene
