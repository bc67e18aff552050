// The variables of meshes and the ranges of their values.
#pragma once

#include <vtkDataSet.h>
#include <vtkDataSetAttributes.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

namespace corvane::scene {

/// The smallest and the largest value; inverted while empty.
struct ValueRange {
    double minimum = std::numeric_limits<double>::infinity();
    double maximum = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return minimum > maximum; }
    friend bool operator==(const ValueRange&, const ValueRange&) = default;
};

/// The ranges of a variable: of a scalar or the magnitude of a vector, and of its components.
struct VariableRange {
    std::string name;
    int components = 1;
    ValueRange whole;
    std::array<ValueRange, 3> ofComponents;
};

/// Collects the scalars and vectors of points and cells in order of first appearance, except for
/// surface normals. When arrays of one name differ in the number of components, the first counts.
class VariableRanges {
public:
    void add(vtkDataSet& mesh);
    const std::vector<VariableRange>& ranges() const { return m_ranges; }

private:
    void addArrays(vtkDataSetAttributes& attributes);
    void addArray(vtkDataArray& array);

    std::vector<VariableRange> m_ranges;
};

} // namespace corvane::scene
