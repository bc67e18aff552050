// The add-ons of this process.
#include "host/core/addons/AddOns.h"

#include <algorithm>
#include <utility>

namespace corvane::host {

CorAddOnID AddOns::add(CorAddOn_s addOn) {
    m_addOns.push_back(std::make_unique<CorAddOn_s>(std::move(addOn)));
    return m_addOns.back().get();
}

bool AddOns::isKnown(CorAddOnID id) const {
    return std::any_of(m_addOns.begin(), m_addOns.end(),
                       [id](const auto& addOn) { return addOn.get() == id; });
}

bool AddOns::keepLibrary(void* handle) {
    const bool isNew =
        std::find(m_libraries.begin(), m_libraries.end(), handle) == m_libraries.end();
    if (isNew) {
        m_libraries.push_back(handle);
    }
    return isNew;
}

} // namespace corvane::host
