/* Calls the host from C, as an add-on that is not written in C++ would. */
#include "hostapi/CorHost.h"

#include <stddef.h>

/* Returns 0, or the number of the step that went wrong. */
int corvaneCallsFromC(void) {
    CorArgList args = CorUtilArgListAlloc();
    double width = 0.0;
    CorSet zones = NULL;
    char* text = NULL;
    CorAddOnID id = CorUtilAddOnRegister(110, "From C", "1", "Somebody");
    if (id == NULL || args == NULL) {
        return 1;
    }
    CorUtilLockStart(id);
    CorUtilArgListAppendString(args, "Path1", "ThreeDView");
    CorUtilArgListAppendString(args, "Path2", "ViewWidth");
    CorUtilArgListAppendDoublePtr(args, "DValue", &width);
    if (CorUtilStyleGet(args) != StyleGet_Ok || !(width > 0.0)) {
        return 2;
    }
    CorUtilArgListDealloc(&args);
    if (!CorUtilZoneGetEnabled(&zones) || CorUtilSetGetNextMember(zones, 0) != 1) {
        return 3;
    }
    CorUtilSetDealloc(&zones);
    if (CorUtilFrameGetPlotType() != PlotType_Cartesian3D || !CorUtilRedraw(TRUE)) {
        return 4;
    }
    text = CorUtilStringAlloc(3);
    if (text == NULL || text[0] != '\0') {
        return 5;
    }
    CorUtilStringDealloc(&text);
    CorUtilLockFinish(id);
    return text == NULL && zones == NULL && args == NULL ? 0 : 6;
}
