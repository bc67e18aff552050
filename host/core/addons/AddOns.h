// The add-ons of this process.
#pragma once

#include "hostapi/CorTypes.h"

#include <memory>
#include <string>
#include <vector>

/// What an add-on's id points to. Ids stay valid for the life of the process.
struct CorAddOn_s {
    int interfaceNumber = 0;
    std::string name;
    std::string version;
    std::string author;
};

namespace corvane::host {

/// The number of the contract that this host offers.
inline constexpr int interfaceNumber = 110;

class AddOns {
public:
    CorAddOnID add(CorAddOn_s addOn);
    const std::vector<std::unique_ptr<CorAddOn_s>>& all() const { return m_addOns; }
    bool isKnown(CorAddOnID id) const;
    /// Notes a library that stays loaded. False: it was noted before.
    bool keepLibrary(void* handle);

private:
    std::vector<std::unique_ptr<CorAddOn_s>> m_addOns;
    std::vector<void*> m_libraries;
};

} // namespace corvane::host
