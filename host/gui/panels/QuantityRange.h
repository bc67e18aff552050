// The range of a quantity of the data.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace corvane::host {
class DataSet;
}

namespace corvane::gui {

/// Least and largest value of an array, of the length of a vector, or a range that holds those of a
/// component ("U:X"). Nothing for an unknown name.
std::optional<std::pair<double, double>> rangeOf(const host::DataSet& data,
                                                 const std::string& quantity);

} // namespace corvane::gui
