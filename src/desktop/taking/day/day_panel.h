#pragma once

#include "desktop/shell/tables/column_model.h"
#include "splittaking/race_day/day_lines.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class DayDesk;

/// The starts of the day in their order, with the film of each and how sure that is.
class DayPanel : public QWidget {
    Q_OBJECT

public:
    explicit DayPanel(DayDesk& desk, QWidget* parent = nullptr);

    [[nodiscard]] ColumnTable& table() const { return *m_table; }

signals:
    void listWanted();   ///< a start list is to be taken
    void folderWanted(); ///< the folder in which films appear is to be chosen

private:
    using Columns = ColumnModel<DayLine, std::int64_t>::Columns;

    [[nodiscard]] Columns columns();
    [[nodiscard]] Columns listColumns();
    [[nodiscard]] Columns filmColumns();
    void makeLayout();
    void showDay();
    void showNote();
    void showFront();

    DayDesk& m_desk;
    ColumnModel<DayLine, std::int64_t> m_model;
    ColumnTable* m_table;
    QLabel* m_note;
    QPushButton* m_offset;
    bool m_isShowing = false; ///< rows come and go: none was chosen by the coach
};

} // namespace kavela::desktop
