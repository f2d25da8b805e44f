#pragma once

#include "common/blob.h"
#include "desktop/film/recorded_sound.h"

#include <QWidget>

#include <functional>
#include <span>

class QLabel;
class QListWidget;
class QPushButton;

namespace kavela::desktop {

/// The team radio of a run: short recordings that are kept in the split file. They are recorded,
/// taken from sound files, played, put in order, written out and removed.
class RadioBox : public QWidget {
    Q_OBJECT

public:
    RadioBox(RecordedSoundPlayer::MakeOutput makeOutput, SpeechRecorder::MakeInput makeInput);

    void setRecordings(std::span<const Blob> recordings);
    /// Ends a recording, which is handed over.
    void finish();
    /// Begins recording, or ends it.
    void toggleRecording();
    void attach(const QString& file);
    void play(int recording);

    /// A split file is read and written as a whole: larger sounds do not belong in it.
    static constexpr qint64 MostBytes = 20 * 1024 * 1024;

signals:
    void added(const Blob& recording);
    void removed(int recording);
    void moved(int from, int to);
    void told(const QString& text);

private:
    void makeButtons();
    void chooseFile();
    void save();
    void move(int step);
    void showState();

    RecordedSoundPlayer* m_player;
    SpeechRecorder* m_recorder;
    std::vector<Blob> m_recordings;
    QListWidget* m_list;
    QLabel* m_state;
    QPushButton* m_record = nullptr;
    QPushButton* m_play = nullptr;
    std::vector<QPushButton*> m_ofOne; ///< work on the recording that is selected
};

} // namespace kavela::desktop
