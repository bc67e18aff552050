// Scrolls the controls of a dialog that is larger than the screen.
#pragma once

#include <QScrollArea>

namespace corvane::gui {

class ControlArea;

/// As large as the area if the screen is large enough. Otherwise it shows part of the area, with
/// scroll bars, and follows the focus.
class ScrolledArea : public QScrollArea {
public:
    ScrolledArea(ControlArea* area, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize availableSize() const;
};

} // namespace corvane::gui
