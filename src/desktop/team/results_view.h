#pragma once

#include "desktop/team/phase_model.h"
#include "desktop/team/season_model.h"

#include <QSet>
#include <QWidget>

class QLabel;
class QTabBar;
class QTreeView;

namespace kavela::desktop {

class ColumnTable;

/// The results of one athlete: a tab for each category, its seasons and races as one table, and the
/// runs of the race chosen below. What is edited is edited in the cells.
class ResultsView : public QWidget {
    Q_OBJECT

public:
    explicit ResultsView(TeamDocument& document, QWidget* parent = nullptr);

    /// Shows an athlete, in the preferred category where it is one of theirs.
    void showAthlete(std::optional<std::size_t> athlete, const std::string& preferred);
    void showCategory(const std::string& category);

    [[nodiscard]] const SeasonModel& seasons() const { return m_seasons; }
    [[nodiscard]] std::optional<std::size_t> athlete() const { return m_seasons.athlete(); }
    [[nodiscard]] const std::string& category() const { return m_seasons.category(); }
    /// The season or race chosen.
    [[nodiscard]] std::optional<SeasonPlace> place() const;
    void choose(const SeasonPlace& place, int column = SeasonModel::TitleColumn);

    /// A season of a year, which takes its place among those from the latest down.
    void addSeason(std::int64_t year);
    /// A race at the end of the season chosen, or of the first; nothing without a season.
    void addRace();
    /// Moves the season or race chosen up (-1) or down (1).
    void move(int way);
    void moveSeason(std::size_t from, std::size_t to);
    /// Takes the run, the race or the season that has the focus out.
    void removeCurrent();
    /// Opens the current cell of the table that has the focus.
    void editCurrent();

    [[nodiscard]] QTreeView& tree() const { return *m_tree; }
    [[nodiscard]] ColumnTable& runs() const { return *m_runs; }

signals:
    /// Another athlete, category, season or race is shown.
    void placeChanged();

private:
    void makeTree();
    void makeRuns();
    [[nodiscard]] QWidget* makeHeading();
    void showDocument();
    void fillTabs();
    void showPlace();
    void showHint();
    void showHeading();
    void keepPlace();
    void openSeasons();
    void edit(const QString& what, const std::function<void(mtCatsStruct&)>& change);

    TeamDocument& m_document;
    SeasonModel m_seasons;
    PhaseModel m_phases;
    QLabel* m_name = nullptr;
    QLabel* m_hint = nullptr;
    QTabBar* m_categories = nullptr;
    QTreeView* m_tree = nullptr;
    QLabel* m_race = nullptr;
    ColumnTable* m_runs = nullptr;
    std::optional<SeasonPlace> m_place; ///< kept over the model's resets
    QSet<QString> m_closed;             ///< years of seasons that are shut
    bool m_isFilling = false;
};

} // namespace kavela::desktop
