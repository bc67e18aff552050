// The controls of a dialog, however small the screen is.
#pragma once

#include <QScrollArea>

namespace corvane::gui {

class ControlArea;

/// As large as the area where the screen has room for it. Where it has not, part of the area is
/// seen, with scroll bars, and follows the focus.
class ScrolledArea : public QScrollArea {
public:
    ScrolledArea(ControlArea* area, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize room() const;
};

} // namespace corvane::gui
