// What a CorArgList points to: named values of several types.
#pragma once

#include "hostapi/CorTypes.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

struct CorArgList_s {
    using Value = std::variant<int, double, std::string, CorGenericFunc, int*, double*>;
    struct Entry {
        std::string name;
        Value value;
    };

    std::vector<Entry> entries; ///< in the order in which their names came first

    /// The last value of a name counts, whatever the types.
    void set(std::string_view name, Value value);

    /// Null when there is no such name, or its value has another type.
    template <class T>
    const T* find(std::string_view name) const {
        for (const Entry& entry : entries) {
            if (entry.name == name) {
                return std::get_if<T>(&entry.value);
            }
        }
        return nullptr;
    }
};

namespace corvane::host {

struct Operation;

/// Makes an empty list, to be given back by freeArgumentList. Null without memory.
CorArgList newArgumentList();
/// The list; null for one that was freed, or never came from here.
CorArgList known(CorArgList list);
/// Any other list is told to the trace and left alone. Null is nothing.
void freeArgumentList(const Operation& operation, CorArgList list);

} // namespace corvane::host
