// A scope in which the host draws without display lists.
#pragma once

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

// Switches the host's display lists off, since a scene that changes with every frame would only
// rebuild them, and puts the setting back at the end. A setting that cannot be read counts as off.
class SuspendDisplayLists {
public:
    SuspendDisplayLists();
    ~SuspendDisplayLists();

    SuspendDisplayLists(const SuspendDisplayLists&) = delete;
    SuspendDisplayLists& operator=(const SuspendDisplayLists&) = delete;

private:
    toolbox::StyleValue m_interface;
    bool m_savedUse = false;
};

} // namespace corvane::corutiltools
