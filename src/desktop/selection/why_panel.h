#pragma once

#include "desktop/shell/tables/column_model.h"
#include "results/selection_ranking.h"

#include <QWidget>

class QLabel;

namespace kavela::desktop {

class ColumnTable;
class RankingModel;
class SelectionDocument;

/// Why an athlete stands where he stands: every result with its percentage, whether it counted or
/// was dropped and why, the bonus, and the sum that the score comes from; and what total in each
/// race would have made the place before.
class WhyPanel : public QWidget {
    Q_OBJECT

public:
    WhyPanel(const SelectionDocument& document, const RankingModel& model,
             QWidget* parent = nullptr);

    /// Shows the athlete of a row, -1 for none.
    void showRow(int row);

private:
    /// What of a result went into the score.
    struct Part {
        QString what;
        ScorePart score;
    };

    [[nodiscard]] static std::vector<Column<Part>> columns();
    void showReal(int row);
    void showWayUp(int row);

    const SelectionDocument& m_document;
    const RankingModel& m_model;
    QLabel* m_name;
    QLabel* m_real;
    ColumnModel<Part> m_scores;
    ColumnTable* m_parts;
    QLabel* m_sum;
    QLabel* m_wayUp;
};

} // namespace kavela::desktop
