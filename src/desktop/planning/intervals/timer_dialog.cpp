#include "desktop/planning/intervals/timer_dialog.h"

#include "desktop/planning/intervals/timer_face.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr int TickTime = 40; ///< milliseconds
constexpr double Countdown = 3;

} // namespace

SecondsClock steadySeconds() {
    return [] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration<double>(now).count();
    };
}

TimerSound beeps() {
    return [](TimerSignal /*signal*/) { QApplication::beep(); };
}

IntervalTimerDialog::IntervalTimerDialog(const QString& title, IntervalPlan plan,
                                         SecondsClock clock, TimerSound sound, QWidget* parent)
    : QDialog(parent),
      m_run(plan),
      m_clock(std::move(clock)),
      m_sound(std::move(sound)),
      m_face(new TimerFace(title, plan)) {
    setWindowTitle(tr("%1 – timer").arg(title));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_face, 1);
    column->addWidget(makeButtons());
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(TickTime);
    connect(&m_timer, &QTimer::timeout, this, &IntervalTimerDialog::tick);
    jumped();
}

QWidget* IntervalTimerDialog::makeButtons() {
    auto* const bar = new QWidget;
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                            theme::Spacing);
    row->setSpacing(theme::Spacing);
    const auto button = [&](const char* name, const QString& text, const QString& keys,
                            const std::function<void()>& act) {
        auto* const made = new QPushButton(text);
        made->setObjectName(name);
        made->setToolTip(keys);
        made->setFocusPolicy(Qt::NoFocus); // Space is for the timer
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, act);
        row->addWidget(made);
        return made;
    };
    row->addStretch(1);
    button("back", tr("◀ Back"), tr("Left"), [this] { back(); });
    m_start = button("start", {}, tr("Space"), [this] { startOrPause(); });
    m_start->setMinimumWidth(grown(*this, 140));
    button("skip", tr("Skip ▶"), tr("Right"), [this] { skip(); });
    row->addStretch(1);
    button("fullScreen", tr("Full screen"), tr("F11"), [this] { showFullScreenOrNot(); });
    button("close", tr("Close"), tr("Escape"), [this] { close(); });
    return bar;
}

void IntervalTimerDialog::startOrPause() {
    const double now = m_clock();
    if (m_run.isRunning()) {
        m_run.pause(now);
        m_timer.stop();
    } else {
        m_run.start(now);
        m_timer.start();
    }
    jumped();
}

void IntervalTimerDialog::skip() {
    m_run.skip(m_clock());
    jumped();
}

void IntervalTimerDialog::back() {
    m_run.back(m_clock());
    jumped();
}

/// What the coach asked for needs no signal.
void IntervalTimerDialog::jumped() {
    const double now = m_clock();
    m_step = m_run.stepAt(now);
    m_secondsLeft = std::ceil(m_run.remaining(now));
    showMoment();
}

void IntervalTimerDialog::tick() {
    const double now = m_clock();
    const std::int64_t step = m_run.stepAt(now);
    const double secondsLeft = std::ceil(m_run.remaining(now));
    if (m_run.isRunning() && step != m_step)
        m_sound(TimerSignal::NextPhase);
    else if (m_run.isRunning() && secondsLeft != m_secondsLeft && secondsLeft <= Countdown)
        m_sound(TimerSignal::Countdown);
    m_step = step;
    m_secondsLeft = secondsLeft;
    if (m_run.plan().step(step).phase == IntervalPhase::End) {
        m_run.pause(now);
        m_timer.stop();
    }
    showMoment();
}

void IntervalTimerDialog::showMoment() {
    const double elapsed = m_run.elapsed(m_clock());
    m_face->showMoment(elapsed, m_run.isRunning());
    const bool isAtEnd = elapsed >= m_run.plan().total();
    m_start->setText(m_run.isRunning() ? tr("Pause")
                     : isAtEnd         ? tr("Start again")
                     : elapsed > 0     ? tr("Go on")
                                       : tr("Start"));
}

void IntervalTimerDialog::showFullScreenOrNot() {
    if (isFullScreen())
        showMaximized();
    else
        showFullScreen();
}

void IntervalTimerDialog::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
        if (!event->isAutoRepeat())
            startOrPause();
        return;
    case Qt::Key_Right:
        return skip();
    case Qt::Key_Left:
        return back();
    case Qt::Key_F11:
        return showFullScreenOrNot();
    case Qt::Key_Escape:
        if (isFullScreen())
            return showMaximized();
        break;
    default:
        break;
    }
    QDialog::keyPressEvent(event);
}

} // namespace kavela::desktop
