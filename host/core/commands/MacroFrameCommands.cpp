// Macro commands about the page and its frames.
#include "host/core/base/Text.h"
#include "host/core/commands/MacroCommands.h"
#include "host/core/commands/MacroPlayer.h"

namespace corvane::host {

namespace {

constexpr const char* placementForm = "X = inches, Y = inches, Width = inches, Height = inches";

const Frame& activeFrame(Session& session) {
    const Frame* const frame = session.page().active();
    if (frame == nullptr) {
        reject("There is no frame.");
    }
    return *frame;
}

double lengthFrom(const std::string& name, const std::string& text, double minimum) {
    constexpr double largest = 1000.0;
    const double length = numberFrom(text);
    if (!(length >= minimum && length <= largest)) {
        reject(name + " cannot be \"" + text + "\".");
    }
    return length;
}

Placement changed(Placement placement, const std::vector<std::string>& words) {
    constexpr double smallest = 0.01;
    constexpr double leftmost = -1000.0;
    for (const auto& [name, text] : settingsOf(words, 1, placementForm)) {
        if (equalIgnoringCase(name, "X")) {
            placement.x = lengthFrom(name, text, leftmost);
        } else if (equalIgnoringCase(name, "Y")) {
            placement.y = lengthFrom(name, text, leftmost);
        } else if (equalIgnoringCase(name, "Width")) {
            placement.width = lengthFrom(name, text, smallest);
        } else if (equalIgnoringCase(name, "Height")) {
            placement.height = lengthFrom(name, text, smallest);
        } else {
            reject("A frame has no value \"" + name + "\".");
        }
    }
    return placement;
}

void createFrame(const MacroCall& call) {
    const Placement whole = call.session.page().regionOf(ExportRegion_WorkArea);
    call.session.createFrame(changed(whole, call.words));
}

void placeFrame(const MacroCall& call) {
    const Frame& frame = activeFrame(call.session);
    call.session.placeFrame(frame.id(), changed(frame.placement, call.words));
}

void activateFrame(const MacroCall& call) {
    const std::vector<std::string>& words = call.words;
    expect(words.size() == 3 && words[1] == "=", "ACTIVATE = number");
    if (!call.session.activateFrame(longFrom(words[2]))) {
        reject("There is no frame " + words[2] + ".");
    }
}

void deleteFrame(const MacroCall& call) {
    call.session.deleteFrame(activeFrame(call.session).id());
}

constexpr const char* sizeForm = "Width = pixels, Height = pixels, PixelsPerInch = number";

double scaleFrom(const std::string& name, const std::string& text) {
    constexpr double most = 1e5;
    const double scale = numberFrom(text);
    if (!(scale > 0.0 && scale <= most)) {
        reject(name + " cannot be \"" + text + "\".");
    }
    return scale;
}

WorkArea workAreaFrom(const std::vector<std::string>& words) {
    WorkArea area{0, 0, 0.0};
    for (const auto& [name, text] : settingsOf(words, 0, sizeForm)) {
        if (equalIgnoringCase(name, "Width")) {
            area.width = integerWithin(limits::pictureSide, name, text);
        } else if (equalIgnoringCase(name, "Height")) {
            area.height = integerWithin(limits::pictureSide, name, text);
        } else if (equalIgnoringCase(name, "PixelsPerInch")) {
            area.pixelsPerInch = scaleFrom(name, text);
        } else {
            reject("A work area has no value \"" + name + "\".");
        }
    }
    expect(area.width > 0 && area.height > 0, sizeForm);
    if (area.pixelsPerInch == 0.0) {
        area.pixelsPerInch = area.width / paperWidthInches;
    }
    return area;
}

/// As much paper in another number of pixels.
WorkArea scaled(const WorkArea& wanted, const WorkArea& given) {
    return {given.width, given.height, wanted.pixelsPerInch * given.width / wanted.width};
}

void popFrame(const MacroCall& call) {
    call.session.raiseFrame(activeFrame(call.session).id());
}

void pushFrame(const MacroCall& call) {
    call.session.lowerFrame(activeFrame(call.session).id());
}

struct FrameAction {
    const char* name;
    bool takesWords;
    void (*run)(const MacroCall& call);
};

constexpr FrameAction actions[] = {
    {"CREATE", true, createFrame},  {"PLACE", true, placeFrame}, {"ACTIVATE", true, activateFrame},
    {"DELETE", false, deleteFrame}, {"POP", false, popFrame},    {"PUSH", false, pushFrame}};

} // namespace

void sizeWorkArea(const MacroCall& call) {
    expectNoAnimation(call.session);
    const WorkArea wanted = workAreaFrom(call.words);
    const WorkArea& given = call.session.page().workArea;
    call.session.resizeWorkArea(call.player.keepsPictureSize() ? scaled(wanted, given) : wanted);
}

void changeFrames(const MacroCall& call) {
    constexpr const char* form = "CREATE, PLACE, ACTIVATE, DELETE, POP or PUSH";
    expect(!call.words.empty(), form);
    expectNoAnimation(call.session);
    for (const FrameAction& action : actions) {
        if (equalIgnoringCase(action.name, call.words[0])) {
            expect(action.takesWords || call.words.size() == 1, "nothing behind the word");
            action.run(call);
            return;
        }
    }
    expect(false, form);
}

} // namespace corvane::host
