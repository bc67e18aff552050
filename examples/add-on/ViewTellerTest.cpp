// Tests the add-on against a host in memory: no data files, no window, no display.
//   ViewTellerTest LIBRARY
#include "hostapi/testing/CorMemoryHost.h"

#include <iostream>
#include <string>

namespace {

bool hasFailed = false;

void expect(bool isTrue, const std::string& what) {
    if (!isTrue) {
        std::cerr << "not so: " << what << '\n';
        hasFailed = true;
    }
}

std::string shown(CorMemoryHost host, CorMemoryShown_e kind) {
    return CorMemoryHostGetShown(host, kind, CorMemoryHostGetShownCount(host, kind));
}

void testMenu(CorMemoryHost host) {
    CorMemoryHostStartRecording(host);
    expect(CorMemoryHostChooseMenuOption(host, "Animate", "Tell the View"), "there is an option");
    expect(shown(host, CorMemoryShown_Notice).starts_with("The viewer stands at ("),
           "it tells the view");
    expect(CorMemoryHostGetRecordedCount(host) == 1, "and is recorded");
}

void testMacro(CorMemoryHost host) {
    const long before = CorMemoryHostGetShownCount(host, CorMemoryShown_Notice);
    expect(CorMemoryHostRunMacro(host, "$!EXTCOMMAND \"View Teller\" \"Tell\""),
           "a macro tells it");
    expect(CorMemoryHostGetShownCount(host, CorMemoryShown_Notice) == before + 1, "once");
    expect(!CorMemoryHostRunMacro(host, "$!EXTCOMMAND \"View Teller\" \"Sing\""),
           "an unknown command fails");
    expect(std::string(CorMemoryHostGetError(host)).find("no command \"Sing\"") !=
               std::string::npos,
           "and the message says why");
}

void testFrameWithoutView(CorMemoryHost host) {
    CorMemoryHostFailNext(host, "CorUtilFrameGetPlotType", 1); // as if it showed no 3D plot
    CorMemoryHostChooseMenuOption(host, "Animate", "Tell the View");
    expect(shown(host, CorMemoryShown_Error).find("shows no 3D plot") != std::string::npos,
           "without a 3D plot there is a message");
}

void testFailures(CorMemoryHost host) {
    for (long n = 1;; ++n) {
        CorMemoryHostFailCall(host, n);
        CorMemoryHostRunMacro(host, "$!EXTCOMMAND \"View Teller\" \"Tell\"");
        if (!CorMemoryHostHasFailed(host)) {
            break;
        }
    }
    CorMemoryHostFailCall(host, 0);
}

} // namespace

int main(int, char** arguments) {
    CorMemoryHost host = CorMemoryHostCreate(TRUE);
    if (!CorMemoryHostLoadAddOn(host, arguments[1])) {
        std::cerr << CorMemoryHostGetError(host) << '\n';
        return 1;
    }
    CorMemoryHostLoadData(host);
    testMenu(host);
    testMacro(host);
    testFrameWithoutView(host);
    testFailures(host);
    CorMemoryHostQuit(host);
    for (long i = 1; i <= CorMemoryHostGetBrokenCount(host); ++i) {
        expect(false, std::string("it keeps the rules: ") + CorMemoryHostGetBroken(host, i));
    }
    expect(CorMemoryHostGetHeldCount(host) == 0, "it gives back what the host gave");
    CorMemoryHostDestroy(&host);
    return hasFailed ? 1 : 0;
}
