#include "host/gui/panels/IsoSurfacePanel.h"

#include "host/core/page/DataSet.h"
#include "host/core/page/FrameStyle.h"
#include "host/gui/base/QtText.h"
#include "host/gui/controls/Numbers.h"
#include "host/gui/controls/ValueSlider.h"
#include "host/gui/panels/QuantityRange.h"

#include <QComboBox>

namespace corvane::gui {

IsoSurfacePanel::IsoSurfacePanel(const Commands& commands) : PlotListPanel(commands, "IsoSurface") {
    QComboBox& variable = addQuantity(tr("Variable"), "Variable", Quantities::All);
    m_value = &addSlider(tr("Value"), "Value", 0.0, 1.0);
    connect(&variable, &QComboBox::activated, this, &IsoSurfacePanel::moveToMiddle);
    addAppearanceRows();
}

int IsoSurfacePanel::count() const {
    return data() != nullptr ? host::FrameStyle::isoSurfaceCount : 0;
}

QString IsoSurfacePanel::titleOf(int number) const {
    const auto variable = std::get<std::string>(valueOf(number, "Variable"));
    const double value = std::get<double>(valueOf(number, "Value"));
    return tr("%1 = %2").arg(variable.empty() ? QStringLiteral("—") : toQt(variable),
                             shortText(value));
}

void IsoSurfacePanel::refreshForm() {
    if (const auto range =
            data() != nullptr ? rangeOf(*data(), editor().text("Variable")) : std::nullopt) {
        m_value->setRange(range->first, range->second);
    }
}

void IsoSurfacePanel::moveToMiddle() {
    // The former value may lie outside of the range of the new variable.
    if (const auto range =
            data() != nullptr ? rangeOf(*data(), editor().text("Variable")) : std::nullopt) {
        editor().set("Value", 0.5 * range->first + 0.5 * range->second);
    }
}

} // namespace corvane::gui
