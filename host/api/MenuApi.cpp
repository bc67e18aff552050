// Menus of the main window.
#include "hostapi/CorMenu.h"

#include "host/api/TracedCall.h"

using namespace corvane::host;

CorBool CorUtilMenuAddOption(const char* menu, const char* label, int one, void (*callback)()) {
    const TracedCall call("CorUtilMenuAddOption", menu, label, one, callback);
    return call.answer(false, [&](Session& session) {
        return menu && label && callback
                   ? session.menuOptions().add(menu, label, callback, libraryOf(callback))
                   : call.misuse("an argument is NULL");
    });
}

CorBool CorUtilMenuSetSensitivity(const char* menu, const char* label, CorBool sensitive) {
    const TracedCall call("CorUtilMenuSetSensitivity", menu, label, sensitive != FALSE);
    return call.answer(false, [&](Session& session) {
        return menu && label ? session.menuOptions().setSensitivity(menu, label, sensitive != FALSE)
                             : call.misuse("an argument is NULL");
    });
}
