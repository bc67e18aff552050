// The selection of a list that may have many rows selected.
#include "addon/ui/controls/ListMultiSelectionModel.h"

#include "addon/base/HostLock.h"
#include "hostapi/CorHost.h"

#include <algorithm>
#include <iterator>

namespace corvane::corutiltools {

ListMultiSelectionModel::ListMultiSelectionModel(ListViewInterface& parentView)
    : ListSelectionModelAbstract(parentView) {}

void ListMultiSelectionModel::setSelectedItems(const std::vector<unsigned long>& items) const {
    const int list = parentView().guiId();
    const HostLock lock;
    CorGUIListDeselectAllItems(list);
    std::vector<int> positions;
    std::transform(items.begin(), items.end(), std::back_inserter(positions),
                   [](unsigned long item) { return static_cast<int>(item); });
    eraseInvalidItems(positions);
    for (int& position : positions) {
        ++position;
    }
    CorGUIListSetSelectedItems(list, positions.data(), static_cast<long>(positions.size()));
    notifyOfChange();
}

} // namespace corvane::corutiltools
