// corvane: shows 3D simulation results, and flies a camera through them.
#include "host/app/AddOnExit.h"
#include "host/app/BatchRun.h"
#include "host/app/Messages.h"
#include "host/app/Options.h"
#include "host/app/Signals.h"
#include "host/app/StandardStreams.h"
#include "host/app/ValidateOptions.h"
#include "host/app/WindowRun.h"
#include "host/app/system/Bundle.h"
#include "host/app/system/DriverChoice.h"
#include "host/app/system/SystemReport.h"
#include "host/core/base/HostError.h"
#include "host/core/process/ProcessServer.h"
#include "host/scene/DataReaders.h"
#include "host/validate/Report.h"

#include <exception>
#include <iostream>

namespace corvane::app {
namespace {

ExitCode print(const std::string& text) {
    std::cout << text << std::flush;
    if (!std::cout) {
        say("Cannot write to standard output.");
        return ExitFailed;
    }
    return ExitDone;
}

ExitCode printSystemReport() {
    const SystemReport report = reportSystem();
    const ExitCode printed = print(report.text);
    return report.canDraw ? printed : ExitFailed;
}

/// Needs neither drawing nor a window.
ExitCode validateAddOn(const ValidateOptions& options) {
    try {
        const int stop = stopSignalDescriptor();
        watchStopSignals();
        const validate::Verdict verdict =
            validate::validate(options.addOn, options.cpuSeconds, stop);
        if (verdict.wasStopped) {
            say("Stopped; not all was tried.");
            return ExitStopped;
        }
        const ExitCode printed = print(validate::reportOf(onOneLine(options.addOn), verdict));
        return validate::isKept(verdict) ? printed : ExitFailed;
    } catch (const std::exception& error) {
        say(host::messageOf(error));
        return ExitFailed;
    }
}

ExitCode run(const Options& options) {
    if (options.reportsSystem) {
        return printSystemReport();
    }
    settleDriver();
    return options.needsWindow() ? runWindow(options) : runBatch(options);
}

} // namespace
} // namespace corvane::app

int main(int argc, char** argv) {
    using namespace corvane;
    using namespace corvane::app;
    holdStandardStreams();
    settleIn();
    const host::ProcessServer server; // while there are no threads
    surviveFailedWrites();
    distrustExitOfAddOns();
    try {
        if (asksToValidate(argc, argv)) {
            return validateAddOn(parseValidateCommandLine(argc, argv));
        }
        return run(parseCommandLine(argc, argv, scene::DataReaders().formats()));
    } catch (const PrintAndExit& text) {
        return print(text.what());
    } catch (const UsageError& error) {
        say(error.what());
        return ExitUsage;
    }
}
