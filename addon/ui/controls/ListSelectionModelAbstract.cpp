// The part of a selection model that all selection models share.
#include "addon/ui/controls/ListSelectionModelAbstract.h"

#include "addon/base/HostLock.h"
#include "hostapi/CorHost.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace corvane::corutiltools {

namespace {

struct HostArrayDeallocator {
    void operator()(long* positions) const {
        void* array = positions;
        CorUtilArrayDealloc(&array);
    }
};

long itemCount(int list) {
    const HostLock lock;
    return CorGUIListGetItemCount(list);
}

} // namespace

ListSelectionModelAbstract::ListSelectionModelAbstract(ListViewInterface& parentView)
    : m_parentView(parentView) {}

ListSelectionModelAbstract::~ListSelectionModelAbstract() = default;

void ListSelectionModelAbstract::addObserver(ListSelectionModelObserverInterface& observer) {
    m_observers.insert(&observer);
}

void ListSelectionModelAbstract::removeObserver(ListSelectionModelObserverInterface& observer) {
    m_observers.erase(&observer);
}

void ListSelectionModelAbstract::selectionChanged() {
    notifyOfChange();
}

void ListSelectionModelAbstract::getSelectedItems(std::vector<unsigned long>& selectedItems) const {
    const HostLock lock;
    long* positions = nullptr;
    long count = 0;
    CorGUIListGetSelectedItems(m_parentView.guiId(), &positions, &count);
    const std::unique_ptr<long, HostArrayDeallocator> owner(positions);
    selectedItems.clear();
    if (positions) {
        std::transform(positions, positions + count, std::back_inserter(selectedItems),
                       [](long position) { return static_cast<unsigned long>(position - 1); });
    }
}

int ListSelectionModelAbstract::getSelectedItem() const {
    std::vector<unsigned long> items;
    getSelectedItems(items);
    return items.size() == 1 ? static_cast<int>(items.front()) : -1;
}

void ListSelectionModelAbstract::setSelectedItem(int item) const {
    const int list = m_parentView.guiId();
    const HostLock lock;
    if (item >= 0 && item < itemCount(list)) {
        CorGUIListSetSelectedItem(list, item + 1L);
    } else {
        CorGUIListDeselectAllItems(list);
    }
    notifyOfChange();
}

void ListSelectionModelAbstract::eraseInvalidItems(std::vector<int>& items) const {
    const long count = itemCount(m_parentView.guiId());
    std::erase_if(items, [count](int item) { return item < 0 || item >= count; });
}

void ListSelectionModelAbstract::eraseInvalidItems(std::vector<unsigned long>& items) const {
    const auto count = static_cast<unsigned long>(itemCount(m_parentView.guiId()));
    std::erase_if(items, [count](unsigned long item) { return item >= count; });
}

void ListSelectionModelAbstract::notifyOfChange() const {
    std::vector<unsigned long> selectedItems;
    getSelectedItems(selectedItems);
    // A copy, since observers may come and go while they are told.
    const std::set<ListSelectionModelObserverInterface*> observers = m_observers;
    for (ListSelectionModelObserverInterface* const observer : observers) {
        if (m_observers.count(observer) != 0) {
            observer->selectionChanged(selectedItems);
        }
    }
}

} // namespace corvane::corutiltools
