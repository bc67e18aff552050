// Macro commands about the view and what a frame shows.
#include "host/core/base/Text.h"
#include "host/core/commands/MacroCommands.h"
#include "host/core/page/StyleBindings.h"

#include <array>

namespace corvane::host {

namespace {

/// Angles that look along an axis, with z upwards where that is possible.
struct AxisView {
    const char* axis;
    double psi;
    double theta;
};

constexpr std::array<AxisView, 6> axisViews{{{"+X", 90.0, 270.0},
                                             {"-X", 90.0, 90.0},
                                             {"+Y", 90.0, 180.0},
                                             {"-Y", 90.0, 0.0},
                                             {"+Z", 0.0, 0.0},
                                             {"-Z", 180.0, 0.0}}};

const AxisView& axisViewFrom(const std::string& name) {
    for (const AxisView& view : axisViews) {
        if (equalIgnoringCase(view.axis, name)) {
            return view;
        }
    }
    reject("There is no axis \"" + name + "\"; there are +X, -X, +Y, -Y, +Z and -Z.");
}

const Frame& spatialFrame(Session& session) {
    const Frame* const frame = session.page().currentSpatial();
    if (frame == nullptr) {
        reject("There is no 3D frame that has a view.");
    }
    return *frame;
}

void fitView(Session& session) {
    if (!session.fitView()) {
        reject("There are no 3D data that the view could be fitted to.");
    }
}

void lookAlong(Session& session, const std::string& axis) {
    const AxisView& wanted = axisViewFrom(axis);
    View3D view = spatialFrame(session).view;
    view.psi = wanted.psi;
    view.theta = wanted.theta;
    view.alpha = 0.0;
    session.setView(view);
    fitView(session);
}

/// The path below "ThreeDView" that a short name stands for.
struct ViewName {
    const char* name;
    StylePath path;
};

const std::vector<ViewName>& viewNames() {
    static const std::vector<ViewName> names{{"Psi", {"ThreeDView", "PSIAngle"}},
                                             {"Theta", {"ThreeDView", "ThetaAngle"}},
                                             {"Alpha", {"ThreeDView", "AlphaAngle"}},
                                             {"X", {"ThreeDView", "ViewerPosition", "X"}},
                                             {"Y", {"ThreeDView", "ViewerPosition", "Y"}},
                                             {"Z", {"ThreeDView", "ViewerPosition", "Z"}},
                                             {"OriginX", {"ThreeDView", "RotationOrigin", "X"}},
                                             {"OriginY", {"ThreeDView", "RotationOrigin", "Y"}},
                                             {"OriginZ", {"ThreeDView", "RotationOrigin", "Z"}},
                                             {"FieldOfView", {"ThreeDView", "FieldOfView"}},
                                             {"Perspective", {"ThreeDView", "DrawInPerspective"}},
                                             {"Width", {"ThreeDView", "ViewWidth"}}};
    return names;
}

const StylePath& pathOf(const std::string& name) {
    for (const ViewName& known : viewNames()) {
        if (equalIgnoringCase(known.name, name)) {
            return known.path;
        }
    }
    reject("A view has no value \"" + name + "\".");
}

void setValue(StyleTree& values, const std::string& name, const std::string& text) {
    const bool isFlag = equalIgnoringCase(name, "Perspective");
    const StyleInput value =
        isFlag ? StyleInput(booleanFrom(text) ? 1L : 0L) : StyleInput(numberFrom(text));
    switch (values.set(pathOf(name), value)) {
    case StyleSet_NotAllowed:
        reject("The width of a view can be set without perspective only.");
    case StyleSet_BadValue:
        reject(name + " cannot be \"" + text + "\".");
    default:
        return;
    }
}

/// Tries the values on a copy first, so that a view is set as a whole or not at all.
void setView(Session& session, const std::vector<std::string>& words) {
    constexpr const char* form = "SET name = value [name = value ...]";
    expect(words.size() > 1, form);
    View3D view = spatialFrame(session).view;
    StyleTree values;
    bindViewStyles(values, view);
    for (const auto& [name, text] : settingsOf(words, 1, form)) {
        setValue(values, name, text);
    }
    session.setView(view);
}

} // namespace

void changeView(const MacroCall& call) {
    constexpr const char* form = "FIT, AXIS = axis, or SET name = value";
    const std::vector<std::string>& words = call.words;
    expect(!words.empty(), form);
    if (equalIgnoringCase(words[0], "FIT")) {
        expect(words.size() == 1, form);
        fitView(call.session);
    } else if (equalIgnoringCase(words[0], "AXIS")) {
        expect(words.size() == 3 && words[1] == "=", "AXIS = axis");
        lookAlong(call.session, words[2]);
    } else {
        expect(equalIgnoringCase(words[0], "SET"), form);
        setView(call.session, words);
    }
}

void setPlotType(const MacroCall& call) {
    constexpr const char* form = "= CARTESIAN3D or = CARTESIAN2D";
    const std::string& value = valueOf(call.words, form);
    const bool spatial = equalIgnoringCase(value, "CARTESIAN3D");
    expect(spatial || equalIgnoringCase(value, "CARTESIAN2D"), form);
    if (!call.session.setPlotType(spatial ? PlotType_Cartesian3D : PlotType_Cartesian2D)) {
        reject("There is no frame.");
    }
}

void redraw(const MacroCall& call) {
    expect(call.words.empty(), "nothing behind the command");
    call.session.drawing().redraw(true);
}

} // namespace corvane::host
