#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <vector>

namespace kavela::desktop {

/// Moves a moment forward in real time, or as much faster or slower as is asked.
class Replay : public QObject {
    Q_OBJECT

public:
    explicit Replay(QObject* parent = nullptr);

    /// The moments of the session, in seconds. The present one is kept inside.
    void setRange(double from, double to);
    [[nodiscard]] double from() const { return m_from; }
    [[nodiscard]] double to() const { return m_to; }

    [[nodiscard]] double moment() const { return m_moment; }
    void setMoment(double moment);

    [[nodiscard]] bool isPlaying() const { return m_timer.isActive(); }
    /// From the end on it begins again.
    void setPlaying(bool plays);

    [[nodiscard]] static const std::vector<double>& speeds();
    [[nodiscard]] double speed() const { return m_speed; }
    void setSpeed(double speed);
    /// To the next one of the speeds.
    void changeSpeed(int steps);

signals:
    void momentChanged(double moment);
    void playingChanged(bool plays);
    void speedChanged(double speed);

private:
    void advance();

    double m_from = 0;
    double m_to = 0;
    double m_moment = 0;
    double m_speed = 1;
    QTimer m_timer;
    QElapsedTimer m_clock; ///< since the moment was last moved on
};

} // namespace kavela::desktop
