// A section of the sidebar that can be collapsed.
#pragma once

#include <QWidget>

namespace corvane::gui {

class SectionHeader;

/// Remembers whether it is open from one run to the next.
class CollapsibleSection : public QWidget {
    Q_OBJECT

public:
    CollapsibleSection(const QString& title, const QString& key, QWidget& content, bool isOpen);

    void setOpen(bool isOpen);

private:
    SectionHeader* m_header;
    QWidget& m_content;
    QString m_key;
};

} // namespace corvane::gui
