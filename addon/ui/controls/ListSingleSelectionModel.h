// The selection of a list that has at most one row selected.
#pragma once

#include "addon/ui/controls/ListSelectionModelAbstract.h"

#include <vector>

namespace corvane::corutiltools {

class ListSingleSelectionModel : public ListSelectionModelAbstract {
public:
    explicit ListSingleSelectionModel(ListViewInterface& parentView);

    // Selects the first of the items that exist, first as given and not the smallest.
    void setSelectedItems(const std::vector<unsigned long>& items) const override;
};

} // namespace corvane::corutiltools
