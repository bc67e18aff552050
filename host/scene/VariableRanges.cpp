// The variables of meshes and the ranges of their values.
#include "host/scene/VariableRanges.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkPointData.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace corvane::scene {

namespace {

bool isVariable(const vtkDataArray& array, const char* name) {
    const int components = array.GetNumberOfComponents();
    const bool hasName = name != nullptr && *name != '\0';
    // Names like "vtkGhostType" mark VTK's bookkeeping.
    return hasName && (components == 1 || components == 3) && !std::string(name).starts_with("vtk");
}

} // namespace

void VariableRanges::add(vtkDataSet& mesh) {
    addArrays(*mesh.GetPointData());
    addArrays(*mesh.GetCellData());
}

std::vector<host::Variable> VariableRanges::variables() const {
    auto variables = m_variables;
    for (auto& variable : variables)
        if (variable.minimum > variable.maximum)
            variable.minimum = variable.maximum = 0.0;
    return variables;
}

void VariableRanges::addArrays(vtkDataSetAttributes& attributes) {
    for (int i = 0; i < attributes.GetNumberOfArrays(); ++i)
        if (auto* const array = attributes.GetArray(i))
            if (isVariable(*array, array->GetName()))
                addArray(*array);
}

void VariableRanges::addArray(vtkDataArray& array) {
    const std::string name = array.GetName();
    const int components = array.GetNumberOfComponents();
    auto found = std::find_if(m_variables.begin(), m_variables.end(),
                              [&](const auto& variable) { return variable.name == name; });
    if (found == m_variables.end()) {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        found = m_variables.insert(found, {name, components, infinity, -infinity});
    }
    if (found->components != components || array.GetNumberOfTuples() == 0)
        return;
    std::array<double, 2> range{};
    array.GetFiniteRange(range.data(), components == 1 ? 0 : -1);
    if (range[0] > range[1])
        return;
    found->minimum = std::min(found->minimum, range[0]);
    found->maximum = std::max(found->maximum, range[1]);
}

} // namespace corvane::scene
