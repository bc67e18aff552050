// Whoever wants to know what is selected in a list.
#pragma once

#include <vector>

namespace corvane::corutiltools {

class ListSelectionModelObserverInterface {
public:
    virtual ~ListSelectionModelObserverInterface() = default;

    // Indices from 0, ascending. Also called when the program, and not the user, has selected.
    virtual void selectionChanged(const std::vector<unsigned long>& selectedItems) = 0;
};

} // namespace corvane::corutiltools
