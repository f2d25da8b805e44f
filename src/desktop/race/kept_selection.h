#pragma once

#include "desktop/race/race_document.h"

#include <QObject>

#include <optional>
#include <vector>

class QModelIndex;

namespace kavela::desktop {

class FrozenTable;
class SplitTableModel;

/// What the coach has selected in a split table and is looking at. Every other filter, setting and
/// reading of the file makes the rows anew: the selection, the cell of the keyboard and the place
/// scrolled to follow their runs. A selected run that the filter leaves out is selected again when
/// it comes back, unless something else was selected meanwhile.
class KeptSelection : public QObject {
    Q_OBJECT

public:
    KeptSelection(FrozenTable& table, SplitTableModel& model, RaceDocument& document,
                  QObject* parent = nullptr);

    /// The selected rows that are shown, in the order in which they were selected.
    [[nodiscard]] const std::vector<int>& rows() const { return m_rows; }

signals:
    /// The coach selected other rows. Rows that only moved are not told.
    void changed();

private:
    void remember();
    void noteCurrent(const QModelIndex& current);
    void notePlace();
    void renumber(const RunMoves& moves);
    void restore();
    void restorePlace();
    void listRows();

    FrozenTable& m_table;
    SplitTableModel& m_model;
    std::vector<RowKey> m_selected; ///< in the order of selecting, also those that are not shown
    std::vector<int> m_rows;
    std::optional<RowKey> m_current;
    int m_currentColumn = 0;
    std::optional<RowKey> m_top; ///< the first row in view
    int m_topOffset = 0;         ///< pixels of it that are scrolled out
    int m_left = 0;              ///< pixels that the sections are scrolled by
    bool m_isRestoring = false;
};

} // namespace kavela::desktop
