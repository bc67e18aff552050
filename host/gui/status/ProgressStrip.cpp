#include "host/gui/status/ProgressStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace corvane::gui {

namespace {

constexpr int noticeMs = 20000;

} // namespace

ProgressStrip::ProgressStrip(QWidget* parent)
    : QWidget(parent),
      m_label(new QLabel(this)),
      m_bar(new QProgressBar(this)),
      m_stop(new QPushButton(tr("Stop"), this)) {
    m_label->setObjectName(QStringLiteral("statusText"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_bar->setObjectName(QStringLiteral("progress"));
    m_bar->setRange(0, 100);
    m_bar->setFixedWidth(fontMetrics().averageCharWidth() * 32);
    m_stop->setObjectName(QStringLiteral("stop"));
    m_stop->setFocusPolicy(Qt::NoFocus);
    m_stop->setToolTip(tr("Stop (Esc)"));
    // Hidden parts keep their space, so that showing progress does not resize the picture.
    for (QWidget* const part : {static_cast<QWidget*>(m_bar), static_cast<QWidget*>(m_stop)}) {
        QSizePolicy policy = part->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        part->setSizePolicy(policy);
        part->hide();
    }
    m_noticeEnd.setSingleShot(true);
    connect(&m_noticeEnd, &QTimer::timeout, this, [this] {
        m_notice.clear();
        showIdleText();
    });
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(8, 2, 4, 2);
    row->addWidget(m_label, 1);
    row->addWidget(m_bar);
    row->addWidget(m_stop);
}

void ProgressStrip::setIdleText(const QString& text) {
    m_idleText = text;
    showIdleText();
}

void ProgressStrip::showNotice(const QString& notice) {
    m_notice = notice;
    m_noticeEnd.start(noticeMs);
    showIdleText();
}

void ProgressStrip::showIdleText() {
    if (!m_isRunning) {
        setText(m_notice.isEmpty() ? m_idleText : m_notice);
    }
}

void ProgressStrip::start(const QString& text, bool showStop, bool showProgress) {
    m_isRunning = true;
    setText(text);
    m_bar->setValue(0);
    m_bar->setVisible(showProgress);
    m_stop->setVisible(showStop);
}

void ProgressStrip::setText(const QString& text) {
    m_label->setText(text);
    m_label->setToolTip(text);
}

void ProgressStrip::setPercent(int percent) {
    m_bar->setValue(percent);
}

void ProgressStrip::finish() {
    m_isRunning = false;
    m_bar->hide();
    m_stop->hide();
    showIdleText();
}

} // namespace corvane::gui
