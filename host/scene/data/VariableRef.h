// The array and component that a variable name of a style refers to.
#pragma once

#include "host/core/page/DataSet.h"

#include <string>

namespace corvane::scene {

/// An array, or one component of a vector ("U:X").
struct VariableRef {
    std::string array;
    int component = -1; ///< 0..2, or -1: the scalar, or the magnitude of a vector

    friend bool operator==(const VariableRef&, const VariableRef&) = default;
};

VariableRef variableRef(const std::string& name);

/// How a legend names it: "p", "|U|", "U X".
std::string displayName(const VariableRef& variable, const host::DataSet& data);

} // namespace corvane::scene
