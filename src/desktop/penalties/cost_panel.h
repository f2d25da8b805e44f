#pragma once

#include "desktop/penalties/penalty_figures.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;

/// What each penalty cost in places. A row opens the run where the section of the gate begins.
class CostPanel : public QWidget {
    Q_OBJECT

public:
    /// A penalty with the words for it.
    struct Row {
        PenaltyCost cost;
        QString crew;
        QString race;
        QString category;
        QString phase;
        std::string key; ///< that of its explanation
    };

    explicit CostPanel(QWidget* parent = nullptr);

    void show(const SharedFigures& figures);
    using QWidget::show;
    /// Shows the penalties of one gate alone.
    void showGate(std::uint32_t file, qint64 gate);
    void showAll();

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] QString sentence() const;
    /// Opens the run of the current row.
    void openCurrent();
    /// Why the number in a cell is what it is.
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;

signals:
    void placeRequested(const kavela::Place& place);

private:
    /// A gate is known by the path of its file, whose number changes as others come and go.
    struct Gate {
        std::string path;
        std::int64_t number = 0;
    };

    [[nodiscard]] std::vector<Row> rowsOf(const PenaltyFigures& figures) const;
    void applyGate();

    SharedFigures m_figures;
    std::optional<Gate> m_gate;
    ColumnModel<Row, std::string> m_rows;
    QLabel* m_sentence;
    QLabel* m_only;
    QPushButton* m_all;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
