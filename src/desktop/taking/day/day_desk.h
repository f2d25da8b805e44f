#pragma once

#include "desktop/taking/day/day_films.h"
#include "desktop/taking/day/day_matches.h"
#include "splittaking/race_day/day_lines.h"
#include "splittaking/race_day/start_list.h"

#include <QDate>
#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QLabel;

namespace kavela::desktop {

class FilmStage;
class TakingDocument;
class Workspace;

/// The day of the race in split taking: what is known of every start, which start is in front, and
/// what the keys do to it. Every change is one step that can be undone.
class DayDesk : public QObject {
    Q_OBJECT

public:
    /// Before films come and go `commit` takes over what is typed and pressed in the window; false
    /// when that cannot be.
    struct Parts {
        TakingDocument& document;
        FilmStage& stage;
        Workspace& workspace;
        std::function<bool()> commit;
        std::function<int()> run; ///< in front; below 0 for none
        std::function<void(int)> selectRun;
    };

    /// Belongs to the stage.
    explicit DayDesk(Parts parts);

    [[nodiscard]] const std::vector<DayLine>& lines() const { return m_lines; }
    /// The films of the starts, as they were last matched.
    [[nodiscard]] const DayMatching& matching() const { return m_matches.matching(); }
    /// The films are being matched anew; what is shown is of before. A key that acts on them has
    /// them matched first.
    [[nodiscard]] bool isMatching() const { return m_matches.isMatching(); }
    [[nodiscard]] DayFilms& films() { return m_films; }
    /// The name of a film in the folder of the race.
    [[nodiscard]] std::string nameOfFilm(const std::string& from) const;
    /// The recording of the film; null where it was not seen.
    [[nodiscard]] const SeenFilm* seen(const std::string& from) const;
    /// How far behind the coach is, and what comes next; stands under the time line.
    [[nodiscard]] QLabel& glance() const { return *m_glance; }

    /// The start that the keys mean; 0 for none.
    [[nodiscard]] std::int64_t front() const { return m_front; }
    void setFront(std::int64_t start);
    void stepFront(int step);
    /// Another run is in front: so is its start.
    void followRun();

    /// The day of the starts; that of the race before there are some.
    [[nodiscard]] QDate date() const;
    /// Takes the starts of a list into a phase. All starts are on one day.
    void takeStarts(const StartList& list, const QString& phase, const QDate& date);
    /// Films appear there; the folder of the race for an empty text.
    void watchFolder(const QString& folder);
    /// Changes a line of the list, such as a name that is written wrongly.
    void editStart(std::int64_t start, const std::function<void(DayStart&)>& change);
    void removeFront();

    /// To the next film that is not timed yet, and plays it.
    void goToNext();
    /// Opens the film of the start in front, and plays it.
    void openFront();
    /// The film in front is that of its start: it is named after it.
    void agree();
    /// The same for every film that is surely matched.
    void agreeToAllSure();
    /// The films of the start in front and of all behind it are those of one start later (1) or
    /// earlier (-1).
    void shift(int step);
    /// The start in front has this film, by its present name or the one it came with; none for an
    /// empty name. Throws RefusedEntry where there is no such film.
    void assign(std::int64_t start, const QString& film);
    /// Did not start, or did not finish; the same key takes it back.
    void setOut(const char* out);
    /// The camera's clock is ahead of the start list as it seems.
    void takeOffset();

signals:
    /// Lines, matching, or films are others.
    void changed();
    void frontChanged();

private:
    [[nodiscard]] const DayLine* line(std::int64_t start) const;
    [[nodiscard]] std::optional<std::size_t> place(std::int64_t start) const;
    [[nodiscard]] std::optional<std::int64_t> next() const;
    void follow();
    void takeMatches();
    void showLines();
    void bringFilms();
    void showGlance();
    [[nodiscard]] double nowOfDay() const;
    void edit(const QString& what, RaceDay day);
    void open(std::int64_t start);
    void makeRun(std::int64_t start, const std::string& from);
    bool nameFilm(RaceDay& day, const std::string& from);
    bool refusesWithoutFront();
    [[nodiscard]] bool isReady();
    void agreeTo(const std::vector<std::string>& films);

    Parts m_parts;
    DayFilms m_films;
    DayMatches m_matches;
    std::vector<DayLine> m_lines;
    std::int64_t m_front = 0;
    QLabel* m_glance;
    QTimer m_clock;
    bool m_isRunToFollow = false; ///< another run is in front since films are being matched
};

/// "12 Ann Lee"
[[nodiscard]] QString startText(const DayStart& start);

} // namespace kavela::desktop
