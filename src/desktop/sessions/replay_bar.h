#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QSlider;
class QToolButton;

namespace kavela::desktop {

class Replay;

/// Play, the place in the session and the speed.
class ReplayBar : public QWidget {
    Q_OBJECT

public:
    explicit ReplayBar(Replay& replay, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showMoment();
    void showPlaying(bool plays);
    void showSpeed(double speed);

    Replay& m_replay;
    QToolButton* m_play;
    QLabel* m_time;
    QSlider* m_slider;
    QComboBox* m_speed;
};

} // namespace kavela::desktop
