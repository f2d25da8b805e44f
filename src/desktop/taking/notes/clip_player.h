#pragma once

#include <QObject>

#include <optional>
#include <vector>

namespace kavela::desktop {

class FilmDeck;

/// A part of a film, in seconds.
struct FilmPart {
    double from = 0;
    double to = 0;

    friend bool operator==(const FilmPart&, const FilmPart&) = default;
};

/// Clips in their order; those that reach into each other become one.
[[nodiscard]] std::vector<FilmPart> joinedClips(std::vector<FilmPart> clips);

/// Plays parts of the film one after another, at the speed chosen, and stops behind the last. A
/// coach who goes somewhere else meanwhile has left them.
class ClipPlayer : public QObject {
    Q_OBJECT

public:
    explicit ClipPlayer(FilmDeck& deck, QObject* parent = nullptr);

    void play(std::vector<FilmPart> clips);
    void stop();
    /// The clip that is played, from 0; nothing when none is.
    [[nodiscard]] std::optional<std::size_t> current() const;

signals:
    void began(std::size_t clip, std::size_t clips);

private:
    void begin(std::size_t clip);
    void follow();

    FilmDeck& m_deck;
    std::vector<FilmPart> m_clips;
    std::size_t m_current = 0;
};

} // namespace kavela::desktop
