// The clickable title of a section, with an arrow that shows whether it is open.
#pragma once

#include <QAbstractButton>

namespace corvane::gui {

class SectionHeader : public QAbstractButton {
    Q_OBJECT

public:
    explicit SectionHeader(const QString& title);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace corvane::gui
