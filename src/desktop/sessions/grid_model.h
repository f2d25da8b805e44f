#pragma once

#include "boatmotion/session_table.h"

#include <QAbstractTableModel>

namespace kavela::desktop {

/// A table of a session. What is not known is a dash.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(SessionGrid grid);
    [[nodiscard]] const SessionGrid& grid() const { return m_grid; }
    /// The last row that begins at a moment or before it; -1 for none.
    [[nodiscard]] int rowAt(double moment) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    SessionGrid m_grid;
};

} // namespace kavela::desktop
