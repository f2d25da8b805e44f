#pragma once

#include "desktop/charts/sensor_chart.h"
#include "desktop/motion/motion_recording.h"

#include <QScrollArea>

#include <array>
#include <filesystem>
#include <optional>

class QVBoxLayout;

namespace kavela::desktop {

class MotionRecordings;

/// The charts of the ticked recordings above each other, with one time axis and one cursor.
class MotionCharts : public QScrollArea {
    Q_OBJECT

public:
    explicit MotionCharts(MotionRecordings& recordings, QWidget* parent = nullptr);

    /// Which charts are wanted; those without any data stay away all the same.
    void setWanted(CurveKind kind, bool isWanted);
    [[nodiscard]] bool isWanted(CurveKind kind) const;
    /// Whether any ticked recording has something to draw there.
    [[nodiscard]] bool hasData(CurveKind kind) const;
    /// The charts that are shown, from above.
    [[nodiscard]] std::vector<CurveKind> shownKinds() const;
    [[nodiscard]] SensorChart* chart(CurveKind kind) const { return m_charts[place(kind)]; }
    /// The chart that the coach last pointed at or typed in, else the first; null for none.
    [[nodiscard]] SensorChart* activeChart() const;

    /// The recording whose strokes and turns are marked.
    void setMarked(std::optional<std::size_t> index);
    void setMarksVisible(bool areVisible);
    [[nodiscard]] bool areMarksVisible() const { return m_showsMarks; }

    [[nodiscard]] std::pair<double, double> view() const { return m_view; }
    void setView(double from, double to);
    void fit();
    void zoom(double factor);
    /// Asks where to save the active chart.
    void askAndSave();
    [[nodiscard]] std::optional<double> cursor() const { return m_cursor; }
    void setCursor(std::optional<double> time);
    /// The moment that was clicked, to which others are aligned.
    [[nodiscard]] std::optional<double> pin() const { return m_pin; }
    void setPin(std::optional<double> time);

    /// Everything again, as after ticks, shifts and analyses have changed.
    void refresh();

signals:
    void cursorMoved(std::optional<double> time);
    void shownChanged();
    void shiftDragged(double seconds);
    void shiftDragEnded();
    void saved(const QString& path);
    void savingFailed(const QString& path, const QString& reason);

private:
    static std::size_t place(CurveKind kind) { return static_cast<std::size_t>(kind); }
    SensorChart* makeChart(CurveKind kind);
    void connectChart(SensorChart& chart);
    void fillChart(CurveKind kind);
    void showCharts();
    void followLimits();
    [[nodiscard]] std::vector<SensorMark> marks() const;
    void showMarks();

    MotionRecordings& m_recordings;
    std::array<SensorChart*, CurveKinds> m_charts{};
    std::array<bool, CurveKinds> m_wanted{};
    QVBoxLayout* m_column;
    SensorChart* m_active = nullptr;
    std::optional<std::size_t> m_marked;
    bool m_showsMarks = true;
    std::pair<double, double> m_limits{0, 0};
    std::pair<double, double> m_view{0, 0};
    std::optional<double> m_cursor;
    std::optional<double> m_pin;
};

} // namespace kavela::desktop
