// Zones and solution time.
#include "hostapi/CorDataSet.h"

#include "host/api/AllocationRegistry.h"
#include "host/api/TracedCall.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

struct CorSet_s {
    std::vector<long> members; ///< ascending
};

using namespace corvane::host;

namespace {

const DataSet* currentData(Session& session) {
    const Frame* const frame = session.page().current();
    return frame ? frame->data().get() : nullptr;
}

/// Null for a zone that does not exist.
const Zone* find(Session& session, long zone) {
    const DataSet* const data = currentData(session);
    const bool exists = data && zone >= 1 && static_cast<std::size_t>(zone) <= data->zones.size();
    return exists ? &data->zones[static_cast<std::size_t>(zone - 1)] : nullptr;
}

/// Never destroyed: add-ons free what they have when the process ends, too.
AllocationRegistry<CorSet_s>& sets() {
    static auto* given = new AllocationRegistry<CorSet_s>;
    return *given;
}

void free(const Operation& operation, CorSet* set) {
    if (set) {
        sets().takeBack(operation, std::exchange(*set, nullptr), std::default_delete<CorSet_s>());
    }
}

std::unique_ptr<CorSet_s> enabledZones(const DataSet& data) {
    auto set = std::make_unique<CorSet_s>();
    for (std::size_t i = 0; i < data.zones.size(); ++i) {
        if (data.zones[i].enabled) {
            set->members.push_back(static_cast<long>(i + 1));
        }
    }
    return set;
}

} // namespace

CorBool CorUtilDataSetIsAvailable(void) {
    return TracedCall("CorUtilDataSetIsAvailable").answer(false, [](Session& session) {
        return currentData(session) != nullptr;
    });
}

CorBool CorUtilZoneGetEnabled(CorSet* enabled) {
    const TracedCall call("CorUtilZoneGetEnabled", enabled);
    if (enabled) {
        *enabled = nullptr;
    }
    return call.answer(false, [&](Session& session) {
        if (!enabled) {
            return call.misuse("enabled is NULL");
        }
        if (const DataSet* const data = currentData(session)) {
            std::unique_ptr<CorSet_s> set = enabledZones(*data);
            sets().add(set.get());
            *enabled = set.release();
        }
        return *enabled != nullptr;
    });
}

long CorUtilSetGetNextMember(CorSet set, long member) {
    const TracedCall call("CorUtilSetGetNextMember", set, member);
    return call.answer(0L, [&](Session&) {
        if (!set) {
            return 0L;
        }
        if (!sets().has(set)) {
            call.misuse("the set was freed before, or is not from the host");
            return 0L;
        }
        const auto next = std::upper_bound(set->members.begin(), set->members.end(), member);
        return next != set->members.end() ? *next : 0L;
    });
}

void CorUtilSetDealloc(CorSet* set) {
    const Operation operation("CorUtilSetDealloc");
    if (Host::isHomeThread() && !Host::current()) {
        free(operation, set);
    } else {
        TracedCall(operation, set).perform([&](Session&) { free(operation, set); });
    }
}

double CorUtilZoneGetSolutionTime(long zone) {
    const TracedCall call("CorUtilZoneGetSolutionTime", zone);
    return call.answer(0.0, [&](Session& session) {
        if (const Zone* const found = find(session, zone)) {
            return found->solutionTime;
        }
        call.misuse("no such zone");
        return 0.0;
    });
}

long CorUtilZoneGetStrandID(long zone) {
    const TracedCall call("CorUtilZoneGetStrandID", zone);
    return call.answer(0L, [&](Session& session) {
        if (const Zone* const found = find(session, zone)) {
            return found->strand;
        }
        call.misuse("no such zone");
        return 0L;
    });
}

double CorUtilSolutionTimeGetCurrent(void) {
    return TracedCall("CorUtilSolutionTimeGetCurrent").answer(0.0, [](Session& session) {
        return currentData(session) ? session.page().current()->solutionTime : 0.0;
    });
}

CorBool CorUtilSolutionTimeSetCurrent(double t) {
    return TracedCall("CorUtilSolutionTimeSetCurrent", t).answer(false, [&](Session& session) {
        return session.setSolutionTime(t);
    });
}
