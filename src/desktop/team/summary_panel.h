#pragma once

#include "common/why.h"
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
    /// Why the categorization is what it is; nothing where there is none.
    [[nodiscard]] const std::optional<Reason>& why() const { return m_why; }

private:
    [[nodiscard]] std::optional<Reason> whyCountAt(const QPoint& at) const;

    std::optional<Reason> m_why;
    std::vector<QLabel*> m_titles;
    QLabel* m_who;
    QLabel* m_summary;
    QLabel* m_unplaced;
    QLabel* m_label;
    QLabel* m_counts;
    QLabel* m_seasons;
};

} // namespace kavela::desktop
