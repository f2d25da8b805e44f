#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/watertests/test_charts.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QScrollArea;
class QTabBar;

namespace kavela::desktop {

class ChartCard;
class ColumnTable;

/// The charts of the chosen test, with the ticked tests of its kind laid over it.
class ChartView : public QWidget {
    Q_OBJECT

public:
    explicit ChartView(QWidget* parent = nullptr);

    /// All tests are of one kind; `note` tells what is left out.
    void showTests(const TestList& tests, const QString& note);
    void showGroup(ChartGroup group);
    [[nodiscard]] ChartGroup group() const;

    /// The charts that are shown, in their order.
    [[nodiscard]] std::vector<ChartCard*> cards() const;

private:
    void layOut();
    void fill();
    void showScores();
    ChartCard& cardAt(std::size_t index);
    void moveCursors(const SeriesChart& from, double x);

    std::vector<ShownTest> m_tests;
    QTabBar* m_groups;
    QLabel* m_heading;
    QLabel* m_note;
    ColumnModel<ShownTest> m_runs;
    ColumnTable* m_scores;
    QScrollArea* m_scroll;
    QGridLayout* m_grid;
    std::vector<ChartCard*> m_cards;
    std::size_t m_shownCards = 0;
};

} // namespace kavela::desktop
