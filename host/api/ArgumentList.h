// What a CorArgList points to: named values of several types.
#pragma once

#include "hostapi/CorTypes.h"

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

struct CorArgList_s {
    using Value = std::variant<int, double, std::string, CorGenericFunc, int*, double*>;
    struct Entry {
        template <class T, class Source>
        Entry(std::string_view itsName, std::in_place_type_t<T> type, const Source& source)
            : name(itsName), value(type, source) {}

        std::string name;
        Value value;
    };

    std::vector<Entry> entries; ///< in the order in which their names came first

    /// The last value of a name counts, whatever the types. A T is made of the source.
    template <class T, class Source>
    void set(std::string_view name, const Source& source) {
        for (Entry& entry : entries) {
            if (entry.name == name) {
                entry.value.emplace<T>(source);
                return;
            }
        }
        if (entries.empty()) {
            entries.reserve(8); // a path and a value
        }
        entries.emplace_back(name, std::in_place_type<T>, source);
    }

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
