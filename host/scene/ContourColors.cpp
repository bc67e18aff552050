// The colours of one frame's contour variable.
#include "host/scene/ContourColors.h"

#include "host/scene/ColorMaps.h"

#include <tuple>

namespace corvane::scene {

void ContourColors::update(const host::ContourStyle& style, const host::DataSet& data) {
    m_variable = variableRef(style.variable);
    std::tie(m_minimum, m_maximum) =
        style.automaticRange ? rangeOf(m_variable, data) : std::pair(style.minimum, style.maximum);
    if (m_table == nullptr || style.colorMap != m_colorMap) {
        m_table = makeColorMap(style.colorMap);
        m_colorMap = style.colorMap;
    }
    m_table->SetTableRange(m_minimum, m_maximum);
    if (m_variable.component < 0) {
        m_table->SetVectorModeToMagnitude();
    } else {
        m_table->SetVectorModeToComponent();
        m_table->SetVectorComponent(m_variable.component);
    }
}

} // namespace corvane::scene
