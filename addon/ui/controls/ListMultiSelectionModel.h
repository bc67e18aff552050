// The selection of a list that may have many rows selected.
#pragma once

#include "addon/ui/controls/ListSelectionModelAbstract.h"

#include <vector>

namespace corvane::corutiltools {

class ListMultiSelectionModel : public ListSelectionModelAbstract {
public:
    explicit ListMultiSelectionModel(ListViewInterface& parentView);

    void setSelectedItems(const std::vector<unsigned long>& items) const override;
};

} // namespace corvane::corutiltools
