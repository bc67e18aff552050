// The 3D view of one frame: plain data, and the arithmetic that moves it.
#pragma once

#include "host/core/page/Vec3.h"
#include "hostapi/CorEnums.h"

namespace corvane::host {

/// Where the viewer stands and how the picture is turned. Angles are in degrees and unbounded:
/// nothing here normalises them, since a flight between two views depends on their difference.
///
/// With psi ψ and theta θ the unit vector from the scene toward the viewer is
/// d = (−sin ψ sin θ, −sin ψ cos θ, cos ψ), and before the twist the picture's up vector is
/// u = (cos ψ sin θ, cos ψ cos θ, sin ψ), its right vector u × d. Alpha turns both about d,
/// counter-clockwise in the picture.
///
/// position, width and fieldOfView are independent: switching perspective changes none of them.
struct View3D {
    double psi = 0.0;
    double theta = 0.0;
    double alpha = 0.0;
    Vec3 position;      ///< the viewer, data coordinates
    double width = 1.0; ///< horizontal extent of the picture without perspective, > 0
    bool perspective = true;
    double fieldOfView = 30.0; ///< vertical, degrees, in (0, 180); used with perspective
    Vec3 rotationOrigin;       ///< what rotations keep in its place in the picture

    friend bool operator==(const View3D&, const View3D&) = default;
};

/// The directions of a picture in data coordinates: orthonormal, right × up = toViewer.
struct ViewBasis {
    Vec3 right;
    Vec3 up;
    Vec3 toViewer;
};

ViewBasis basisOf(const View3D& view);

/// Adds the amount (degrees) to psi, theta or alpha and carries the viewer rigidly about the
/// rotation origin O: P' = O + R' Rᵀ (P − O), R = [right up toViewer].
void rotate(View3D& view, RotateAxis_e axis, double degrees);

/// Makes the box fill a picture of the given aspect (width / height) and its centre the rotation
/// origin. Angles, perspective and field of view stay. Position and width are both set, so that the
/// picture fits with perspective on and off. An empty or non-finite box changes nothing; a box
/// without extent is treated as one of extent 1.
void fit(View3D& view, const Bounds& box, double aspect);

} // namespace corvane::host
