#pragma once

#include <QWidget>

class QLabel;
class QTableWidget;

namespace kavela::desktop {

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
    void addLine(const QString& what, const QString& percent, const QString& fate, bool isCounted);
    void showReal(int row);
    void showWayUp(int row);

    const SelectionDocument& m_document;
    const RankingModel& m_model;
    QLabel* m_name;
    QLabel* m_real;
    QTableWidget* m_parts;
    QLabel* m_sum;
    QLabel* m_wayUp;
};

} // namespace kavela::desktop
