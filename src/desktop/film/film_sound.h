#pragma once

#include "desktop/film/sound_feed.h"
#include "desktop/film/sound_output.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

namespace kavela::desktop {

class FilmDeck;

/// What decides whether the sound of a film is heard.
struct SoundSituation {
    bool hasFilm = false;
    bool isPlaying = false;
    double rate = 1;
    bool isMuted = false;
    bool isSounding = false; ///< it was started for this film and not stopped
    double jump = 0;         ///< seconds by which the clock has left its course since then
};

enum class SoundStep { Stay, Start, Stop, Restart };

/// Sound is heard while a film plays forward at its own speed; after a jump of the clock it begins
/// anew.
[[nodiscard]] SoundStep nextSoundStep(const SoundSituation& situation);

/// Carries a step out: what restarts stops and starts.
void takeSoundStep(SoundStep step, const std::function<void()>& start,
                   const std::function<void()>& stop);

/// Whether sound heard at one moment of the film is too far from the clock, both in seconds.
[[nodiscard]] bool hasDrifted(double heard, double clock);

/// The sound of the first film of a deck, in step with its clock. A film without sound and a
/// computer without a loudspeaker are silent, and nothing else.
class FilmSound : public QObject {
    Q_OBJECT

public:
    /// Where the sound goes is made when the first sound is to be heard.
    using MakeOutput = std::function<std::unique_ptr<SoundOutput>()>;

    explicit FilmSound(FilmDeck& deck, QObject* parent = nullptr,
                       MakeOutput makeOutput = loudspeaker);
    ~FilmSound() override;

    void setMuted(bool isMuted);
    [[nodiscard]] bool isMuted() const { return m_isMuted; }

private:
    void follow();
    void start();
    void begin(int start);
    void stop();
    void stayInStep();
    [[nodiscard]] QString film() const;
    [[nodiscard]] double course() const;

    FilmDeck& m_deck;
    MakeOutput m_makeOutput;
    std::unique_ptr<SoundOutput> m_output;
    QString m_film; ///< that was started last
    double m_course = 0;
    int m_start = 0;
    bool m_isMuted = false;
    bool m_isSounding = false;
    QTimer m_check;
    std::unique_ptr<SoundFeed> m_feed; ///< its thread ends before the rest goes
};

} // namespace kavela::desktop
