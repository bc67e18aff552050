// A list model whose items are of type T.
#pragma once

#include "addon/lists/ListModelGenericInterface.h"

#include <vector>

namespace corvane::corutiltools {

// Indices count from 0. A model refuses or ignores what does not suit its kind.
template <typename T>
class ListModelInterface : public virtual ListModelGenericInterface {
public:
    virtual const T& data(unsigned long index) const = 0;
    virtual void setData(unsigned long index, const T& item) = 0;

    // The first item equal to this one, or end().
    virtual unsigned long indexForData(const T& item) const = 0;

    virtual void insertItem(unsigned long index, const T& item) = 0;
    virtual void insertItems(unsigned long index, const std::vector<T>& items) = 0;
    virtual void removeItem(unsigned long index) = 0;
    virtual void removeItems(unsigned long first, unsigned long count) = 0;

    // Fills a model that is built when it is first watched.
    virtual void rebuildModel() = 0;

    // Gives up what rebuildModel can bring back. Called when nobody watches any more.
    virtual void freeMemory() = 0;
};

} // namespace corvane::corutiltools
