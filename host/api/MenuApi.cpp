// Menus of the main window. A host without windows has none, so there is nothing to add to.
#include "hostapi/CorMenu.h"

#include "host/api/TracedCall.h"

using namespace corvane::host;

CorBool CorUtilMenuAddOption(const char* menu, const char* label, int one, void (*callback)(void)) {
    const TracedCall call("CorUtilMenuAddOption", menu, label, one, callback);
    return call.answer(false, [&](Application&) {
        return menu && label && callback ? false : call.misuse("an argument is NULL");
    });
}

CorBool CorUtilMenuSetSensitivity(const char* menu, const char* label, CorBool sensitive) {
    const TracedCall call("CorUtilMenuSetSensitivity", menu, label, sensitive != FALSE);
    return call.answer(false, [&](Application&) {
        return menu && label ? false : call.misuse("an argument is NULL");
    });
}
