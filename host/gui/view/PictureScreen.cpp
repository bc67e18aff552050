#include "host/gui/view/PictureScreen.h"

#include "host/core/page/Page.h"
#include "host/gui/view/DrawingArea.h"

#include <QScopedValueRollback>
#include <algorithm>

namespace corvane::gui {

void PictureScreen::present(const host::Page& page, bool /*allFrames*/) {
    const host::WorkArea& area = page.workArea;
    if (page.frames().empty() || area.width <= 0 || area.height <= 0) {
        m_area.clear();
        return;
    }
    const QScopedValueRollback drawing(m_isDrawing, true);
    // A macro that plays may have chosen another size: the picture is scaled to fit then.
    const QSize size = QSize(area.width, area.height).scaled(m_area.pixels(), Qt::KeepAspectRatio);
    m_area.show(m_renderer.draw(
        page, {ExportRegion_WorkArea, std::max(size.width(), 1), std::max(size.height(), 1), 1}));
    m_pacer.pictureShown();
}

} // namespace corvane::gui
