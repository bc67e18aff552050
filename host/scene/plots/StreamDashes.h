// Dashes that travel along traces.
#pragma once

#include <vtkActor.h>
#include <vtkPolyDataMapper.h>

namespace corvane::scene {

/// Readies the actor for dashes; once, before it is drawn first. The dashes are cut out while the
/// traces are drawn, so that moving them costs a number and no geometry.
void prepareDashes(vtkActor& actor, vtkPolyDataMapper& mapper);

/// Shows the parts where the fraction of (t - anchor) / interval is below one half, with the
/// integration time t.
void setDashes(vtkActor& actor, double anchor, double interval);
void setNoDashes(vtkActor& actor);

} // namespace corvane::scene
