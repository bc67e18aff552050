#include "host/gui/panels/ContourPanel.h"

#include "host/core/page/DataSet.h"
#include "host/gui/controls/NumberEdit.h"
#include "host/gui/panels/QuantityRange.h"

#include <QCheckBox>
#include <QComboBox>

namespace corvane::gui {

ContourPanel::ContourPanel(const Commands& commands) : StylePanel(commands) {
    addQuantity(tr("Variable"), "Contour/Variable", Quantities::All);
    addChoice(tr("Colours"), "Contour/ColorMap",
              {{tr("Viridis"), "Viridis"},
               {tr("Plasma"), "Plasma"},
               {tr("Cool to warm"), "CoolWarm"},
               {tr("Rainbow"), "Rainbow"},
               {tr("Gray"), "Gray"}});
    QCheckBox& automatic = addFlag(tr("Range of all values"), "Contour/AutomaticRange");
    connect(&automatic, &QCheckBox::clicked, this, [this](bool isOn) {
        if (!isOn) {
            startWithFullRange();
        }
        refresh();
    });
    m_minimum = &addNumber(tr("From"), "Contour/Minimum");
    m_maximum = &addNumber(tr("To"), "Contour/Maximum");
    addFlag(tr("Legend"), "Contour/ShowLegend");
}

void ContourPanel::refresh() {
    StylePanel::refresh();
    const bool isAutomatic = editor().isOn("Contour/AutomaticRange");
    m_minimum->setEnabled(!isAutomatic);
    m_maximum->setEnabled(!isAutomatic);
    const auto range =
        data() != nullptr ? rangeOf(*data(), editor().text("Contour/Variable")) : std::nullopt;
    if (isAutomatic && range) {
        m_minimum->setValue(range->first);
        m_maximum->setValue(range->second);
    }
}

void ContourPanel::startWithFullRange() {
    // A fixed range starts out as the visible one, not as one left from another variable.
    if (const auto range = data() != nullptr ? rangeOf(*data(), editor().text("Contour/Variable"))
                                             : std::nullopt) {
        editor().set("Contour/Minimum", range->first);
        editor().set("Contour/Maximum", range->second);
    }
}

} // namespace corvane::gui
