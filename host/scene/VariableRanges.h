// The variables of meshes and the ranges of their values.
#pragma once

#include "host/core/DataSet.h"

#include <vtkDataSet.h>
#include <vtkDataSetAttributes.h>

#include <vector>

namespace corvane::scene {

/// Scalars and vectors of the points and the cells, in the order in which they are met first. Of
/// arrays with the same name but another number of components the first one counts.
class VariableRanges {
public:
    void add(vtkDataSet& mesh);
    /// Variables without any finite value have the range 0..0.
    std::vector<host::Variable> variables() const;

private:
    void addArrays(vtkDataSetAttributes& attributes);
    void addArray(vtkDataArray& array);

    std::vector<host::Variable> m_variables;
};

} // namespace corvane::scene
