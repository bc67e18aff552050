// The range of values of a quantity of the data.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace corvane::host {
class DataSet;
}

namespace corvane::gui {

/// The minimum and maximum of a scalar or of the magnitude of a vector; for a component of a vector
/// ("U:X") a range that contains all of its values. Nothing for an unknown name.
std::optional<std::pair<double, double>> rangeOf(const host::DataSet& data,
                                                 const std::string& quantity);

} // namespace corvane::gui
