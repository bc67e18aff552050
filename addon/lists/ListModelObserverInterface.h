// Whoever wants to know what changes in a list model.
#pragma once

#include "addon/lists/ListModelGenericInterface.h"

namespace corvane::corutiltools {

class ListModelObserverInterface {
public:
    virtual ~ListModelObserverInterface() = default;

    // The model has changed already. An exception reaches whoever changed it, and the observers
    // after this one hear nothing of the change.
    virtual void modelChanged(const ListModelGenericInterface::ChangeInfo_s& change) = 0;
};

} // namespace corvane::corutiltools
