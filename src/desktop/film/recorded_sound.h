#pragma once

#include "common/blob.h"
#include "desktop/film/sound_input.h"
#include "desktop/film/sound_output.h"

#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace kavela {
class SoundSource;
}

namespace kavela::desktop {

/// Plays sound files that are kept in a document, one at a time.
class RecordedSoundPlayer : public QObject {
    Q_OBJECT

public:
    using MakeOutput = std::function<std::unique_ptr<SoundOutput>()>;

    explicit RecordedSoundPlayer(QObject* parent = nullptr, MakeOutput makeOutput = loudspeaker);
    ~RecordedSoundPlayer() override;

    /// Plays from the beginning, in place of what was played. Returns why it cannot be played;
    /// empty when it is.
    [[nodiscard]] QString play(const Blob& sound);
    void stop();
    [[nodiscard]] bool isPlaying() const { return m_source != nullptr; }

signals:
    void changed(); ///< begun, ended or stopped

private:
    void take(std::span<std::int16_t> samples);
    void end(int played);

    MakeOutput m_makeOutput;
    QTemporaryDir m_folder;
    std::unique_ptr<SoundSource> m_source; ///< null while nothing is played
    std::unique_ptr<SoundOutput> m_output;
    int m_played = 0; ///< number of what is played: the end of an earlier one is ignored
};

/// Records speech, for at most MostSeconds.
class SpeechRecorder : public QObject {
    Q_OBJECT

public:
    using MakeInput = std::function<std::unique_ptr<SoundInput>()>;

    explicit SpeechRecorder(QObject* parent = nullptr, MakeInput makeInput = microphone);
    ~SpeechRecorder() override;

    /// Begins anew. False where there is no microphone.
    [[nodiscard]] bool start();
    /// The recording as a sound file; empty when nothing was heard.
    [[nodiscard]] Blob stop();
    [[nodiscard]] bool isRecording() const { return m_isRecording; }
    [[nodiscard]] double seconds() const;

    static constexpr double MostSeconds = 120;

signals:
    void heard();  ///< more of it
    void isFull(); ///< nothing more is taken

private:
    void give(std::span<const std::int16_t> samples);

    MakeInput m_makeInput;
    std::unique_ptr<SoundInput> m_input;
    std::vector<std::int16_t> m_samples;
    bool m_isRecording = false;
};

} // namespace kavela::desktop
