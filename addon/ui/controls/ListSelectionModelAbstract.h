// The part of a selection model that all selection models share.
#pragma once

#include "addon/ui/controls/ListSelectionModelInterface.h"
#include "addon/ui/controls/ListSelectionModelObserverInterface.h"
#include "addon/ui/controls/ListViewInterface.h"

#include <set>
#include <vector>

namespace corvane::corutiltools {

// Reads and writes the selection of the parent view's list.
class ListSelectionModelAbstract : public ListSelectionModelInterface {
public:
    // The view must outlive the model.
    explicit ListSelectionModelAbstract(ListViewInterface& parentView);
    ~ListSelectionModelAbstract() override;

    ListSelectionModelAbstract(const ListSelectionModelAbstract&) = delete;
    ListSelectionModelAbstract& operator=(const ListSelectionModelAbstract&) = delete;

    void addObserver(ListSelectionModelObserverInterface& observer) override;
    void removeObserver(ListSelectionModelObserverInterface& observer) override;
    void selectionChanged() override;
    void getSelectedItems(std::vector<unsigned long>& selectedItems) const override;
    int getSelectedItem() const override;
    void setSelectedItem(int item) const override;

protected:
    ListViewInterface& parentView() const { return m_parentView; }

    // Drops the indices that no row has; the others keep their order.
    void eraseInvalidItems(std::vector<int>& items) const;
    void eraseInvalidItems(std::vector<unsigned long>& items) const;

    // Tells the observers what is selected. When one throws, those after it hear nothing.
    void notifyOfChange() const;

private:
    std::set<ListSelectionModelObserverInterface*> m_observers;
    ListViewInterface& m_parentView;
};

} // namespace corvane::corutiltools
