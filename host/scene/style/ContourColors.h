// The colours of one frame's contour variable.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/scene/data/SceneDataSet.h"
#include "host/scene/data/VariableRef.h"

#include <vtkLookupTable.h>
#include <vtkSmartPointer.h>

#include <string>

namespace corvane::scene {

class ContourColors {
public:
    void update(const host::ContourStyle& style, const SceneDataSet& data);

    const VariableRef& variable() const { return m_variable; }
    const ValueRange& range() const { return m_range; }
    /// With range and component set; always the same object. Null before update().
    vtkLookupTable* table() const { return m_table; }

private:
    std::string m_colorMap;
    VariableRef m_variable;
    ValueRange m_range{0.0, 1.0};
    vtkSmartPointer<vtkLookupTable> m_table;
};

} // namespace corvane::scene
