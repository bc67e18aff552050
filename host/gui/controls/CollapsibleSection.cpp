#include "host/gui/controls/CollapsibleSection.h"

#include "host/gui/controls/SectionHeader.h"

#include <QFrame>
#include <QSettings>
#include <QVBoxLayout>

namespace corvane::gui {

CollapsibleSection::CollapsibleSection(const QString& title, const QString& key, QWidget& content,
                                       bool isOpen)
    : m_header(new SectionHeader(title)),
      m_content(content),
      m_key(QStringLiteral("sections/") + key) {
    setObjectName(key);
    m_header->setObjectName(QStringLiteral("header"));
    auto* const line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Midlight);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(&m_content);
    column->addWidget(line);
    connect(m_header, &QAbstractButton::toggled, this, [this](bool isOpenNow) {
        QSettings().setValue(m_key, isOpenNow);
        setOpen(isOpenNow);
    });
    setOpen(QSettings().value(m_key, isOpen).toBool());
}

void CollapsibleSection::setOpen(bool isOpen) {
    m_header->setChecked(isOpen);
    m_content.setVisible(isOpen);
}

} // namespace corvane::gui
