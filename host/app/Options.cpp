// The command line as values.
#include "host/app/Options.h"

#include "host/core/base/Limits.h"
#include "host/core/commands/MacroReference.h"
#include "host/core/picture/MovieFormats.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string_view>

namespace corvane::app {
namespace {

namespace limits = host::limits;
using host::rangeText;

std::optional<int> parseSide(std::string_view text) {
    const std::optional<int> side = host::parsedNumber<int>(text);
    return side && limits::pictureSide.contains(*side) ? side : std::nullopt;
}

void parseSize(const std::string& text, Options& options) {
    const std::string_view view = text;
    const std::size_t cross = std::min(view.find('x'), view.size());
    const auto width = parseSide(view.substr(0, cross));
    const auto height = cross < view.size() ? parseSide(view.substr(cross + 1)) : std::nullopt;
    if (!width || !height) {
        throw UsageError("--size takes width and height in pixels, from " +
                         rangeText(limits::pictureSide) + ", such as 1920x1080; \"" + text +
                         "\" is not that.");
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
    if (options.framesPerSecond && !limits::framesPerSecond.contains(*options.framesPerSecond)) {
        throw UsageError("--fps takes frames per second from " +
                         rangeText(limits::framesPerSecond) + ".");
    }
}

/// Of a file, which an empty variable of a script may have stood for.
std::string complaintAboutName(const std::string& name) {
    return name.empty() ? "the name of a file is missing" : "";
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
    if (!options.output.empty() && host::movieFormatForFile(options.output) == nullptr) {
        throw UsageError("The movie's format follows from its extension, and \"" + options.output +
                         "\" has none of " + host::movieExtensions() + ".");
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

std::string extensionsOf(const std::vector<host::DataFormat>& formats) {
    std::string text;
    for (const host::DataFormat& format : formats) {
        for (const std::string& extension : format.extensions) {
            text += (text.empty() ? "" : " ") + extension;
        }
    }
    return text;
}

} // namespace

Options parseCommandLine(int argc, const char* const* argv,
                         const std::vector<host::DataFormat>& dataFormats) {
    Options options;
    std::string size;
    std::vector<std::string> settings;
    CLI::App app{"Shows 3D simulation results, and flies a camera smoothly through them.",
                 "corvane"};
    const CLI::Validator named(complaintAboutName, "");
    app.footer(
        "corvane validate LIBRARY tells whether an add-on keeps to the contract; see corvane "
        "validate --help.");
    app.set_version_flag("--version", "corvane " CORVANE_VERSION);
    app.add_option("DATA", options.data,
                   "data files: one data set together (" + extensionsOf(dataFormats) + ")")
        ->check(named);
    app.add_option("--macro", options.macro, "play this macro first")->check(named);
    app.add_option("--set", settings, "give a variable of macros a value, ${NAME} there")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    app.add_flag("--batch", options.batch, "work without a window");
    app.add_option("--keyframes", options.keyFrames, "the key frame file to fly through")
        ->check(named);
    app.add_option("--output", options.output, "the movie to write; its extension is the format")
        ->check(named);
    app.add_option(
           "--size", size,
           "size of the picture in pixels (1280x720, or what the macro sets; in a window, what "
           "fits it)")
        ->type_name("WxH");
    app.add_option("--fps", options.framesPerSecond,
                   "frames per second, " + rangeText(limits::framesPerSecond) +
                       " (30, or what the macro sets)");
    app.add_option("--supersample", options.supersample,
                   "draw " + rangeText(limits::supersampling) +
                       " times larger and filter down; 1 does not")
        ->check(CLI::Range(limits::supersamplingOrNone.least, limits::supersamplingOrNone.most));
    app.add_option("--add-on", options.addOns,
                   "load this library beside Key Frame Animation; may be given several times")
        ->type_name("LIBRARY")
        ->allow_extra_args(false)
        ->check(named);
    app.add_option("--trace", options.trace, "write every call of the add-ons to this file")
        ->check(named);
    app.add_option("--record", options.record, "write a macro of all that is done to this file")
        ->check(named);
    app.add_option("--memory", options.memory,
                   "MiB for time steps that are kept (a quarter of the machine's memory); what is "
                   "built from them gets a fourth of it on top")
        ->type_name("MIB")
        ->check(CLI::Range(1, 16 * 1024 * 1024));
    app.add_flag("--quiet", options.quiet, "say nothing but what went wrong");
    app.add_flag("--system", options.reportsSystem,
                 "tell what draws, what libraries are used, and what this machine offers");
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
