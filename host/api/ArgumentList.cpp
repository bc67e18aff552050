// What a CorArgList points to: named values of several types.
#include "host/api/ArgumentList.h"

#include "host/api/AllocationRegistry.h"
#include "host/core/base/SecondTry.h"

#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <new>
#include <utility>

namespace corvane::host {

namespace {

/// Never destroyed: add-ons free what they have when the process ends, too.
AllocationRegistry<CorArgList_s>& lists() {
    static auto* given = new AllocationRegistry<CorArgList_s>;
    return *given;
}

/// Lists that were freed, with the room that they had: an animation makes a dozen of them for each
/// view. Safe on any thread.
class SpareLists {
public:
    std::unique_ptr<CorArgList_s> take() {
        const std::lock_guard lock(m_mutex);
        if (m_count == 0) {
            return std::make_unique<CorArgList_s>();
        }
        return std::move(m_lists[--m_count]);
    }
    void put(std::unique_ptr<CorArgList_s> list) {
        list->entries.clear();
        const std::lock_guard lock(m_mutex);
        if (m_count < m_lists.size()) {
            m_lists[m_count++] = std::move(list);
        }
    }

private:
    std::mutex m_mutex;
    std::array<std::unique_ptr<CorArgList_s>, 8> m_lists;
    std::size_t m_count = 0;
};

/// Never destroyed either.
SpareLists& spareLists() {
    static auto* spare = new SpareLists;
    return *spare;
}

} // namespace

CorArgList newArgumentList() {
    try {
        return withSecondTry([] {
            auto list = spareLists().take();
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
    lists().takeBack(operation, list, [](CorArgList_s* freed) {
        spareLists().put(std::unique_ptr<CorArgList_s>(freed));
    });
}

} // namespace corvane::host
