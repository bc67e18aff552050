// The add-on's option in the host's menus.
#pragma once

#include "hostapi/CorEnums.h"

namespace corvane::corutiltools {

// Whether an update of the option waits for the host's idle time.
extern bool pendingUpdateFuncOnIdle;

// Adds the option, which launches the main dialog.
void addMenuOption();

// Makes the option usable when the active frame shows data in 3D, and dims it otherwise.
void updateMenuOption();

// For the host: queues one update at idle time for any number of changes before it.
void StateChangeCallback(StateChange_e state);

// For the host's idle queue. The client data is 0 and means nothing.
void onIdleCallback(long clientData);

} // namespace corvane::corutiltools
