// Binds paths of keywords to the values of a frame.
#include "host/core/page/StyleBindings.h"

#include "host/core/page/PointList.h"

#include <limits>
#include <utility>

namespace corvane::host {

namespace {

constexpr double leastPositive = std::numeric_limits<double>::min();
constexpr double unlimited = std::numeric_limits<double>::max();

/// Binds values below one path, so that each line names nothing but its own keyword.
class Group {
public:
    Group(StyleTree& tree, StylePath path, StyleEffect effect = StyleEffect::Picture)
        : m_tree(tree), m_path(std::move(path)), m_effect(effect) {}

    Group below(const std::string& keyword) const { return {m_tree, pathOf(keyword), m_effect}; }

    void flag(const std::string& keyword, bool& value) const { bind(leaf(keyword, &value)); }
    void text(const std::string& keyword, std::string& value,
              std::vector<std::string> choices = {}) const {
        StyleLeaf bound = leaf(keyword, &value);
        bound.choices = std::move(choices);
        bind(std::move(bound));
    }
    void name(const std::string& keyword, std::string& value, const NameCheck& accepts) const {
        StyleLeaf bound = leaf(keyword, &value);
        bound.accepts = accepts;
        bind(std::move(bound));
    }
    void integer(const std::string& keyword, int& value, int minimum, int maximum) const {
        bind(ranged(leaf(keyword, &value), minimum, maximum));
    }
    void number(const std::string& keyword, double& value, double minimum = -unlimited,
                double maximum = unlimited) const {
        bind(ranged(leaf(keyword, &value), minimum, maximum));
    }
    void positiveWhile(const std::string& keyword, double& value, std::function<bool()> isAllowed,
                       const char* needs) const {
        StyleLeaf bound = ranged(leaf(keyword, &value), leastPositive, unlimited);
        bound.isAllowed = std::move(isAllowed);
        bound.needs = needs;
        bind(std::move(bound));
    }
    void flagWhile(const std::string& keyword, bool& value, std::function<bool()> isAllowed,
                   const char* needs) const {
        StyleLeaf bound = leaf(keyword, &value);
        bound.isAllowed = std::move(isAllowed);
        bound.needs = needs;
        bind(std::move(bound));
    }
    void point(const std::string& keyword, Vec3& value) const {
        const Group group = below(keyword);
        group.number("X", value.x);
        group.number("Y", value.y);
        group.number("Z", value.z);
    }
    void color(const std::string& keyword, Color& value) const {
        const Group group = below(keyword);
        group.number("Red", value.red, 0.0, 1.0);
        group.number("Green", value.green, 0.0, 1.0);
        group.number("Blue", value.blue, 0.0, 1.0);
    }

private:
    StylePath pathOf(const std::string& keyword) const {
        StylePath path = m_path;
        path.push_back(keyword);
        return path;
    }
    template <typename T>
    StyleLeaf leaf(const std::string& keyword, T* target) const {
        StyleLeaf bound;
        bound.path = pathOf(keyword);
        bound.target = target;
        bound.effect = m_effect;
        return bound;
    }
    static StyleLeaf ranged(StyleLeaf bound, double minimum, double maximum) {
        bound.minimum = minimum;
        bound.maximum = maximum;
        return bound;
    }
    void bind(StyleLeaf bound) const { m_tree.bind(std::move(bound)); }

