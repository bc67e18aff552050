// Binds an option menu of the host to a fixed table of values with their labels.
#pragma once

#include "addon/base/HostLock.h"
#include "addon/lists/ListModelPreMapped.h"
#include "hostapi/CorHost.h"

#include <stdexcept>
#include <string>

namespace corvane::corutiltools {

template <typename T>
class OptionMenuStaticManager {
public:
    // Copies the rows. There is no option menu yet.
    OptionMenuStaticManager(const PreMappedValue<T>* rows, unsigned long count)
        : m_model(rows, count) {}

    void setGuiID(int guiId) { m_guiId = guiId; }

    // Makes the labels of the table the items of the option menu.
    void fill() {
        const HostLock lock;
        CorGUIOptionMenuDeleteAllItems(m_guiId);
        for (unsigned long index = 0; index < m_model.size(); ++index) {
            CorGUIOptionMenuAppendItem(m_guiId, m_model.displayString(index).c_str());
        }
    }

    // The value of the chosen item. Throws std::out_of_range when no item of the table is chosen.
    T value() const {
        const HostLock lock;
        return m_model.data(static_cast<unsigned long>(CorGUIOptionMenuGet(m_guiId) - 1));
    }

    // A value that the table does not have leaves the choice as it is.
    void setValue(T value) { choose(m_model.indexForData(value)); }

    // The same for a number that need not be a value of T.
    void setNumber(long number) {
        unsigned long index = 0;
        while (index < m_model.size() && static_cast<long>(m_model.data(index)) != number) {
            ++index;
        }
        choose(index < m_model.size() ? index : m_model.end());
    }

    // Throws std::out_of_range for a value that the table does not have.
    std::string getDisplayString(T value) const {
        const unsigned long index = m_model.indexForData(value);
        if (index == m_model.end()) {
            throw std::out_of_range("Error in OptionMenuStaticManager::getDisplayString:\n"
                                    "The requested item does not exist in the model.");
        }
        return m_model.displayString(index);
    }

private:
    void choose(unsigned long index) {
        if (index == m_model.end()) {
            return;
        }
        const HostLock lock;
        CorGUIOptionMenuSet(m_guiId, static_cast<long>(index) + 1);
    }

    ListModelPreMapped<T> m_model;
    int m_guiId = COR_HANDLE_NOT_CREATED;
};

} // namespace corvane::corutiltools
