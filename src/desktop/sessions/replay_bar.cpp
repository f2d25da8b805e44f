#include "desktop/sessions/replay_bar.h"

#include "desktop/charts/sensor_series.h"
#include "desktop/sessions/replay.h"
#include "desktop/shell/theme.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

namespace kavela::desktop {

namespace {

constexpr int SliderSteps = 10000;
constexpr int IconSize = 16; // pixels

/// In the colour of the text: ready-made ones are black on a dark ground, too.
QIcon playIcon(bool plays, const QWidget& widget) {
    const double ratio = widget.devicePixelRatioF();
    QPixmap picture(QSize(IconSize, IconSize) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(widget.palette().color(QPalette::WindowText));
    if (plays) {
        painter.drawRect(3, 2, 4, 12);
        painter.drawRect(9, 2, 4, 12);
    } else {
        painter.drawPolygon(QPolygonF{{3, 2}, {14, 8}, {3, 14}});
    }
    return picture;
}

} // namespace

ReplayBar::ReplayBar(Replay& replay, QWidget* parent)
    : QWidget(parent),
      m_replay(replay),
      m_play(new QToolButton),
      m_time(new QLabel),
      m_slider(new QSlider(Qt::Horizontal)),
      m_speed(new QComboBox) {
    m_play->setAutoRaise(true);
    m_play->setFocusPolicy(Qt::TabFocus);
    m_time->setObjectName("time");
    m_slider->setRange(0, SliderSteps);
    m_slider->setFocusPolicy(Qt::TabFocus);
    m_slider->setAccessibleName(tr("Place in the session"));
    for (const double speed : Replay::speeds())
        m_speed->addItem(QString("%1×").arg(speed), speed);
    m_speed->setToolTip(tr("Speed of the replay ([ slower, ] faster)"));
    m_speed->setFocusPolicy(Qt::TabFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    row->addWidget(m_play);
    row->addWidget(m_time);
    row->addWidget(m_slider, 1);
    row->addWidget(m_speed);
    connect(m_play, &QToolButton::clicked, this,
            [this] { m_replay.setPlaying(!m_replay.isPlaying()); });
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
        const double share = static_cast<double>(value) / SliderSteps;
        m_replay.setMoment(m_replay.from() + share * (m_replay.to() - m_replay.from()));
    });
    connect(m_speed, &QComboBox::activated, this,
            [this](int place) { m_replay.setSpeed(m_speed->itemData(place).toDouble()); });
    connect(&replay, &Replay::momentChanged, this, &ReplayBar::showMoment);
    connect(&replay, &Replay::playingChanged, this, &ReplayBar::showPlaying);
    connect(&replay, &Replay::speedChanged, this, &ReplayBar::showSpeed);
    showMoment();
    showPlaying(false);
    showSpeed(replay.speed());
}

void ReplayBar::showMoment() {
    const double length = m_replay.to() - m_replay.from();
    const double passed = m_replay.moment() - m_replay.from();
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(length > 0 ? static_cast<int>(passed / length * SliderSteps) : 0);
    m_time->setText(momentText(passed, 1) + " / " + momentText(length, 1));
}

void ReplayBar::showPlaying(bool plays) {
    m_play->setIcon(playIcon(plays, *this));
    m_play->setToolTip(plays ? tr("Pause (Space)") : tr("Play (Space)"));
}

void ReplayBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showPlaying(m_replay.isPlaying());
}

void ReplayBar::showSpeed(double speed) {
    m_speed->setCurrentIndex(m_speed->findData(speed));
}

} // namespace kavela::desktop
