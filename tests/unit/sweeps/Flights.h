// Each kind of flight, in a host of its own.
#pragma once

#include "addon/model/Records.h"
#include "host/core/page/FrameStyle.h"
#include "tests/support/MemoryHost.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/RegisteredAddOn.h"
#include "tests/unit/addon/ui/FreshDialogs.h"

#include <cstddef>
#include <string>
#include <vector>

namespace corvane::test {

/// A host with the add-on, small pictures, and styles that a flight moves and must put back.
struct FlightScene {
    FlightScene();

    MemoryHost host;
    const RegisteredAddOn registration;
    const FreshDialogs dialogs;
    const TempFolder folder;
};

struct FlightKind {
    std::string name; ///< one word
    bool toFile;
    unsigned long frames;
    /// What comes before the flight, such as a dialog that is up.
    void (*prepare)(FlightScene& scene, const FlightKind& kind);
    /// Plays it, and answers what the user was told; empty when nothing.
    std::string (*play)(FlightScene& scene, const FlightKind& kind);

    /// Without dialogs and macros: what the user is told is what the flight tells.
    bool isPlain() const;
    corutiltools::Settings_s settings() const;
    std::vector<corutiltools::KeyFrame_s> keyFrames() const;
};

/// To screen, to file, with all effects, from a macro, from the dialog to the screen and to a file.
/// Those with effects have as many frames as a fade needs.
std::vector<FlightKind> flightKinds();

/// The same, with five frames each.
std::vector<FlightKind> flightKindsOfFiveFrames();

/// Closes what a flight could not even close: the user finds the dialog of the export still up.
void closeDialogs(FlightScene& scene);

/// Names the file that flights are written to.
std::string movieOf(const FlightScene& scene);

/// What flights leave as it was.
struct Appearance {
    explicit Appearance(MemoryHost& host);

    host::FrameStyle style;
    bool displayLists = false;
    bool perspective = false;
};

} // namespace corvane::test
