#include "host/gui/panels/SurfacePanel.h"

#include "host/core/page/DataSet.h"
#include "host/gui/base/QtText.h"

namespace corvane::gui {

SurfacePanel::SurfacePanel(const Commands& commands) : PlotListPanel(commands, "Surface") {
    addAppearanceRows();
    addFlag(tr("Mesh"), "ShowMesh");
}

int SurfacePanel::count() const {
    return data() != nullptr ? static_cast<int>(data()->blocks.size()) : 0;
}

QString SurfacePanel::titleOf(int number) const {
    const host::Block& block = data()->blocks[static_cast<std::size_t>(number) - 1];
    return block.name.empty() ? tr("Block %1").arg(number) : toQt(block.name);
}

} // namespace corvane::gui
