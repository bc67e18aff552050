// The variables of meshes and the ranges of their values.
#pragma once

#include <vtkDataSet.h>
#include <vtkDataSetAttributes.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

namespace corvane::scene {

/// Smallest and largest of some values; the smallest is above the largest before any was added.
struct ValueRange {
    double minimum = std::numeric_limits<double>::infinity();
    double maximum = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return minimum > maximum; }
    friend bool operator==(const ValueRange&, const ValueRange&) = default;
};

/// Of a variable: of the scalar itself or the length of the vector, and of a vector's components.
struct VariableRange {
    std::string name;
    int components = 1;
    ValueRange whole;
    std::array<ValueRange, 3> ofComponents;
};

/// Scalars and vectors of the points and the cells, in the order in which they are met first,
/// without the normals of surfaces. Of arrays with the same name but another number of components
/// the first one counts.
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
