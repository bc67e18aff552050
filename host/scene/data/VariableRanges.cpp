#include "host/scene/data/VariableRanges.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkPointData.h>

#include <algorithm>
#include <array>
#include <string>

namespace corvane::scene {

namespace {

bool isVariable(const vtkDataArray& array, const char* name) {
    const int components = array.GetNumberOfComponents();
    const bool hasName = name != nullptr && *name != '\0';
    // Arrays such as "vtkGhostType" are VTK's own bookkeeping.
    return hasName && (components == 1 || components == 3) && !std::string(name).starts_with("vtk");
}

constexpr int lengthOfVector = -1;

void addValues(ValueRange& range, vtkDataArray& array, int component) {
    std::array<double, 2> values{};
    if (array.GetNumberOfTuples() == 0) {
        return;
    }
    array.GetFiniteRange(values.data(), component);
    // VTK returns an inverted range when there is no finite value.
    if (values[0] > values[1]) {
        return;
    }
    range.minimum = std::min(range.minimum, values[0]);
    range.maximum = std::max(range.maximum, values[1]);
}

} // namespace

void VariableRanges::add(vtkDataSet& mesh) {
    addArrays(*mesh.GetPointData());
    addArrays(*mesh.GetCellData());
}

void VariableRanges::addArrays(vtkDataSetAttributes& attributes) {
    for (int i = 0; i < attributes.GetNumberOfArrays(); ++i) {
        if (auto* const array = attributes.GetArray(i)) {
            if (array != attributes.GetNormals() && isVariable(*array, array->GetName())) {
                addArray(*array);
            }
        }
    }
}

void VariableRanges::addArray(vtkDataArray& array) {
    const std::string name = array.GetName();
    const int components = array.GetNumberOfComponents();
    auto found = std::find_if(m_ranges.begin(), m_ranges.end(),
                              [&](const auto& range) { return range.name == name; });
    if (found == m_ranges.end()) {
        found = m_ranges.insert(found, {name, components, {}, {}});
    }
    if (found->components != components) {
        return;
    }
    addValues(found->whole, array, components == 1 ? 0 : lengthOfVector);
    for (int c = 0; components == 3 && c < 3; ++c) {
        addValues(found->ofComponents[static_cast<std::size_t>(c)], array, c);
    }
}

} // namespace corvane::scene
