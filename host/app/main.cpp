// corvane: flies a camera through 3D simulation results.
#include "host/app/BatchRun.h"
#include "host/app/Messages.h"
#include "host/app/Options.h"

#include <iostream>

int main(int argc, char** argv) {
    using namespace corvane::app;
    try {
        return runBatch(parseCommandLine(argc, argv));
    } catch (const PrintAndExit& text) {
        std::cout << text.what();
        return ExitDone;
    } catch (const UsageError& error) {
        say(error.what());
        return ExitUsage;
    }
}
