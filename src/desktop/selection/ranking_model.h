#pragma once

#include "desktop/selection/real_ranking.h"
#include "desktop/shell/tables/column_model.h"
#include "results/selection_edit.h"
#include "results/selection_ranking.h"

#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

class SelectionDocument;

/// An athlete with his place.
struct RankedAthlete {
    std::size_t id = 0; ///< the same as long as the athlete is there
    srAthleteStruct_v3 record;
    Standing standing;
    std::optional<Standing> real; ///< in what-if mode, how he really stands
};

/// The ranking of one category: place, who, score and bonus, the results of every race. Results,
/// names, clubs and birth years are edited in place. What is typed changes places and scores at
/// once, but the rows keep their order until the row is left: values that belong together are typed
/// one after the other. In what-if mode places say what they really are.
class RankingModel : public ColumnModel<RankedAthlete> {
public:
    enum LeadingColumn {
        RankColumn,
        NameColumn,
        ScoreColumn,
        BonusColumn,
        YearColumn,
        ClubColumn,
        PreselectedColumn,
        LeadingColumns
    };
    enum RaceColumn { TimeColumn, PenaltyColumn, PercentColumn, RaceColumns };

    explicit RankingModel(SelectionDocument& document, QObject* parent = nullptr);

    void setCategory(std::size_t category);
    [[nodiscard]] std::size_t category() const { return m_category; }
    /// The row of an athlete by the index in the category; -1 for none.
    [[nodiscard]] int placeOfAthlete(std::size_t athlete) const;
    /// Puts the rows into the order of the ranking, after a row was left.
    void orderAnew();

private:
    using AthleteColumn = Column<RankedAthlete>;

    /// Who is in the category shown, by index.
    struct Known {
        std::string name;
        std::size_t id = 0;
    };

    void reload();
    [[nodiscard]] std::vector<RankedAthlete> ranked();
    void followAthletes(const srCategoryStruct_v3& category);
    [[nodiscard]] const srCategoryStruct_v3* categoryShown() const;

    [[nodiscard]] Columns columns();
    [[nodiscard]] AthleteColumn
    corrected(AthleteColumn column,
              std::function<void(srAthleteStruct_v3&, const QString&)> correct);
    void addRaceColumns(Columns& columns, std::size_t race, const QString& location);
    [[nodiscard]] Cell timeCell(const saRaceStruct& result) const;
    [[nodiscard]] Cell percentCell(const saRaceStruct& result) const;
    [[nodiscard]] Cell inRace(const RankedAthlete& row, std::size_t race, Cell cell) const;
    [[nodiscard]] bool isExpected() const;

    void edit(const QString& what, const std::function<void(selectionracesStruct_v3&)>& change);
    void takeTime(const ResultPlace& place, saRaceStruct result, const QString& typed);
    void takePenalty(const ResultPlace& place, saRaceStruct result, const QString& typed);

    SelectionDocument& m_document;
    std::size_t m_category = 0;
    RealRanking m_real;
    std::vector<Known> m_known;
    std::size_t m_nextId = 0;
    QStringList m_locations; ///< of the races that there are columns for
    bool m_isOtherCategory = false;
    bool m_isKeepingOrder = false;
};

} // namespace kavela::desktop
