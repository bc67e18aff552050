// What the page shows, as a macro that shows it again.
#include "host/core/commands/SceneMacro.h"

#include "host/core/base/Text.h"
#include "host/core/macro/MacroRecorder.h"
#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroVariables.h"
#include "host/core/macro/MacroWords.h"
#include "host/core/session/Session.h"

#include <algorithm>
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
        files.push_back(absoluteName(file));
    }
    lines.add("READDATA", files);
}

/// The values that are not those which the data bring along.
void addStyles(Lines& lines, const FrameState& state) {
    const Frame frame(state);
    Frame fresh(state.id, state.placement);
    if (state.data) {
        fresh.attachData(state.data);
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

void addFrame(Lines& lines, const FrameState& frame, const Placement& workArea) {
    // Without a place a new frame fills the work area, of whatever size.
    const bool isFilling = frame.placement == workArea;
    lines.add("FRAME", isFilling ? Words{"CREATE"} : placementWords(frame.placement));
    if (frame.data) {
        addData(lines, *frame.data);
    }
    addStyles(lines, frame);
    lines.add("VIEW", viewWords(frame.view));
    if (frame.data) {
        lines.add("SOLUTIONTIME", {"=", exactText(frame.solutionTime)});
    }
    if (frame.plotType == PlotType_Cartesian2D) {
        lines.add("PLOTTYPE", {"=", "CARTESIAN2D"});
    }
}

/// A number is never used again, so that those of deleted frames must be used up, too.
void skipNumber(Lines& lines) {
    lines.add("FRAME", {"CREATE"});
    lines.add("FRAME", {"DELETE"});
}

bool isStackedByNumber(const PageState& page) {
    return std::is_sorted(page.frames.begin(), page.frames.end(),
                          [](const auto& a, const auto& b) { return a.id > b.id; });
}

void activate(Lines& lines, long id) {
    lines.add("FRAME", {"ACTIVATE", "=", std::to_string(id)});
}

/// The frames are there, the one with the highest number on top and active.
void addStack(Lines& lines, const PageState& page) {
    const bool isRestacked = !isStackedByNumber(page);
    for (auto frame = page.frames.rbegin(); isRestacked && frame != page.frames.rend(); ++frame) {
        activate(lines, frame->id);
        lines.add("FRAME", {"POP"});
    }
    if (!page.frames.empty() && page.active != page.frames.front().id) {
        activate(lines, page.active);
    }
}

void addExportSetup(Lines& lines, ExportSetup setup) {
    if (!setup.fileName.empty()) {
        setup.fileName = absoluteName(setup.fileName);
    }
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

std::vector<std::string> workAreaWords(const WorkArea& area) {
    Words words{"Width",  "=", std::to_string(area.width),
                "Height", "=", std::to_string(area.height)};
    if (area.pixelsPerInch != area.width / paperWidthInches) {
        words.insert(words.end(), {"PixelsPerInch", "=", exactText(area.pixelsPerInch)});
    }
    return words;
}

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

std::vector<std::string> sceneMacro(Session& session) {
    Lines lines;
    const PageState page = session.page().state();
    if (page.workArea != WorkArea{}) {
        lines.add("WORKAREA", workAreaWords(page.workArea));
    }
    const Placement workArea = session.page().regionOf(ExportRegion_WorkArea);
    for (long id = 1; id <= session.page().lastId(); ++id) {
        if (const FrameState* const frame = findFrame(page, id)) {
            addFrame(lines, *frame, workArea);
        } else {
            skipNumber(lines);
        }
    }
    addStack(lines, page);
    addExportSetup(lines, session.exportSetup());
    return lines.take();
}

void startRecording(Session& session, MacroRecorder& recorder) {
    recorder.start();
    for (const std::string& line : sceneMacro(session)) {
        recorder.recordRaw(line);
    }
}

} // namespace corvane::host
