#include "host/gui/panels/StreamtracePanel.h"

#include "host/gui/controls/ColorButton.h"
#include "host/gui/controls/NumberEdit.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

namespace corvane::gui {

namespace {

constexpr double lineOfSeeds = 1.0;
constexpr double planeOfSeeds = 2.0;
constexpr double pointsOfSeeds = 3.0;

} // namespace

StreamtracePanel::StreamtracePanel(const Commands& commands) : StylePanel(commands) {
    addFlag(tr("Show"), "Streamtraces/Show");
    addQuantity(tr("Variable"), "Streamtraces/Variable", Quantities::Vectors);
    addChoice(tr("Seeds"), "Streamtraces/SeedKind",
              {{tr("On a line"), "1"}, {tr("On a plane"), "2"}, {tr("At points"), "3"}});
    addNumber(tr("Count"), "Streamtraces/SeedCount");
    addPoint(tr("Start"), "Streamtraces/SeedStart");
    addPoint(tr("End"), "Streamtraces/SeedEnd");
    addPoint(tr("Corner"), "Streamtraces/SeedCorner");
    addText(tr("Points"), "Streamtraces/SeedPoints")
        .setPlaceholderText(QStringLiteral("x y z; x y z"));
    addChoice(tr("Direction"), "Streamtraces/Direction",
              {{tr("Forward"), "1"}, {tr("Backward"), "2"}, {tr("Both"), "3"}});
    addFlag(tr("Tubes"), "Streamtraces/Tubes");
    addNumber(tr("Radius"), "Streamtraces/Radius").setToolTip(tr("0: chosen from the data"));
    addFlag(tr("Colour by variable"), "Streamtraces/UseContour");
    m_color = &addColor(tr("Colour"), "Streamtraces/Color");
    addFlag(tr("Markers"), "StreamAttributes/StreamTiming/ShowMarkers");
    addFlag(tr("Dashes"), "StreamAttributes/StreamTiming/ShowDashes");
    addNumber(tr("Time step"), "StreamAttributes/StreamTiming/DeltaTime")
        .setToolTip(tr("Time from one marker, or dash, to the next"));
    addNumber(tr("Time of first"), "StreamAttributes/StreamTiming/TimeAnchor")
        .setToolTip(tr("Moves markers and dashes along the flow"));
}

void StreamtracePanel::refresh() {
    StylePanel::refresh();
    m_color->setEnabled(!editor().isOn("Streamtraces/UseContour"));
    showSeedRows();
}

void StreamtracePanel::showSeedRows() {
    const double kind = editor().number("Streamtraces/SeedKind");
    const auto showRow = [this](const char* name, bool isShown) {
        if (QWidget* const control = findChild<QWidget*>(QString::fromLatin1(name))) {
            QWidget* const row = form().indexOf(control) >= 0 ? control : control->parentWidget();
            form().setRowVisible(row, isShown);
        }
    };
    showRow("Streamtraces/SeedCount", kind != pointsOfSeeds);
    showRow("Streamtraces/SeedStart/X", kind == lineOfSeeds || kind == planeOfSeeds);
    showRow("Streamtraces/SeedEnd/X", kind == lineOfSeeds || kind == planeOfSeeds);
    showRow("Streamtraces/SeedCorner/X", kind == planeOfSeeds);
    showRow("Streamtraces/SeedPoints", kind == pointsOfSeeds);
}

} // namespace corvane::gui
