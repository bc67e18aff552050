#include "host/gui/panels/SlicePanel.h"

#include "host/core/page/DataSet.h"
#include "host/core/page/FrameStyle.h"
#include "host/gui/controls/Numbers.h"
#include "host/gui/controls/ValueSlider.h"

#include <QComboBox>
#include <array>
#include <utility>

namespace corvane::gui {

namespace {

constexpr std::array<double host::Vec3::*, 3> coordinates{&host::Vec3::x, &host::Vec3::y,
                                                          &host::Vec3::z};

std::pair<double, double> extentAlong(const host::DataSet& data, long axis) {
    const auto coordinate = coordinates[static_cast<std::size_t>(axis - 1)];
    return {data.bounds.min.*coordinate, data.bounds.max.*coordinate};
}

} // namespace

SlicePanel::SlicePanel(const Commands& commands) : PlotListPanel(commands, "Slice") {
    QComboBox& axis = addChoice(tr("Across"), "Axis",
                                {{tr("X axis"), "1"}, {tr("Y axis"), "2"}, {tr("Z axis"), "3"}});
    m_position = &addSlider(tr("Position"), "Position", 0.0, 1.0);
    connect(&axis, &QComboBox::activated, this, &SlicePanel::moveToMiddle);
    addAppearanceRows();
}

int SlicePanel::count() const {
    return data() != nullptr ? host::FrameStyle::sliceCount : 0;
}

QString SlicePanel::titleOf(int number) const {
    const long axis = std::get<long>(valueOf(number, "Axis"));
    const double position = std::get<double>(valueOf(number, "Position"));
    return tr("%1 = %2").arg(QStringLiteral("XYZ")[axis - 1]).arg(shortText(position));
}

void SlicePanel::refreshForm() {
    if (data() != nullptr && !data()->bounds.isEmpty() && editor().get("Axis")) {
        const auto [minimum, maximum] = extentAlong(*data(), std::get<long>(*editor().get("Axis")));
        m_position->setRange(minimum, maximum);
    }
}

void SlicePanel::moveToMiddle() {
    // The former position may lie outside of the data along the new axis.
    if (data() != nullptr && !data()->bounds.isEmpty() && editor().get("Axis")) {
        const auto [minimum, maximum] = extentAlong(*data(), std::get<long>(*editor().get("Axis")));
        editor().set("Position", 0.5 * (minimum + maximum));
    }
}

} // namespace corvane::gui
