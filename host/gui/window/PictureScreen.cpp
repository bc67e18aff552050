// The host's screen: draws the page into the drawing area.
#include "host/gui/window/PictureScreen.h"

#include "host/core/page/Page.h"
#include "host/gui/window/DrawingArea.h"

#include <QScopedValueRollback>

namespace corvane::gui {

void PictureScreen::present(const host::Page& page, bool /*allFrames*/) {
    const host::WorkArea& area = page.workArea;
    if (page.frames().empty() || area.width <= 0 || area.height <= 0) {
        m_area.clear();
        return;
    }
    const QScopedValueRollback drawing(m_isDrawing, true);
    m_area.show(m_renderer.draw(page, {ExportRegion_WorkArea, area.width, area.height, 1}));
    m_pacer.pictureShown();
}

} // namespace corvane::gui
