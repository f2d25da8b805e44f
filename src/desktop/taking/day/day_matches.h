#pragma once

#include "desktop/shell/background_work.h"
#include "splittaking/race_day/film_matching.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kavela::desktop {

class DayFilms;
class TakingDocument;

/// Which film shows which start of a race day, and which run is timed on it. Films are matched
/// beside the window; what they were matched to before stands until then.
class DayMatches : public QObject {
    Q_OBJECT

public:
    DayMatches(const TakingDocument& document, const DayFilms& films, QObject* parent);

    [[nodiscard]] const DayMatching& matching() const { return m_matching; }
    /// The matching is still of an older state.
    [[nodiscard]] bool isMatching() const { return m_work.isRunning(); }
    /// Begins to match anew where the day is another one than before.
    void follow();
    /// Films are others: follow() matches anew.
    void forget();
    /// Matches here and now what is still being matched: for what acts on it.
    void settle();

    /// The starts that a film shows, in the order of their runs.
    [[nodiscard]] std::vector<std::int64_t> boatsOn(const std::string& from) const;
    /// The run of a start, counted from 0.
    [[nodiscard]] std::optional<int> runOfStart(std::int64_t start) const;
    /// The starts whose runs are whole.
    [[nodiscard]] std::set<std::int64_t> timed() const;

signals:
    void matched(); ///< the matching is of what is there now

private:
    void take(DayMatching matching);

    const TakingDocument& m_document;
    const DayFilms& m_films;
    std::shared_ptr<const RaceDay> m_day; ///< that is matched, or being matched
    QString m_path;                       ///< of the race that it is a day of
    DayMatching m_matching;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
