// The command line as values.
#include "host/app/Options.h"

#include "host/app/MovieFormats.h"
#include "host/core/commands/MacroReference.h"

#include <CLI/CLI.hpp>

#include <charconv>

namespace corvane::app {
namespace {

constexpr int minimumSize = 4;
constexpr int maximumSize = 32766;

std::optional<int> parseSide(const char* first, const char* last) {
    int value = 0;
    const auto [end, error] = std::from_chars(first, last, value);
    const bool fits =
        error == std::errc{} && end == last && value >= minimumSize && value <= maximumSize;
    return fits ? std::optional(value) : std::nullopt;
}

void parseSize(const std::string& text, Options& options) {
    const auto cross = text.find('x');
    const char* end = text.data() + text.size();
    const auto width =
        cross == std::string::npos ? std::nullopt : parseSide(text.data(), text.data() + cross);
    const auto height =
        cross == std::string::npos ? std::nullopt : parseSide(text.data() + cross + 1, end);
    if (!width || !height) {
        throw UsageError("--size takes width and height in pixels, from 4 to 32766, such as "
                         "1920x1080; \"" +
                         text + "\" is not that.");
    }
    options.width = *width;
    options.height = *height;
    options.isSizeGiven = true;
}

void parseVariables(const std::vector<std::string>& settings, Options& options) {
    for (const std::string& setting : settings) {
        const auto equals = setting.find('=');
        if (equals == std::string::npos || equals == 0) {
            throw UsageError("--set takes NAME=VALUE; \"" + setting + "\" is not that.");
        }
        options.variables.emplace_back(setting.substr(0, equals), setting.substr(equals + 1));
    }
}

// CLI11's own range check lets "nan" through.
void checkFramesPerSecond(const Options& options) {
    if (options.framesPerSecond &&
        !(*options.framesPerSecond >= 0.001 && *options.framesPerSecond <= 200.0)) {
        throw UsageError("--fps takes frames per second from 0.001 to 200.");
    }
}

void checkCombination(const Options& options) {
    if (options.needsWindow()) {
        return;
    }
    if (!options.keyFrames.empty() && options.output.empty()) {
        throw UsageError("--keyframes needs --output MOVIE: there is no window to play on.");
    }
    if (!options.output.empty() && options.keyFrames.empty()) {
        throw UsageError("--output needs --keyframes FILE, the flight that goes into the movie.");
    }
    if (!options.output.empty() && movieFormatFor(options.output) == nullptr) {
        throw UsageError("The movie's format follows from its extension, and \"" + options.output +
                         "\" has none of " + movieExtensions() + ".");
    }
    if (options.keyFrames.empty() && options.macro.empty()) {
        throw UsageError("There is nothing to do without a window: give --macro FILE, or "
                         "--keyframes FILE --output MOVIE.");
    }
    if (options.data.empty() && options.macro.empty()) {
        throw UsageError("There are no data to fly through: name a data file, or give --macro FILE "
                         "with a scene.");
    }
}

} // namespace

Options parseCommandLine(int argc, const char* const* argv) {
    Options options;
    std::string size;
    std::vector<std::string> settings;
    CLI::App app{"Shows 3D simulation results, and flies a camera smoothly through them.",
                 "corvane"};
    app.set_version_flag("--version", "corvane " CORVANE_VERSION);
    app.add_option("DATA", options.data,
                   "data files: one data set together (.pvd .vtu .vtp .vti .vtr .vts .vtm .pvtu "
                   ".pvtp .pvti .pvtr .pvts .vtk .foam .case .e .exo .ex2 .cgns .stl .ply .obj)");
    app.add_option("--macro", options.macro, "play this macro first");
    app.add_option("--set", settings, "give a variable of macros a value, ${NAME} there")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    app.add_flag("--batch", options.batch, "work without a window");
    app.add_option("--keyframes", options.keyFrames, "the key frame file to fly through");
    app.add_option("--output", options.output, "the movie to write; its extension is the format");
    app.add_option(
           "--size", size,
           "size of the picture in pixels (1280x720, or what the macro sets; in a window, what "
           "fits it)")
        ->type_name("WxH");
    app.add_option("--fps", options.framesPerSecond,
                   "frames per second, 0.001 to 200 (30, or what the macro sets)");
    app.add_option("--supersample", options.supersample,
                   "draw 2 to 16 times larger and filter down; 1 does not")
        ->check(CLI::Range(1, 16));
    app.add_option("--add-on", options.addOns,
                   "load this library beside Key Frame Animation; may be given several times")
        ->type_name("LIBRARY")
        ->allow_extra_args(false);
    app.add_option("--trace", options.trace, "write every call of the add-ons to this file");
    app.add_option("--record", options.record, "write a macro of all that is done to this file");
    app.add_option("--memory", options.memory,
                   "MiB for time steps that are kept (a quarter of the machine's memory); what is "
                   "built from them gets a fourth of it on top")
        ->type_name("MIB")
        ->check(CLI::Range(1, 16 * 1024 * 1024));
    app.add_flag("--quiet", options.quiet, "say nothing but what went wrong");
    bool wantsReference = false;
    app.add_flag("--macro-reference", wantsReference, "print the macro language (Markdown)");
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        throw PrintAndExit(app.help());
    } catch (const CLI::CallForVersion&) {
        throw PrintAndExit(app.version() + "\n");
    } catch (const CLI::ParseError& error) {
        throw UsageError(std::string(error.what()) + " (corvane --help lists the options)");
    }
    if (wantsReference) {
        throw PrintAndExit(host::macroReference());
    }
    if (!size.empty()) {
        parseSize(size, options);
    }
    parseVariables(settings, options);
    checkFramesPerSecond(options);
    checkCombination(options);
    return options;
}

} // namespace corvane::app
