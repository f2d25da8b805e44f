#pragma once

#include "boatmotion/session_table.h"

#include <QTabWidget>

class QLabel;

namespace kavela::desktop {

class WholeBox;
class BalanceView;
class ColumnTable;
class GridModel;

/// The tables of a session: strokes, turns, segments, values per distance mark, left and right. A
/// row that is clicked moves the cursor; the cursor moves the current row.
class SessionTables : public QTabWidget {
    Q_OBJECT

public:
    explicit SessionTables(QWidget* parent = nullptr);

    enum Page { StrokePage, TurnPage, SegmentPage, MetersPage, BalancePage };

    void show(const EditedSession& session, const SessionFigures& figures);
    using QTabWidget::show;

    /// The strokes or turns that are selected in the table in front, by their place in the records.
    [[nodiscard]] std::vector<std::size_t> selectedEntries() const;
    /// The table of a page; null for the balance.
    [[nodiscard]] const SessionGrid* gridOf(Page page) const;
    [[nodiscard]] ColumnTable* view(Page page) const;

public slots:
    void showCursorAt(double moment);

signals:
    void momentChosen(double moment);

private:
    ColumnTable* addTable(const char* name, GridModel* model);
    void choose(const ColumnTable& table, const QModelIndex& index);
    [[nodiscard]] GridModel* modelOf(Page page) const;
    QWidget* makeMetersPage();
    void showMeters();

    GridModel* m_strokes;
    GridModel* m_turns;
    GridModel* m_segments;
    GridModel* m_meters;
    std::vector<ColumnTable*> m_views; ///< by page
    WholeBox* m_step = nullptr;
    QLabel* m_metersBegin = nullptr; ///< where the distance is counted from
    BalanceView* m_balance;
    EditedSession m_session;
    SessionFigures m_figures;
    const ColumnTable* m_choosing = nullptr; ///< a row of it is being chosen
    bool m_isFollowing = false;              ///< the cursor moves the rows, not the other way round
};

} // namespace kavela::desktop
