#include "host/scene/style/ContourColors.h"

#include "host/scene/style/ColorMaps.h"

namespace corvane::scene {

void ContourColors::update(const host::ContourStyle& style, const SceneDataSet& data) {
    m_variable = variableRef(style.variable);
    m_range =
        style.automaticRange ? data.rangeOf(m_variable) : ValueRange{style.minimum, style.maximum};
    if (m_table == nullptr || style.colorMap != m_colorMap) {
        m_table = makeColorMap(style.colorMap);
        m_colorMap = style.colorMap;
    }
    m_table->SetTableRange(m_range.minimum, m_range.maximum);
    if (m_variable.component < 0) {
        m_table->SetVectorModeToMagnitude();
    } else {
        m_table->SetVectorModeToComponent();
        m_table->SetVectorComponent(m_variable.component);
    }
}

} // namespace corvane::scene
