// What the page shows, as a macro that shows it again.
#include "host/core/macro/SceneMacro.h"

#include "host/core/Application.h"
#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroVariables.h"
#include "host/core/macro/MacroWords.h"

#include <algorithm>
#include <filesystem>
#include <variant>

namespace corvane::host {

namespace {

using Words = std::vector<std::string>;

struct TextOf {
    std::string operator()(const bool* value) const { return *value ? "true" : "false"; }
    std::string operator()(const int* value) const { return std::to_string(*value); }
    std::string operator()(const double* value) const { return exactText(*value); }
    std::string operator()(const std::string* value) const { return *value; }
};

std::string text(const StyleLeaf& leaf) {
    return std::visit(TextOf{}, leaf.target);
}

class Lines {
public:
    void add(const std::string& command, Words words) {
        for (std::string& word : words) {
            word = MacroVariables::escaped(word);
        }
        m_lines.push_back(macroLine(command, words));
    }
    Words take() { return std::move(m_lines); }

private:
    Words m_lines;
};

Words placementWords(const Placement& place) {
    return {"CREATE",
            "X",
            "=",
            exactText(place.x),
            "Y",
            "=",
            exactText(place.y),
            "Width",
            "=",
            exactText(place.width),
            "Height",
            "=",
            exactText(place.height)};
}

void addData(Lines& lines, const DataSet& data) {
    Words files;
    for (const std::string& file : data.files) {
        files.push_back(std::filesystem::absolute(file).lexically_normal().string());
    }
    lines.add("READDATA", files);
}

/// The values that are not those which the data bring along.
void addStyles(Lines& lines, Frame& frame) {
    Frame fresh(frame.id(), frame.placement);
    if (frame.data()) {
        fresh.attachData(frame.data());
        chooseDefaultPlots(fresh);
    }
    for (const StyleLeaf& leaf : frame.styles().leaves()) {
        const StyleLeaf* const usual = fresh.styles().find(leaf.path);
        const bool isOfView = leaf.path.front() == "ThreeDView";
        if (!isOfView && usual != nullptr && text(*usual) != text(leaf)) {
            lines.add("STYLE", {toString(leaf.path), "=", text(leaf)});
        }
    }
}

void addFrame(Lines& lines, Frame& frame) {
    lines.add("FRAME", placementWords(frame.placement));
    if (frame.data()) {
        addData(lines, *frame.data());
    }
    addStyles(lines, frame);
    lines.add("VIEW", viewWords(frame.view));
    if (frame.data()) {
        lines.add("SOLUTIONTIME", {"=", exactText(frame.solutionTime)});
    }
    if (frame.plotType == PlotType_Cartesian2D) {
        lines.add("PLOTTYPE", {"=", "CARTESIAN2D"});
    }
}

void addExportSetup(Lines& lines, ExportSetup setup) {
    ExportSetup usual;
    StyleTree values;
    StyleTree usualValues;
    bindExportSetup(values, setup, {});
    bindExportSetup(usualValues, usual, {});
    for (const StyleLeaf& leaf : values.leaves()) {
        if (text(*usualValues.find(leaf.path)) != text(leaf)) {
            lines.add("EXPORTSETUP", {leaf.path.back(), "=", text(leaf)});
        }
    }
}

} // namespace

std::vector<std::string> viewWords(const View3D& view) {
    Words words{"SET"};
    const auto set = [&words](const char* name, const std::string& value) {
        words.insert(words.end(), {name, "=", value});
    };
    set("Psi", exactText(view.psi));
    set("Theta", exactText(view.theta));
    set("Alpha", exactText(view.alpha));
    set("X", exactText(view.position.x));
    set("Y", exactText(view.position.y));
    set("Z", exactText(view.position.z));
    set("OriginX", exactText(view.rotationOrigin.x));
    set("OriginY", exactText(view.rotationOrigin.y));
    set("OriginZ", exactText(view.rotationOrigin.z));
    set("FieldOfView", exactText(view.fieldOfView));
    // The width is there with perspective too, but can be set only without.
    set("Perspective", "false");
    set("Width", exactText(view.width));
    if (view.perspective) {
        set("Perspective", "true");
    }
    return words;
}

std::vector<std::string> sceneMacro(Application& application) {
    Lines lines;
    const Page& page = application.page();
    long number = 0;
    long active = 0;
    for (auto frame = page.frames().rbegin(); frame != page.frames().rend(); ++frame) {
        addFrame(lines, **frame);
        ++number;
        if (frame->get() == page.active()) {
            active = number;
        }
    }
    if (active != number) {
        lines.add("FRAME", {"ACTIVATE", "=", std::to_string(active)});
    }
    addExportSetup(lines, application.exportSetup());
    return lines.take();
}

} // namespace corvane::host
