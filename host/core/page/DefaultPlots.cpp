// The picture of data that the user has said nothing about yet.
#include "host/core/page/Frame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace corvane::host {

namespace {

constexpr std::array<double Vec3::*, 3> coordinates{&Vec3::x, &Vec3::y, &Vec3::z};

/// Extents that differ by less count as equal, since bounds carry rounding errors.
constexpr double extentTolerance = 1e-6;

const Variable* firstWith(const DataSet& data, int components) {
    const auto found =
        std::find_if(data.variables.begin(), data.variables.end(),
                     [components](const Variable& v) { return v.components == components; });
    return found == data.variables.end() ? nullptr : &*found;
}

bool hasVolumes(const DataSet& data) {
    return std::any_of(data.blocks.begin(), data.blocks.end(),
                       [](const Block& block) { return block.dimension >= 3; });
}

double middle(const Variable& variable) {
    return 0.5 * variable.minimum + 0.5 * variable.maximum;
}

/// The axes from the shortest extent to the longest one; z, y, x among equals.
std::array<std::size_t, 3> axesByExtent(const Vec3& size) {
    std::array<std::size_t, 3> axes{2, 1, 0};
    const double tolerance = extentTolerance * std::max({size.x, size.y, size.z});
    const auto rank = [&size, tolerance](std::size_t axis) {
        const double extent = size.*coordinates[axis];
        return tolerance > 0.0 ? std::round(extent / tolerance) : extent;
    };
    std::stable_sort(axes.begin(), axes.end(),
                     [&rank](std::size_t a, std::size_t b) { return rank(a) < rank(b); });
    return axes;
}

void chooseContour(ContourStyle& contour, const Variable* variable) {
    contour = {};
    contour.showLegend = variable != nullptr;
    if (variable != nullptr) {
        contour.variable = variable->name;
        contour.minimum = variable->minimum;
        contour.maximum = variable->maximum;
    }
}

/// Beside volumes surfaces are scenery, and colour belongs to what shows the inside.
void chooseSurfaces(FrameStyle& style, const DataSet& data) {
    const bool contoured = !style.contour.variable.empty() && !hasVolumes(data);
    for (std::size_t i = 0; i < style.surfaces.size(); ++i) {
        SurfaceStyle& surface = style.surfaces[i];
        surface = {};
        surface.show = data.blocks[i].dimension < 3;
        surface.useContour = contoured;
    }
}

/// All slots cut through the centre; the first one is shown, across the shortest extent.
void chooseSlices(FrameStyle& style, const DataSet& data, const Bounds& box) {
    const std::size_t shortest = axesByExtent(box.size()).front();
    for (SliceStyle& slice : style.slices) {
        slice = {};
        slice.axis = static_cast<int>(shortest) + 1;
        slice.position = box.center().*coordinates[shortest];
        slice.useContour = !style.contour.variable.empty();
    }
    style.slices.front().show = hasVolumes(data);
}

void chooseIsoSurfaces(FrameStyle& style, const Variable* variable) {
    for (IsoSurfaceStyle& surface : style.isoSurfaces) {
        surface = {};
        if (variable != nullptr) {
            surface.variable = variable->name;
            surface.value = middle(*variable);
        }
    }
}

/// Most flow follows the longest extent, so seeds stand across it.
void chooseSeeds(StreamtraceStyle& traces, const Bounds& box) {
    constexpr double half = 0.4; // of the extent: seeds on the boundary leave at once
    const auto [third, second, longest] = axesByExtent(box.size());
    Vec3 reach;
    reach.*coordinates[second] = half * box.size().*coordinates[second];
    traces.seedStart = box.center() - reach;
    traces.seedEnd = box.center() + reach;
    traces.seedCorner = traces.seedStart;
    traces.seedCorner.*coordinates[third] += half * box.size().*coordinates[third];
}

void chooseStreamtraces(FrameStyle& style, const Bounds& box, const Variable* vector) {
    style.streamtraces = {};
    style.streamTiming = {};
    chooseSeeds(style.streamtraces, box);
    if (vector == nullptr) {
        return;
    }
    style.streamtraces.variable = vector->name;
    // A marker for each tenth of the way through the data.
    const double deltaTime = 0.1 * box.diagonal() / vector->maximum;
    if (std::isnormal(deltaTime) && deltaTime > 0.0) {
        style.streamTiming.deltaTime = deltaTime;
    }
}

void chooseAnnotations(AnnotationStyle& annotations, const DataSet& data) {
    annotations.showOutline = hasVolumes(data);
    annotations.showTime = data.isTransient();
    annotations.title.clear();
}

void chooseView(Frame& frame, const Bounds& box) {
    frame.view = {};
    frame.view.psi = 65.0;
    frame.view.theta = 30.0;
    fit(frame.view, box, frame.placement.aspect());
}

/// Static zones have no time of their own, so they count only where nothing else is.
double firstTime(const DataSet& data) {
    const bool transient = data.isTransient();
    double first = std::numeric_limits<double>::infinity();
    for (const Zone& zone : data.zones) {
        if (zone.enabled && (zone.strand > 0 || !transient)) {
            first = std::min(first, zone.solutionTime);
        }
    }
    return std::isfinite(first) ? first : 0.0;
}

Bounds finiteBounds(const Bounds& bounds) {
    const bool usable = !bounds.isEmpty() && isFinite(bounds.min) && isFinite(bounds.max);
    return usable ? bounds : Bounds{{}, {}};
}

} // namespace

/// Volumes show one slice through the centre, across the shortest extent, and their outline; of
/// anything else the cells themselves are shown. Colours follow the length of the first vector,
/// else the first scalar. What is not shown is set to values that make sense once it is.
void chooseDefaultPlots(Frame& frame) {
    if (!frame.data()) {
        return;
    }
    const DataSet& data = *frame.data();
    const Variable* vector = firstWith(data, 3);
    const Variable* scalar = firstWith(data, 1);
    const Bounds box = finiteBounds(data.bounds);
    chooseContour(frame.style.contour, vector != nullptr ? vector : scalar);
    chooseSurfaces(frame.style, data);
    chooseSlices(frame.style, data, box);
    chooseIsoSurfaces(frame.style, scalar != nullptr ? scalar : vector);
    chooseStreamtraces(frame.style, box, vector);
    chooseAnnotations(frame.style.annotations, data);
    chooseView(frame, data.bounds);
    frame.solutionTime = firstTime(data);
}

} // namespace corvane::host
