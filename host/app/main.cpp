// corvane: shows 3D simulation results, and flies a camera through them.
#include "host/app/BatchRun.h"
#include "host/app/Messages.h"
#include "host/app/Options.h"
#include "host/app/Signals.h"
#include "host/app/StandardStreams.h"
#include "host/app/WindowRun.h"
#include "host/core/process/ProcessServer.h"
#include "host/scene/DataReaders.h"

#include <iostream>

int main(int argc, char** argv) {
    using namespace corvane;
    using namespace corvane::app;
    holdStandardStreams();
    const host::ProcessServer server; // while there are no threads
    surviveFailedWrites();
    try {
        const Options options = parseCommandLine(argc, argv, scene::DataReaders().formats());
        return options.needsWindow() ? runWindow(options) : runBatch(options);
    } catch (const PrintAndExit& text) {
        std::cout << text.what() << std::flush;
        if (!std::cout) {
            say("Cannot write to standard output.");
            return ExitFailed;
        }
        return ExitDone;
    } catch (const UsageError& error) {
        say(error.what());
        return ExitUsage;
    }
}
