// How one frame shows its data: plain values, compared to find out what changed.
#pragma once

#include "host/core/page/Vec3.h"

#include <array>
#include <string>
#include <vector>

namespace corvane::host {

struct Color {
    double red = 0.8; ///< each 0..1
    double green = 0.8;
    double blue = 0.8;

    friend bool operator==(const Color&, const Color&) = default;
};

/// What the plots of a frame are coloured by. A variable is the name of an array; for a vector
/// this means its length, and "name:X", "name:Y", "name:Z" its components.
struct ContourStyle {
    std::string variable;
    bool automaticRange = true;
    double minimum = 0.0; ///< used without automaticRange
    double maximum = 1.0;
    std::string colorMap = "Viridis"; ///< Viridis, Plasma, CoolWarm, Rainbow, Gray
    bool showLegend = true;

    friend bool operator==(const ContourStyle&, const ContourStyle&) = default;
};

/// The surface of one block: the cells of a surface block, the outside of a volume block.
struct SurfaceStyle {
    bool show = false;
    bool useContour = false; ///< coloured by the contour variable, else by color
    Color color;
    double opacity = 1.0; ///< 0..1
    bool showMesh = false;

    friend bool operator==(const SurfaceStyle&, const SurfaceStyle&) = default;
};

/// A plane cut through all volume blocks.
struct SliceStyle {
    bool show = false;
    int axis = 3; ///< 1, 2, 3: the plane stands across x, y, z
    double position = 0.0;
    bool useContour = true;
    Color color;
    double opacity = 1.0;

    friend bool operator==(const SliceStyle&, const SliceStyle&) = default;
};

/// A surface of constant value in all volume blocks.
struct IsoSurfaceStyle {
    bool show = false;
    std::string variable;
    double value = 0.0;
    bool useContour = true;
    Color color;
    double opacity = 1.0;

    friend bool operator==(const IsoSurfaceStyle&, const IsoSurfaceStyle&) = default;
};

/// Lines along a vector variable, from seeds.
struct StreamtraceStyle {
    bool show = false;
    std::string variable;
    /// 1 = line from seedStart to seedEnd, 2 = plane through three corners: seeds are spread
    /// evenly; 3 = seedPoints
    int seedKind = 1;
    Vec3 seedStart;
    Vec3 seedEnd;
    Vec3 seedCorner;        ///< third corner of a plane of seeds
    std::string seedPoints; ///< "x y z; x y z", as pointsFromText() reads it
    int seedCount = 20;     ///< along the line, and along each edge of a plane (there at most 100)
    int direction = 3;      ///< 1 forward, 2 backward, 3 both
    bool tubes = true;
    double radius = 0.0; ///< of the tubes; 0 = chosen from the size of the data
    bool useContour = true;
    Color color;

    friend bool operator==(const StreamtraceStyle&, const StreamtraceStyle&) = default;
};

/// Markers and dashes that travel along the streamtraces: with integration time t, markers stand at
/// t = timeAnchor + k deltaTime, dashes show where the fraction of (t − timeAnchor) / deltaTime is
/// below one half.
struct StreamTimingStyle {
    double timeAnchor = 0.0;
    double deltaTime = 1.0; ///< > 0
    bool showMarkers = false;
    bool showDashes = false;

    friend bool operator==(const StreamTimingStyle&, const StreamTimingStyle&) = default;
};

struct LightStyle {
    double intensity = 75.0;       ///< of the directional light, 0..100
    double backgroundLight = 30.0; ///< ambient, 0..100; both at 0 give black surfaces

    friend bool operator==(const LightStyle&, const LightStyle&) = default;
};

struct AnnotationStyle {
    bool showAxis = true;    ///< the orientation axis in the corner
    bool showOutline = true; ///< the box around the data
    bool showTime = false;   ///< the solution time as text
    std::string title;       ///< empty: none
    Color background{1.0, 1.0, 1.0};

    friend bool operator==(const AnnotationStyle&, const AnnotationStyle&) = default;
};

struct FrameStyle {
    static constexpr int sliceCount = 6;
    static constexpr int isoSurfaceCount = 6;

    ContourStyle contour;
    std::vector<SurfaceStyle> surfaces; ///< one for each block of the data
    std::array<SliceStyle, sliceCount> slices;
    std::array<IsoSurfaceStyle, isoSurfaceCount> isoSurfaces;
    StreamtraceStyle streamtraces;
    StreamTimingStyle streamTiming;
    LightStyle light;
    AnnotationStyle annotations;

    friend bool operator==(const FrameStyle&, const FrameStyle&) = default;
};

} // namespace corvane::host
