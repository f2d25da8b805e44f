#pragma once

#include "planning/interval_timer.h"

#include <QDialog>
#include <QTimer>

#include <functional>

class QPushButton;

namespace kavela::desktop {

class TimerFace;

/// A moment in seconds of a clock that runs evenly and never back.
using SecondsClock = std::function<double()>;
/// The computer's own.
[[nodiscard]] SecondsClock steadySeconds();

/// What is heard of a session: the last three seconds of a stretch, and that the next one begins.
enum class TimerSignal { Countdown, NextPhase };
using TimerSound = std::function<void(TimerSignal)>;
/// The sound that the computer has for a signal.
[[nodiscard]] TimerSound beeps();

/// Runs an interval session on the whole window, for athletes on the water to see: Space starts and
/// pauses, Right and Left go to the next and the previous stretch, F11 fills the screen.
class IntervalTimerDialog : public QDialog {
    Q_OBJECT

public:
    IntervalTimerDialog(const QString& title, IntervalPlan plan, SecondsClock clock,
                        TimerSound sound, QWidget* parent = nullptr);

    [[nodiscard]] const IntervalRun& run() const { return m_run; }
    [[nodiscard]] TimerFace& face() const { return *m_face; }

    void startOrPause();
    void skip();
    void back();
    /// Brings what is seen and heard up to the clock's moment.
    void tick();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QWidget* makeButtons();
    void jumped();
    void showFullScreenOrNot();
    void showMoment();

    IntervalRun m_run;
    SecondsClock m_clock;
    TimerSound m_sound;
    TimerFace* m_face;
    QPushButton* m_start = nullptr;
    QTimer m_timer;
    std::int64_t m_step = 0;  ///< as it was seen last
    double m_secondsLeft = 0; ///< whole ones of that step
};

} // namespace kavela::desktop
