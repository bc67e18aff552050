// The selection of a list.
#pragma once

#include <vector>

namespace corvane::corutiltools {

class ListSelectionModelObserverInterface;

// The selection itself lives in the host's list, which is why setting it is const here. Indices
// count from 0; those of no item are ignored.
class ListSelectionModelInterface {
public:
    // Observers are not owned and must be removed before they die. Adding one twice counts once.
    virtual void addObserver(ListSelectionModelObserverInterface& observer) = 0;
    virtual void removeObserver(ListSelectionModelObserverInterface& observer) = 0;

    // To be called when the user has changed the selection: tells the observers.
    virtual void selectionChanged() = 0;

    // Ascending; replaces what selectedItems held.
    virtual void getSelectedItems(std::vector<unsigned long>& selectedItems) const = 0;

    // The setters tell the observers, as if the user had selected.
    virtual void setSelectedItems(const std::vector<unsigned long>& items) const = 0;

    // -1 unless exactly one item is selected.
    virtual int getSelectedItem() const = 0;

    // Anything that is no item's index deselects all.
    virtual void setSelectedItem(int item) const = 0;

    virtual ~ListSelectionModelInterface() = default;
};

} // namespace corvane::corutiltools
