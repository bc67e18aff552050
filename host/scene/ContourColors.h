// The colours of one frame's contour variable.
#pragma once

#include "host/core/DataSet.h"
#include "host/core/FrameStyle.h"
#include "host/scene/VariableRef.h"

#include <vtkLookupTable.h>
#include <vtkSmartPointer.h>

#include <string>

namespace corvane::scene {

class ContourColors {
public:
    void update(const host::ContourStyle& style, const host::DataSet& data);

    const VariableRef& variable() const { return m_variable; }
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    /// Knows range and component, stays the same object. Null before update().
    vtkLookupTable* table() const { return m_table; }

private:
    std::string m_colorMap;
    VariableRef m_variable;
    double m_minimum = 0.0;
    double m_maximum = 1.0;
    vtkSmartPointer<vtkLookupTable> m_table;
};

} // namespace corvane::scene
