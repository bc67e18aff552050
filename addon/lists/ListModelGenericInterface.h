// What a list model is to a list that shows its items, whatever their type.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvane::corutiltools {

class ListModelObserverInterface;

class ListModelGenericInterface {
public:
    enum ChangeType_e : std::int32_t {
        ItemsInserted = 0,
        ItemsRemoved = 1,
        ItemsChanged = 2,
        ModelReset = 3
    };

    struct ChangeInfo_s {
        ChangeType_e changeType;
        std::vector<unsigned long> indices; // from 0; empty for a reset
    };

    // Observers are not owned and must be removed before they die. Adding one twice counts once.
    virtual void addObserver(ListModelObserverInterface& observer) = 0;
    virtual void removeObserver(ListModelObserverInterface& observer) = 0;

    virtual unsigned long size() const = 0;

    // The answer of a search that found nothing: size() + 1, which no item can ever have, not even
    // one that is about to be appended.
    virtual unsigned long end() const = 0;

    // What a list shows for the item.
    virtual std::string displayString(unsigned long index) const = 0;

    // What a list shows when there is no item.
    virtual std::string emptyModelMessage() const = 0;

    virtual ~ListModelGenericInterface() = default;
};

} // namespace corvane::corutiltools
