#pragma once

#include "desktop/film/sound_feed.h"
#include "desktop/film/sound_output.h"

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace kavela::desktop {

class ComparePlayer;

/// The sound of the film of a comparison that is to be heard, in step with its preview: silent
/// where the composed film will be. A computer without a loudspeaker is silent, and nothing else.
class CompareSound : public QObject {
    Q_OBJECT

public:
    /// Where the sound goes is made when the first sound is to be heard.
    using MakeOutput = std::function<std::unique_ptr<SoundOutput>()>;

    explicit CompareSound(ComparePlayer& player, QObject* parent = nullptr,
                          MakeOutput makeOutput = loudspeaker);
    ~CompareSound() override;

private:
    void follow();
    void start(double seconds);
    void begin(int start);
    void stop();
    void stayInStep(double seconds);
    [[nodiscard]] std::optional<double> dueSeconds() const;

    ComparePlayer& m_player;
    MakeOutput m_makeOutput;
    std::unique_ptr<SoundOutput> m_output;
    std::filesystem::path m_film; ///< that was started last
    double m_course = 0;          ///< the film's clock against the computer's when it was started
    int m_start = 0;
    bool m_isSounding = false;
    bool m_isOut = false; ///< the loudspeaker takes it
    QTimer m_check;
    std::unique_ptr<SoundFeed> m_feed; ///< its thread ends before the rest goes
};

} // namespace kavela::desktop
