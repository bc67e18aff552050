// A list of the host that shows a list model.
#pragma once

#include <cstdint>

namespace corvane::corutiltools {

class ListModelGenericInterface;
class ListSelectionModelInterface;

class ListViewInterface {
public:
    // Any other value than single makes a multi-selection model.
    enum SelectionModel_e : std::int32_t { SelectionModel_Single = 0, SelectionModel_Multi = 1 };

    // The pointer form takes ownership, the reference form does not.
    virtual void setModel(ListModelGenericInterface* model) = 0;
    virtual void setModel(ListModelGenericInterface& model) = 0;

    // Null while there is none.
    virtual ListModelGenericInterface* model() = 0;

    // Lives until the view dies or makes another one.
    virtual ListSelectionModelInterface& selectionModel() = 0;

    // Handle of the host's list, -2 while unset. Setting it shows nothing yet: resume updates then.
    virtual int guiId() const = 0;
    virtual void setGuiID(int guiId) = 0;

    // A suspended view does not touch the host's list; resuming brings it up to date.
    virtual void suspendUpdates() = 0;
    virtual void resumeUpdates() = 0;

    virtual ~ListViewInterface() = default;
};

} // namespace corvane::corutiltools
