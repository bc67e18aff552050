// What a style's variable name means in a mesh.
#pragma once

#include "host/core/DataSet.h"

#include <string>
#include <utility>

namespace corvane::scene {

/// An array, or one component of a vector ("U:X").
struct VariableRef {
    std::string array;
    int component = -1; ///< 0..2, or -1: the scalar itself, the length of a vector

    friend bool operator==(const VariableRef&, const VariableRef&) = default;
};

VariableRef variableRef(const std::string& name);

/// The values that the reference can have in the data; 0..0 when there is no such variable. Of
/// components only the bound by the vector's length is known.
std::pair<double, double> rangeOf(const VariableRef& variable, const host::DataSet& data);

/// How a legend names it: "p", "|U|", "U X".
std::string displayName(const VariableRef& variable, const host::DataSet& data);

} // namespace corvane::scene
