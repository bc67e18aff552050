// One row of a fixed table of values with their labels.
#pragma once

#include <string>

namespace corvane::corutiltools {

template <typename T>
struct PreMappedValue {
    std::string displayString;
    T value;
};

} // namespace corvane::corutiltools
