#include "tests/unit/sweeps/Flights.h"

#include "addon/base/KeyFrameError.h"
#include "addon/engine/Animate.h"
#include "addon/macro/MacroManager.h"
#include "host/core/base/HostError.h"
#include "tests/cases/FlightCases.h"
#include "tests/unit/sweeps/FailingNew.h"

#include <exception>
#include <functional>
#include <stdexcept>

namespace corvane::test {

using namespace corutiltools;

namespace {

std::string copyOf(const char* text) {
    const FailingNew::Pause pause;
    return text;
}

void prepareNothing(FlightScene& /*scene*/, const FlightKind& /*kind*/) {}

std::vector<KeyFrame_s> madeKeyFrames(const FlightKind& kind) {
    const FailingNew::Pause pause;
    return kind.keyFrames();
}

std::string playPlainly(FlightScene& /*scene*/, const FlightKind& kind) {
    const std::vector<KeyFrame_s> keyFrames = madeKeyFrames(kind);
    try {
        Animate(keyFrames, 0, keyFrames.size(), kind.settings(), MacroOption_Record);
        return {};
    } catch (const KeyFrameError& error) {
        return copyOf(error.what());
    }
}

void fillDialog(const FlightKind& kind) {
    ListModelKeyFrame model;
    model.setDataList(kind.keyFrames());
    DialogMain::instance().applyDataModel(model);
    DialogMain::instance().applySettings(kind.settings());
}

const std::string macroCommand = "EXTCOMMAND";
const std::vector<std::string> macroWords{"Key Frame Animation",
                                          "Animate AnimationDestination=ToFile"};

void prepareMacro(FlightScene& /*scene*/, const FlightKind& kind) {
    MacroManager::registerCallback();
    fillDialog(kind);
}

std::string playMacro(FlightScene& scene, const FlightKind& /*kind*/) {
    try {
        scene.host.program().perform(macroCommand, macroWords);
        return {};
    } catch (const std::exception& error) {
        const FailingNew::Pause pause;
        return host::messageOf(error);
    }
}

std::string errorsOf(MemoryHost& host) {
    std::string text;
    for (const std::string& error : host.prompts().shown(ShownDialog::Kind::Error)) {
        text += text.empty() ? error : '\n' + error;
    }
    return text;
}

// What a user can still do when something is missing: the rest throws. Finding a control is no part
// of the flight.
template <class Find, class Use>
void attempt(const Find& find, const Use& use) {
    try {
        const auto control = [&] {
            const FailingNew::Pause pause;
            return find();
        }();
        use(control);
    } catch (const std::logic_error&) {
        // Dimmed, or not there.
    }
}

void animateAll(FlightScene& scene) {
    attempt([&] { return scene.host.gui().dialog("Key Frame Animation").button("Animate All"); },
            [](const MemoryButton& button) { button.click(); });
}

template <class Use>
void useExport(FlightScene& scene, const Use& use) {
    attempt([&] { return scene.host.gui().dialog("Export Options"); },
            [&](const MemoryDialog& dialog) {
                if (dialog.isUp()) {
                    use(dialog);
                }
            });
}

void cancelExport(FlightScene& scene) {
    useExport(scene, [](const MemoryDialog& dialog) { dialog.cancel(); });
}

void confirmExport(FlightScene& scene) {
    {
        const FailingNew::Pause pause;
        scene.host.prompts().answerFile(movieOf(scene));
    }
    useExport(scene, [](const MemoryDialog& dialog) { dialog.ok(); });
    // It stays up where the name of the file was not given.
    cancelExport(scene);
}

void prepareDialog(FlightScene& scene, const FlightKind& kind) {
    DialogMain::launch();
    fillDialog(kind);
    scene.host.runIdle();
    if (kind.toFile) {
        // Built once and for all, which is no part of a flight.
        animateAll(scene);
        cancelExport(scene);
    }
}

std::string playDialog(FlightScene& scene, const FlightKind& kind) {
    scene.host.prompts().clear();
    animateAll(scene);
    if (kind.toFile) {
        confirmExport(scene);
    }
    const FailingNew::Pause pause;
    return errorsOf(scene.host);
}

unsigned long framesWithFade() {
    return 10;
}

std::vector<FlightKind> kinds(unsigned long frames, unsigned long framesWithEffects) {
    return {{"toScreen", false, frames, prepareNothing, playPlainly},
            {"toFile", true, frames, prepareNothing, playPlainly},
            {"withAllEffects", true, framesWithEffects, prepareNothing, playPlainly},
            {"fromMacro", true, frames, prepareMacro, playMacro},
            {"fromDialog", false, frames, prepareDialog, playDialog},
            {"fromDialogToFile", true, frames, prepareDialog, playDialog}};
}

} // namespace

FlightScene::FlightScene() {
    host.session().silentPage().workArea = {.width = 32, .height = 18, .pixelsPerInch = 2.0};
    host.session().exportSetup().fileName = movieOf(*this);
    host.session().exportSetup().imageWidth = 8;
    host.frame().style.streamTiming.timeAnchor = 2.0;
    host.frame().style.streamTiming.showMarkers = true;
    host.frame().view.perspective = true;
    host.prompts().answer("", true);
}

bool FlightKind::isPlain() const {
    return play == playPlainly;
}

Settings_s FlightKind::settings() const {
    const bool isFull = name == "withAllEffects";
    return {{isFull, TimeAnimationOperation_Forward, 1},
            toFile ? Destination_ToFile : Destination_OnScreen,
            isFull,
            isFull,
            isFull};
}

std::vector<KeyFrame_s> FlightKind::keyFrames() const {
    return {{viewOfCentre(60.0, 30.0, 0.0, 10.0, 4.0), "first", frames - 1, 0.0},
            {viewOfCentre(85.0, 300.0, 20.0, 8.0, 3.0), "last", 1, 2.0}};
}

std::vector<FlightKind> flightKinds() {
    return kinds(3, framesWithFade());
}

std::vector<FlightKind> flightKindsOfFiveFrames() {
    return kinds(5, 5);
}

void closeDialogs(FlightScene& scene) {
    cancelExport(scene);
}

std::string movieOf(const FlightScene& scene) {
    return scene.folder.file("flight.avi");
}

Appearance::Appearance(MemoryHost& host)
    : style(host.frame().style), perspective(host.frame().view.perspective) {
    host::StyleInput value;
    host.session().getStyle({"Interface", "UseDisplayLists"}, value);
    displayLists = value == host::StyleInput(1L);
}

} // namespace corvane::test
