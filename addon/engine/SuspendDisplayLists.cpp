// A scope in which the host draws without display lists.
#include "addon/engine/SuspendDisplayLists.h"

namespace corvane::corutiltools {

SuspendDisplayLists::SuspendDisplayLists() : m_interface("Interface") {
    m_interface.getBoolean(m_savedUse, "UseDisplayLists");
    m_interface.setBoolean(false, "UseDisplayLists");
}

SuspendDisplayLists::~SuspendDisplayLists() {
    m_interface.setBoolean(m_savedUse, "UseDisplayLists");
}

} // namespace corvane::corutiltools
