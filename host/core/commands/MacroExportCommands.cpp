// Macro commands about pictures, add-ons and other macros.
#include "host/core/base/HostError.h"
#include "host/core/base/Text.h"
#include "host/core/commands/MacroCommands.h"
#include "host/core/commands/MacroPlayer.h"

#include <filesystem>

namespace corvane::host {

namespace {

ExportRegion_e regionFrom(const std::string& text) {
    const std::optional<StyleInput> value = exportSettingFromText("ExportRegion", text);
    if (!value) {
        reject("Region cannot be \"" + text + "\".");
    }
    return static_cast<ExportRegion_e>(std::get<long>(*value));
}

void expectPictureName(const std::string& fileName) {
    if (fileName.empty()) {
        reject("The picture has no file name. Give it one that ends in .png.");
    }
    if (!equalIgnoringCase(std::filesystem::path(fileName).extension().string(), ".png")) {
        reject("Pictures are PNG files, and the name \"" + fileName + "\" does not end in .png.");
    }
}

} // namespace

void exportPicture(const MacroCall& call) {
    constexpr const char* form = "\"file\" and settings, name = value";
    expect(!call.words.empty(), form);
    expectPictureName(call.words[0]);
    ExportRegion_e region = ExportRegion_WorkArea;
    int width = call.session.page().workArea.width;
    int supersample = 1;
    for (const auto& [name, text] : settingsOf(call.words, 1, form)) {
        if (equalIgnoringCase(name, "Region")) {
            region = regionFrom(text);
        } else if (equalIgnoringCase(name, "Width")) {
            width = integerWithin(limits::pictureSide, name, text);
        } else if (equalIgnoringCase(name, "Supersample")) {
            supersample = integerWithin(limits::supersamplingOrNone, name, text);
        } else {
            reject("A picture has no value \"" + name + "\".");
        }
    }
    call.session.exportPicture(call.path(call.words[0]), region, width, supersample);
}

void runAddOnCommand(const MacroCall& call) {
    expect(call.words.size() == 2, "\"add-on\" \"command\"");
    Session& session = call.session;
    expectNoAnimation(session);
    const AddOnCommand* found = session.addOnCommands().find(call.words[0]);
    if (found == nullptr) {
        reject("There is no add-on \"" + call.words[0] + "\" that has macro commands.");
    }
    const AddOnCommand command = *found;
    Exporter& exporter = session.exporter();
    exporter.forgetFailure();
    const std::optional<std::string> error = command(call.words[1]);
    // The add-on knows only that it was stopped; the exporter knows why.
    if (exporter.hasFailed()) {
        throw HostError(exporter.failure());
    }
    if (error) {
        throw HostError(*error);
    }
}

void includeMacro(const MacroCall& call) {
    expect(call.words.size() == 1, "\"file\"");
    call.player.playFile(call.path(call.words[0]));
}

void setVariable(const MacroCall& call) {
    const std::vector<std::string>& words = call.words;
    expect(words.size() == 3 && words[1] == "=", "name = value");
    call.player.variables().setDefault(words[0], words[2]);
}

} // namespace corvane::host
