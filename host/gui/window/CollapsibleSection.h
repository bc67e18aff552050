// A titled part of the sidebar that can be folded away.
#pragma once

#include <QWidget>

class QToolButton;

namespace corvane::gui {

/// Whether it is open is kept from one run to the next.
class CollapsibleSection : public QWidget {
    Q_OBJECT

public:
    CollapsibleSection(const QString& title, const QString& key, QWidget& content, bool isOpen);

    void setOpen(bool isOpen);

private:
    QToolButton* m_header;
    QWidget& m_content;
    QString m_key;
};

} // namespace corvane::gui
