// Dialogs with controls of every kind, laid out as add-ons do it.
#pragma once

#include "hostapi/CorHost.h"

namespace corvane::test {

struct SampleDialogs {
    int modeless = COR_HANDLE_NOT_CREATED; ///< list, buttons, fields, option menu, menu bar
    int modal = COR_HANDLE_NOT_CREATED;    ///< group box, radio boxes, spin field, toggle
};

/// Both hidden; nobody is told of anything.
SampleDialogs makeSampleDialogs();

} // namespace corvane::test
