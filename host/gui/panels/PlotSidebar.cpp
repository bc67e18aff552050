#include "host/gui/panels/PlotSidebar.h"

#include "host/gui/commands/ViewCommand.h"
#include "host/gui/controls/CollapsibleSection.h"
#include "host/gui/panels/AnnotationPanel.h"
#include "host/gui/panels/ContourPanel.h"
#include "host/gui/panels/IsoSurfacePanel.h"
#include "host/gui/panels/LightPanel.h"
#include "host/gui/panels/SlicePanel.h"
#include "host/gui/panels/StreamtracePanel.h"
#include "host/gui/panels/SurfacePanel.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace corvane::gui {

PlotSidebar::PlotSidebar(const Commands& commands)
    : m_commands(commands), m_content(new QWidget), m_column(new QVBoxLayout(m_content)) {
    setObjectName(QStringLiteral("plotSidebar"));
    setWindowTitle(tr("Plots"));
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    m_column->setContentsMargins(4, 2, 4, 4);
    m_column->setSpacing(2);
    addSection(tr("Contour"), "contour", new ContourPanel(commands), true);
    addSection(tr("Surfaces"), "surfaces", new SurfacePanel(commands), true);
    addSection(tr("Slices"), "slices", new SlicePanel(commands), true);
    addSection(tr("Isosurfaces"), "isoSurfaces", new IsoSurfacePanel(commands), false);
    addSection(tr("Streamtraces"), "streamtraces", new StreamtracePanel(commands), false);
    addSection(tr("Light"), "light", new LightPanel(commands), false);
    addSection(tr("Annotations"), "annotations", new AnnotationPanel(commands), false);
    m_column->addStretch(1);
    auto* const scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(m_content);
    scroll->setMinimumWidth(m_content->minimumSizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width());
    setWidget(scroll);
    refresh();
}

void PlotSidebar::addSection(const QString& title, const char* key, StylePanel* panel,
                             bool isOpen) {
    m_panels.push_back(panel);
    m_column->addWidget(new CollapsibleSection(title, QString::fromLatin1(key), *panel, isOpen));
}

void PlotSidebar::refresh() {
    m_content->setEnabled(spatialFrameWithData(m_commands.session()) != nullptr);
    for (StylePanel* const panel : m_panels) {
        panel->refresh();
    }
}

} // namespace corvane::gui
