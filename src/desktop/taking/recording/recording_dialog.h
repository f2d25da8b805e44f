#pragma once

#include "common/alerts.h"
#include "desktop/shell/background_work.h"
#include "desktop/taking/recording/run_recording.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;

namespace kavela::desktop {

class FaultLabel;
class SensorChart;

/// A recording beside the film of a run: a moment that both show is set in each, a second one
/// removes the drift of the clocks, and the part that belongs to the run is attached to it. Stands
/// beside the window, which plays the film meanwhile.
class RecordingDialog : public QDialog {
    Q_OBJECT

public:
    /// What the dialog wants of the window that it stands beside.
    struct Film {
        std::function<double()> position;         ///< seconds of the first film
        std::function<void(double)> show;         ///< goes there
        std::function<RunFacts()> run;            ///< the run in front
        std::function<void(AttachedPart)> attach; ///< as one step that can be undone
        std::function<void()> detach;
        std::function<bool()> isAttached;
        /// Whether a recording that is told to be of someone or some day else is meant all the
        /// same.
        std::function<bool(const Alert& question)> isMeant;
    };

    RecordingDialog(Film film, QWidget* parent);

    /// Reads a raw recording beside the interface. What was aligned before is forgotten.
    void load(const QString& path);
    void setRecording(LoadedRecording recording);
    [[nodiscard]] bool hasRecording() const { return m_recording != nullptr; }

    enum Event { First, Second };
    /// Sets the moment of an event: where the film stands, or the cursor of the chart.
    void setVideo(Event event);
    void setStamp(Event event, double stamp);
    void clear(Event event);
    [[nodiscard]] std::optional<ClockFit> fit() const { return m_fit; }

    void attach();
    /// Another run is in front, with a film of its own: what was aligned is forgotten.
    void startRun();
    /// The run in front, its marks or what is attached to it is another.
    void showRun();
    [[nodiscard]] SensorChart& chart() const { return *m_chart; }

    /// Stands where it leaves a part of the screen free, on the screen of that part: the film that
    /// is looked at meanwhile. Where nowhere is room it stands at the bottom.
    void placeBeside(const QRect& kept, const QRect& screen);

signals:
    /// A recording is wanted; answered by load().
    void chooseRequested();
    void loaded();
    void failed(const QString& title, const QString& reason);
    /// The recording is one of version 4, which has to be converted first.
    void refusedAsOlder(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Row {
        QLabel* video = nullptr;
        QLabel* stamp = nullptr;
        QPushButton* setVideo = nullptr;
        QPushButton* setStamp = nullptr;
        QPushButton* clear = nullptr;
    };

    void makeParts();
    [[nodiscard]] QWidget* makeEvents();
    [[nodiscard]] QWidget* makeMessages();
    void showRecording();
    void showWhose(const RunFacts& run);
    [[nodiscard]] bool isMeantFor(const RunFacts& run) const;
    void showFit();
    void showMarks();
    [[nodiscard]] CommonEvents::Event& event(Event event);

    Film m_film;
    std::unique_ptr<LoadedRecording> m_recording;
    CommonEvents m_events;
    std::optional<ClockFit> m_fit;
    double m_cursor = 0;
    int m_wanted = 0; ///< counts the files that were to be read: only the last one counts
    BackgroundWork m_work;

    QLabel* m_title;
    QLabel* m_whose; ///< athlete and day of the recording, and of the run
    FaultLabel* m_other;
    QLabel* m_note;
    QLabel* m_clocks;
    FaultLabel* m_fault;
    SensorChart* m_chart;
    SensorChart* m_yaw;
    Row m_rows[2];
    QPushButton* m_choose = nullptr;
    QPushButton* m_attach = nullptr;
    QPushButton* m_detach = nullptr;
};

} // namespace kavela::desktop
