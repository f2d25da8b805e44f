#pragma once

#include "desktop/folder/film_rows.h"
#include "splittaking/folder/watched_films.h"
#include "video/frame_request.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>
#include <vector>

namespace kavela::desktop {

class FilmBrowser;
class FilmShelf;
class FilmStage;
class TagMode;
class Workspace;

/// Puts what is chosen in the browser on the stage and plays it, as the preferences say: from the
/// first mark, by a click, one after the other, of a tag the part around it. Notes what was
/// watched.
class FilmPlaying : public QObject {
    Q_OBJECT

public:
    /// More films side by side could not be seen.
    static constexpr qsizetype MostInStep = 4;
    /// So much of a film is played before and behind a tag, in seconds.
    static constexpr double AroundTag = 3;

    struct Desk {
        Workspace& workspace;
        FilmShelf& shelf;
        FilmBrowser& browser;
        FilmStage& stage;
        TagMode& tags;
    };
    /// Belongs to the stage.
    explicit FilmPlaying(const Desk& desk);

    /// Plays what is chosen from its beginning, as soon as it stands there.
    void playChosen();
    /// Shows what is chosen now rather than in a moment.
    void showChosen();
    /// Goes on to the next film or tag, or back; plays it where `isPlayed`.
    void step(int places, bool isPlayed);
    /// The films have other names now.
    void follow(const QString& from, const QString& to);

private:
    void showFilms(const QStringList& films);
    void showTag(const FilmTagRow& tag);
    void layBeside();
    void takeMarks();
    void takeFrame(std::size_t camera);
    void noteWatched(std::size_t camera);
    void startWhenReady();
    void followState();
    void end();
    void openNextAhead();
    [[nodiscard]] std::optional<CMTime> firstMark(const QString& film) const;
    [[nodiscard]] FrameRequest beginning(const QString& film) const;
    [[nodiscard]] bool startsAtMark() const;

    Desk m_desk;
    QTimer m_soon;
    std::optional<FrameRequest> m_start; ///< the frame that has to stand before it plays
    bool m_isPart = false;               ///< only what is around a tag is played
    bool m_isStarting = false;
    bool m_wasPlaying = false;
    bool m_isLaid = true;           ///< the films are beside each other at their first marks
    bool m_isAhead = true;          ///< the next film was opened
    std::vector<ShownPart> m_parts; ///< by camera
};

} // namespace kavela::desktop
