// What a CorArgList points to: named values of several types.
#include "host/api/ArgumentList.h"

#include "host/api/AllocationRegistry.h"
#include "host/core/base/SecondTry.h"

#include <memory>
#include <new>
#include <utility>

void CorArgList_s::set(std::string_view name, Value value) {
    for (Entry& entry : entries) {
        if (entry.name == name) {
            entry.value = std::move(value);
            return;
        }
    }
    entries.push_back({std::string(name), std::move(value)});
}

namespace corvane::host {

namespace {

/// Never destroyed: add-ons free what they have when the process ends, too.
AllocationRegistry<CorArgList_s>& lists() {
    static auto* given = new AllocationRegistry<CorArgList_s>;
    return *given;
}

} // namespace

CorArgList newArgumentList() {
    try {
        return withSecondTry([] {
            auto list = std::make_unique<CorArgList_s>();
            lists().add(list.get());
            return list.release();
        });
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

CorArgList known(CorArgList list) {
    return lists().has(list) ? list : nullptr;
}

void freeArgumentList(const Operation& operation, CorArgList list) {
    lists().takeBack(operation, list, std::default_delete<CorArgList_s>());
}

} // namespace corvane::host
