// The selection of a list that has at most one row selected.
#include "addon/ui/controls/ListSingleSelectionModel.h"

#include "addon/base/HostLock.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

ListSingleSelectionModel::ListSingleSelectionModel(ListViewInterface& parentView)
    : ListSelectionModelAbstract(parentView) {}

void ListSingleSelectionModel::setSelectedItems(const std::vector<unsigned long>& items) const {
    const int list = parentView().guiId();
    const HostLock lock;
    CorGUIListDeselectAllItems(list);
    std::vector<unsigned long> validItems(items);
    eraseInvalidItems(validItems);
    if (!validItems.empty()) {
        CorGUIListSetSelectedItem(list, static_cast<long>(validItems.front()) + 1);
    }
    notifyOfChange();
}

} // namespace corvane::corutiltools
