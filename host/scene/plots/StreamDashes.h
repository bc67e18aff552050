// Dashes that travel along traces.
#pragma once

#include <vtkActor.h>
#include <vtkPolyDataMapper.h>

namespace corvane::scene {

/// Prepares the actor for dashes; to be called once, before it is first drawn. A shader cuts out
/// the dashes, so that moving them changes a uniform and no geometry.
void prepareDashes(vtkActor& actor, vtkPolyDataMapper& mapper);

/// Shows the parts where the fraction of (t - anchor) / interval is below one half, with the
/// integration time t.
void setDashes(vtkActor& actor, double anchor, double interval);
void setNoDashes(vtkActor& actor);

} // namespace corvane::scene
