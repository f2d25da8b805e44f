#pragma once

#include "common/why.h"
#include "desktop/team/athlete_season.h"
#include "results/team_records.h"

#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QLabel;

namespace kavela::desktop {

/// What an athlete reached in a category: the summary of all seasons, and the categorization.
class SummaryPanel : public QWidget {
    Q_OBJECT

public:
    explicit SummaryPanel(QWidget* parent = nullptr);

    /// Shows nothing for a null athlete or one who does not race in the category.
    void show(const myTeamStruct* athlete, const std::string& category);
    /// The figures of the athlete's season, known a little later; without lines there are none.
    void showSeason(const AthleteSeason& season);
    /// Why the categorization is what it is; nothing where there is none.
    [[nodiscard]] const std::optional<Reason>& why() const { return m_why; }

private:
    [[nodiscard]] std::optional<Reason> whyCountAt(const QPoint& at) const;
    [[nodiscard]] std::optional<Reason> whySeasonAt(const QPoint& at) const;

    std::optional<Reason> m_why;
    std::vector<QLabel*> m_titles;
    AthleteSeason m_athleteSeason;
    QLabel* m_seasonTitle;
    QLabel* m_season;
    QLabel* m_who;
    QLabel* m_summary;
    QLabel* m_unplaced;
    QLabel* m_label;
    QLabel* m_counts;
    QLabel* m_seasons;
};

} // namespace kavela::desktop
