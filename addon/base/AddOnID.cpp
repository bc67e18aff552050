// The add-on's identity towards the host.
#include "addon/base/AddOnID.h"

namespace corvane::corutiltools {

CorAddOnID AddOnID = nullptr;

} // namespace corvane::corutiltools
