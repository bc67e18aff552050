// What a CorArgList points to: named values of several types.
#include "host/api/ArgumentList.h"

#include <utility>

void CorArgList_s::set(std::string_view name, Value value) {
    for (Entry& entry : entries) {
        if (entry.name == name) {
            entry.value = std::move(value);
            return;
        }
    }
    entries.push_back({std::string(name), std::move(value)});
}
