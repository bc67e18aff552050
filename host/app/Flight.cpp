// The main job: a key frame file becomes a movie, by the add-on's own macro commands.
#include "host/app/Flight.h"

#include "host/core/Host.h"
#include "host/core/base/HostError.h"
#include "host/core/base/Text.h"
#include "host/core/macro/MacroWords.h"
#include "host/core/picture/MovieFormats.h"

#include <filesystem>

namespace corvane::app {
namespace {

// A flight from the command line is no other thing than one from a macro.
void runAddOnCommand(host::Host& host, const std::string& command) {
    host.macros().run("EXTCOMMAND", {"Key Frame Animation", command});
}

void setUp(host::Host& host, const std::string& name, const std::string& value) {
    host.macros().run("EXPORTSETUP", {name, "=", value});
}

/// The add-on records the name as it is told, and the record is to hold in every folder.
std::string recordableName(host::Host& host, const std::string& fileName) {
    return host.recorder().isRecording() ? host::absoluteName(fileName) : fileName;
}

/// Reading them could wait for ever; what is missing, the add-on tells.
void refusePipesAndDevices(const std::string& fileName) {
    std::error_code error;
    if (std::filesystem::is_other(fileName, error)) {
        throw host::HostError("Cannot open the key frame file " + fileName +
                              ": it is not a regular file.");
    }
}

void openKeyFrames(host::Host& host, const std::string& givenName) {
    const std::string fileName = recordableName(host, givenName);
    refusePipesAndDevices(fileName);
    // The command's syntax has no escape for quotes.
    if (fileName.find('"') != std::string::npos) {
        throw host::HostError("The key frame file \"" + fileName +
                              "\" has a double quote in its name or folder, which the command "
                              "that opens it cannot carry; rename or move the file.");
    }
    try {
        runAddOnCommand(host, "OpenSettingsFile FileName=\"" + fileName + "\"");
    } catch (const host::HostError& error) {
        // The add-on's texts tell what is wrong, but not with which file.
        throw host::HostError("Cannot open the key frame file " + fileName + ": " + error.what());
    }
}

void setUpMovie(host::Host& host, const Options& options, double speed) {
    setUp(host, "ExportFormat", host::movieFormatForFile(options.output)->keyword);
    setUp(host, "ExportRegion", "CURRENTFRAME");
    setUp(host, "ImageWidth", std::to_string(host.session().page().workArea.width));
    setUp(host, "AnimationSpeed", host::exactText(options.framesPerSecond.value_or(speed)));
    if (options.supersample) {
        const bool isOn = *options.supersample > 1;
        setUp(host, "UseSuperSampleAntiAliasing", isOn ? "true" : "false");
        if (isOn) {
            setUp(host, "SuperSampleFactor", std::to_string(*options.supersample));
        }
    }
    setUp(host, "ExportFName", options.output);
}

} // namespace

void fly(host::Host& host, const Options& options) {
    // Opening a key frame file for the first time makes the add-on set its own speed.
    const double speed = host.session().exportSetup().animationSpeed;
    openKeyFrames(host, options.keyFrames);
    setUpMovie(host, options, speed);
    runAddOnCommand(host, "Animate AnimationDestination=ToFile");
}

} // namespace corvane::app
