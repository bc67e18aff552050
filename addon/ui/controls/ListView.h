// Keeps a list of the host in step with a list model.
#pragma once

#include "addon/lists/ListModelObserverInterface.h"
#include "addon/ui/controls/ListSelectionModelInterface.h"
#include "addon/ui/controls/ListViewInterface.h"
#include "hostapi/CorTypes.h"

#include <memory>
#include <vector>

namespace corvane::corutiltools {

class ListView : public ListModelObserverInterface, public virtual ListViewInterface {
public:
    // Shows its model at once.
    ListView(int guiId, SelectionModel_e selectionModel);

    // Has no list yet and is suspended: set the handle and resume updates.
    explicit ListView(SelectionModel_e selectionModel);

    ~ListView() override;

    ListView(const ListView&) = delete;
    ListView& operator=(const ListView&) = delete;

    // Replaces the selection model; the observers of the old one are not taken over.
    void init(SelectionModel_e selectionModel);

    void setModel(ListModelGenericInterface* model) override;
    void setModel(ListModelGenericInterface& model) override;
    ListModelGenericInterface* model() override { return m_model; }
    ListSelectionModelInterface& selectionModel() override { return *m_selectionModel; }
    int guiId() const override { return m_guiId; }
    void setGuiID(int guiId) override { m_guiId = guiId; }
    void suspendUpdates() override;
    void resumeUpdates() override;

    // Selected indices stay selected, whichever items have them now.
    void modelChanged(const ListModelGenericInterface::ChangeInfo_s& change) override;

    // Fills the list anew. Does nothing without handle or model, or while updates are suspended.
    void rebuildList();

    // Makes the model's message the only line of a dimmed list.
    void displayEmptyModelMessage();

private:
    using Indices = std::vector<unsigned long>;

    bool isLive() const;
    void replaceModel(ListModelGenericInterface* model, bool takesOwnership);
    void fillList();
    void appendItem(unsigned long index);
    bool areBehindTheList(const Indices& indices) const;
    void showInserted(const Indices& indices);
    void showRemoved(const Indices& indices);
    void showChanged(const Indices& indices);

    int m_guiId = COR_HANDLE_NOT_CREATED;
    ListModelGenericInterface* m_model = nullptr;
    bool m_ownsModel = false;
    bool m_updatesSuspended;
    std::unique_ptr<ListSelectionModelInterface> m_selectionModel;
};

} // namespace corvane::corutiltools
