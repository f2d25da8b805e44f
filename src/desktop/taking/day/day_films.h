#pragma once

#include "common/reference_date.h"
#include "desktop/shell/background_work.h"
#include "desktop/taking/day/watched_films.h"
#include "splittaking/race_day/film_matching.h"

#include <QObject>

#include <map>
#include <optional>
#include <set>
#include <string>

namespace kavela::desktop {

class TakingDocument;

/// What a local clock shows at a moment, in seconds since the midnight of a day ("2026-05-16"): so
/// lists have it, also on the day when the clocks change.
[[nodiscard]] double wallSeconds(ReferenceDate moment, const std::string& date);

/// The films of a race day on the disk: which there are, those of the card copied into the folder
/// of the race, and their names. Nothing is ever written over.
class DayFilms : public QObject {
    Q_OBJECT

public:
    DayFilms(TakingDocument& document, QObject* parent);

    [[nodiscard]] WatchedFilms& watched() { return m_watched; }
    [[nodiscard]] const WatchedFilms& watched() const { return m_watched; }
    /// The films that are whole, with when they were recorded by the clock of the day.
    [[nodiscard]] const std::vector<SeenFilm>& seen() const { return m_seen; }
    /// Whether a film stands in the folder of the race; null for one that was not seen.
    [[nodiscard]] const DaySource* source(const std::string& from) const;
    /// Copies these films from the card, one after another, those in front first.
    void bringHere(const std::vector<std::string>& films);
    /// The film that is being copied; empty for none.
    [[nodiscard]] const std::string& copied() const { return m_copied; }

    /// Gives a film of the race's folder a name that is free there, as near to the wanted one as
    /// can be. The name that it has then; nothing where it could not be given one.
    [[nodiscard]] std::optional<std::string> name(const std::string& from,
                                                  const std::string& wanted);

signals:
    /// Other films are there.
    void changed();
    /// Another film is being copied, or none.
    void copyingChanged();
    void failed(const QString& why);

private:
    void followDocument();
    void readAgain();
    [[nodiscard]] SeenFilm seenFilm(const DaySource& source) const;
    [[nodiscard]] bool rename(const std::string& from, const std::string& name);
    void copyNext();
    void noteCopied(const std::string& from, bool isDone);

    TakingDocument& m_document;
    WatchedFilms m_watched;
    std::vector<DaySource> m_sources;
    std::vector<SeenFilm> m_seen;
    QString m_path;                             ///< of the document that is followed
    std::shared_ptr<const RaceDay> m_day;       ///< as it was read last
    std::map<std::string, std::string> m_names; ///< on the disk, by what films came with
    std::vector<std::string> m_wanted;          ///< to be copied
    std::set<std::string> m_refused;            ///< that could not be, until the card comes again
    std::string m_copied;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