    StyleTree& m_tree;
    StylePath m_path;
    StyleEffect m_effect;
};

void bindContour(StyleTree& tree, ContourStyle& contour, const NameCheck& isQuantity) {
    const Group group(tree, {"Contour"});
    group.name("Variable", contour.variable, isQuantity);
    group.flag("AutomaticRange", contour.automaticRange);
    group.number("Minimum", contour.minimum);
    group.number("Maximum", contour.maximum);
    group.text("ColorMap", contour.colorMap, {"Viridis", "Plasma", "CoolWarm", "Rainbow", "Gray"});
    group.flag("ShowLegend", contour.showLegend);
}

void bindSurface(const Group& group, SurfaceStyle& surface) {
    group.flag("Show", surface.show);
    group.flag("UseContour", surface.useContour);
    group.color("Color", surface.color);
    group.number("Opacity", surface.opacity, 0.0, 1.0);
    group.flag("ShowMesh", surface.showMesh);
}

void bindSlice(const Group& group, SliceStyle& slice) {
    group.flag("Show", slice.show);
    group.integer("Axis", slice.axis, 1, 3);
    group.number("Position", slice.position);
    group.flag("UseContour", slice.useContour);
    group.color("Color", slice.color);
    group.number("Opacity", slice.opacity, 0.0, 1.0);
}

void bindIsoSurface(const Group& group, IsoSurfaceStyle& surface, const NameCheck& isQuantity) {
    group.flag("Show", surface.show);
    group.name("Variable", surface.variable, isQuantity);
    group.number("Value", surface.value);
    group.flag("UseContour", surface.useContour);
    group.color("Color", surface.color);
    group.number("Opacity", surface.opacity, 0.0, 1.0);
}

void bindStreamtraces(StyleTree& tree, StreamtraceStyle& traces, const DataChecks& data) {
    const Group group(tree, {"Streamtraces"});
    group.flagWhile("Show", traces.show, data.mayHaveVectors,
                    "Streamtraces follow a vector variable, and the data have none.");
    group.name("Variable", traces.variable, data.isVector);
    group.integer("SeedKind", traces.seedKind, 1, 3);
    group.point("SeedStart", traces.seedStart);
    group.point("SeedEnd", traces.seedEnd);
    group.point("SeedCorner", traces.seedCorner);
    group.name("SeedPoints", traces.seedPoints,
               [](const std::string& text) { return pointsFromText(text).has_value(); });
    group.integer("SeedCount", traces.seedCount, 1, 10000);
    group.integer("Direction", traces.direction, 1, 3);
    group.flag("Tubes", traces.tubes);
    group.number("Radius", traces.radius, 0.0);
    group.flag("UseContour", traces.useContour);
    group.color("Color", traces.color);
}

void bindStreamTiming(StyleTree& tree, StreamTimingStyle& timing) {
    const Group group(tree, {"StreamAttributes", "StreamTiming"});
    group.number("TimeAnchor", timing.timeAnchor);
    group.number("DeltaTime", timing.deltaTime, leastPositive);
    group.flag("ShowMarkers", timing.showMarkers);
    group.flag("ShowDashes", timing.showDashes);
}

void bindAnnotations(StyleTree& tree, AnnotationStyle& annotations) {
    Group(tree, {"ThreeDAxis", "FrameAxis"}).flag("Show", annotations.showAxis);
    const Group group(tree, {"Annotations"});
    group.flag("ShowOutline", annotations.showOutline);
    group.flag("ShowTime", annotations.showTime);
    group.text("Title", annotations.title);
    group.color("Background", annotations.background);
}

void bindLight(StyleTree& tree, LightStyle& light) {
    const Group group(tree, {"GlobalThreeD", "LightSource"});
    group.number("Intensity", light.intensity, 0.0, 100.0);
    group.number("BackgroundLight", light.backgroundLight, 0.0, 100.0);
}

/// Keywords of numbered values count from 1.
template <typename Values, typename Bind>
void bindNumbered(const Group& group, Values& values, Bind bind) {
    int number = 0;
    for (auto& value : values) {
        bind(group.below(std::to_string(++number)), value);
    }
}

} // namespace

void bindViewStyles(StyleTree& tree, View3D& view) {
    const Group group(tree, {"ThreeDView"}, StyleEffect::View);
    group.number("PSIAngle", view.psi);
    group.number("ThetaAngle", view.theta);
    group.number("AlphaAngle", view.alpha);
    group.point("ViewerPosition", view.position);
    group.flag("DrawInPerspective", view.perspective);
    group.positiveWhile(
        "ViewWidth", view.width, [&view] { return !view.perspective; },
        "Switch perspective off first.");
    group.number("FieldOfView", view.fieldOfView, 0.1, 179.0);
    group.point("RotationOrigin", view.rotationOrigin);
}

void bindPlotStyles(StyleTree& tree, FrameStyle& style, const DataChecks& data) {
    bindLight(tree, style.light);
    bindStreamTiming(tree, style.streamTiming);
    bindContour(tree, style.contour, data.isQuantity);
    bindNumbered(Group(tree, {"Slice"}), style.slices, bindSlice);
    bindNumbered(Group(tree, {"IsoSurface"}), style.isoSurfaces,
                 [&data](const Group& group, IsoSurfaceStyle& surface) {
                     bindIsoSurface(group, surface, data.isQuantity);
                 });
    bindStreamtraces(tree, style.streamtraces, data);
    bindAnnotations(tree, style.annotations);
}

void bindSurfaceStyles(StyleTree& tree, std::vector<SurfaceStyle>& surfaces) {
    tree.unbind("Surface");
    bindNumbered(Group(tree, {"Surface"}), surfaces, bindSurface);
}

} // namespace corvane::host
