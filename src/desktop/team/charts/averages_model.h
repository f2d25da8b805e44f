#pragma once

#include "results/team_records.h"

#include <QAbstractTableModel>

#include <string>
#include <vector>

namespace kavela::desktop {

/// The stored averages per phase: of one season, then of all seasons of the category.
class AveragesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Either may be null.
    void show(const mtSeasonStruct* season, const mtCatsStruct* category);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Row {
        QString scope;
        mtAverageDataStruct average;
    };

    [[nodiscard]] QString text(const Row& row, int column) const;

    std::vector<Row> m_rows;
    std::size_t m_splits = 0;
};

} // namespace kavela::desktop
