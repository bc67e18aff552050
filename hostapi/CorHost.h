/* The whole contract between add-on and host: the C operations, and in C++ the toolbox over them.
 */
#ifndef HOSTAPI_COR_HOST_H
#define HOSTAPI_COR_HOST_H

#include "hostapi/CorAddOn.h"
#include "hostapi/CorArgList.h"
#include "hostapi/CorDataSet.h"
#include "hostapi/CorDialog.h"
#include "hostapi/CorDraw.h"
#include "hostapi/CorEnums.h"
#include "hostapi/CorExport.h"
#include "hostapi/CorFrame.h"
#include "hostapi/CorGui.h"
#include "hostapi/CorIdle.h"
#include "hostapi/CorLock.h"
#include "hostapi/CorMacro.h"
#include "hostapi/CorMemory.h"
#include "hostapi/CorMenu.h"
#include "hostapi/CorStateChange.h"
#include "hostapi/CorStatus.h"
#include "hostapi/CorStyle.h"
#include "hostapi/CorTypes.h"
#include "hostapi/CorView.h"

#ifdef __cplusplus
#include "hostapi/RawArray.h"
#include "hostapi/toolbox/ArgList.h"
#include "hostapi/toolbox/StateChange.h"
#include "hostapi/toolbox/StateChangeNotifier.h"
#include "hostapi/toolbox/StringList.h"
#include "hostapi/toolbox/StyleValue.h"
#endif

#endif
