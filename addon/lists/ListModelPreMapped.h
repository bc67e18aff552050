// A list model over a fixed table.
#pragma once

#include "addon/lists/ListModelAbstract.h"
#include "addon/lists/PreMappedValue.h"

#include <string>
#include <vector>

namespace corvane::corutiltools {

// Read-only: the changing operations do nothing. data and displayString throw std::out_of_range for
// an index without row.
template <typename T>
class ListModelPreMapped : public ListModelAbstract<T> {
public:
    // Copies the rows.
    ListModelPreMapped(const PreMappedValue<T>* rows, unsigned long count)
        : m_rows(rows, rows + count) {}

    unsigned long size() const override { return m_rows.size(); }
    std::string displayString(unsigned long index) const override {
        return m_rows.at(index).displayString;
    }
    const T& data(unsigned long index) const override { return m_rows.at(index).value; }
    void rebuildModel() override {}

private:
    const std::vector<PreMappedValue<T>> m_rows;
};

} // namespace corvane::corutiltools
