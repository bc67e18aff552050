#include "host/app/ValidateOptions.h"

#include "host/app/Options.h"

#include <CLI/CLI.hpp>

#include <string_view>

namespace corvane::app {

namespace {

constexpr const char* command = "validate";
constexpr int mostCpuSeconds = 3600;

} // namespace

bool asksToValidate(int argc, const char* const* argv) {
    return argc > 1 && std::string_view(argv[1]) == command;
}

ValidateOptions parseValidateCommandLine(int argc, const char* const* argv) {
    ValidateOptions options;
    CLI::App app{
        "Tries an add-on in processes of its own, and tells which rules of the contract with "
        "its host it keeps and which it breaks. No window is opened.",
        "corvane validate"};
    app.add_option("LIBRARY", options.addOn, "the library of the add-on")->required();
    app.add_option("--cpu-seconds", options.cpuSeconds,
                   "the most computing for one callback, in seconds (10)")
        ->type_name("N")
        ->check(CLI::Range(1, mostCpuSeconds));
    try {
        app.parse(argc - 1, argv + 1);
    } catch (const CLI::CallForHelp&) {
        throw PrintAndExit(app.help());
    } catch (const CLI::ParseError& error) {
        throw UsageError(std::string(error.what()) +
                         " (corvane validate --help lists the options)");
    }
    if (options.addOn.empty()) {
        throw UsageError(
            "LIBRARY: the name of a file is missing (corvane validate --help lists the "
            "options)");
    }
    return options;
}

} // namespace corvane::app
