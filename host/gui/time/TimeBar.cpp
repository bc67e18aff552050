#include "host/gui/time/TimeBar.h"

#include "host/gui/base/Icons.h"
#include "host/gui/controls/Numbers.h"
#include "host/gui/time/TimePlayer.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

namespace corvane::gui {

TimeBar::TimeBar(TimePlayer& player, QWidget* parent)
    : QWidget(parent), m_player(player), m_slider(new QSlider(Qt::Horizontal)), m_text(new QLabel) {
    setObjectName(QStringLiteral("timeBar"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->setSpacing(2);
    const auto step = [this](int steps) { return [this, steps] { m_player.stepBy(steps); }; };
    connect(addButton(Icon::First, tr("First time"), "timeFirst"), &QToolButton::clicked, this,
            [this] { m_player.stepBy(-m_player.index()); });
    connect(addButton(Icon::StepBack, tr("Back (Left)"), "timeBack"), &QToolButton::clicked, this,
            step(-1));
    m_play = addButton(Icon::Play, tr("Play (Space)"), "timePlay");
    connect(m_play, &QToolButton::clicked, &m_player, &TimePlayer::togglePlay);
    connect(addButton(Icon::StepForward, tr("Forward (Right)"), "timeForward"),
            &QToolButton::clicked, this, step(1));
    connect(addButton(Icon::Last, tr("Last time"), "timeLast"), &QToolButton::clicked, this,
            [this] { m_player.stepBy(static_cast<int>(m_player.times().size())); });
    m_loop = addButton(Icon::Loop, tr("Begin again at the end"), "timeLoop");
    m_loop->setCheckable(true);
    connect(m_loop, &QToolButton::toggled, &m_player, &TimePlayer::setLooping);
    m_slider->setObjectName(QStringLiteral("timeSlider"));
    m_slider->setFocusPolicy(Qt::ClickFocus);
    m_slider->setPageStep(1);
    m_slider->setTracking(false);
    connect(m_slider, &QSlider::sliderPressed, &m_player, &TimePlayer::pause);
    connect(m_slider, &QSlider::sliderMoved, &m_player, &TimePlayer::previewStep);
    connect(m_slider, &QSlider::valueChanged, &m_player, &TimePlayer::showStep);
    row->addSpacing(6);
    row->addWidget(m_slider, 1);
    row->addSpacing(6);
    m_text->setObjectName(QStringLiteral("timeText"));
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * 26);
    m_text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(m_text);
    connect(&m_player, &TimePlayer::changed, this, &TimeBar::refresh);
    refresh();
}

QToolButton* TimeBar::addButton(Icon which, const QString& tip, const char* name) {
    auto* const button = new QToolButton;
    button->setObjectName(QString::fromLatin1(name));
    button->setIcon(icon(which));
    button->setToolTip(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    layout()->addWidget(button);
    return button;
}

void TimeBar::refresh() {
    const auto count = static_cast<int>(m_player.times().size());
    setVisible(count > 1);
    if (count < 2) {
        return;
    }
    m_play->setIcon(icon(m_player.isPlaying() ? Icon::Pause : Icon::Play));
    m_play->setToolTip(m_player.isPlaying() ? tr("Pause (Space)") : tr("Play (Space)"));
    m_loop->setChecked(m_player.isLooping());
    if (!m_slider->isSliderDown()) {
        const QSignalBlocker quiet(m_slider);
        m_slider->setRange(0, count - 1);
        m_slider->setValue(m_player.index());
    }
    const double time = m_player.times()[static_cast<std::size_t>(m_player.index())];
    m_text->setText(
        tr("t = %1   (%2 of %3)").arg(shortText(time)).arg(m_player.index() + 1).arg(count));
}

} // namespace corvane::gui
