#pragma once

#include <QListWidget>

#include <optional>

namespace kavela::desktop {

class MotionRecordings;
struct MotionRecording;

/// What a recording is, line by line.
struct RecordingWords {
    QString name;
    QString session;    ///< "Ada Example · 2026-05-07 · 0:40"
    QString data;       ///< "100 a second · position · heart · no watch"
    QString found;      ///< "48 strokes, 4 turns", or why nothing was found
    bool isOdd = false; ///< `found` tells of something that is not as it should be
};

[[nodiscard]] RecordingWords wordsOf(const MotionRecording& recording);

/// The loaded recordings, each with a tick for its curves and the colour that they have.
class RecordingList : public QListWidget {
    Q_OBJECT

public:
    explicit RecordingList(MotionRecordings& recordings, QWidget* parent = nullptr);

    /// The recording that the menus and fields act on.
    [[nodiscard]] std::optional<std::size_t> current() const;
    void choose(std::size_t index);
    void moveChoice(int step);

    void removeCurrent();
    void tickCurrent();
    void showCurrentAlone();

signals:
    void chosen();

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();
    void refresh(std::size_t index);

    MotionRecordings& m_recordings;
};

} // namespace kavela::desktop
