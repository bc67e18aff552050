#include "host/gui/panels/QuantityRange.h"

#include "host/core/page/DataSet.h"

namespace corvane::gui {

std::optional<std::pair<double, double>> rangeOf(const host::DataSet& data,
                                                 const std::string& quantity) {
    if (const host::Variable* const variable = data.findVariable(quantity)) {
        return std::pair{variable->minimum, variable->maximum};
    }
    const host::Variable* const vector =
        quantity.size() > 2 ? data.findVector(quantity.substr(0, quantity.size() - 2)) : nullptr;
    if (vector == nullptr) {
        return std::nullopt;
    }
    return std::pair{-vector->maximum, vector->maximum};
}

} // namespace corvane::gui
