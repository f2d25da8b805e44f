#pragma once

#include "desktop/planning/body/measures.h"

#include <QAbstractTableModel>

namespace kavela::desktop {

/// Dated measurements, the latest first. What is odd is marked and stays as it is. Edits leave as
/// signals.
class MeasureModel : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr int DateColumn = 0; ///< the values follow

    explicit MeasureModel(std::vector<MeasureColumn> columns, QObject* parent = nullptr);

    void show(std::vector<MeasureRow> rows);
    [[nodiscard]] const MeasureRow& row(int row) const {
        return m_rows[static_cast<std::size_t>(row)];
    }
    /// Where a measurement stands; -1 for nowhere.
    [[nodiscard]] int rowOf(std::size_t place) const;
    [[nodiscard]] const std::vector<MeasureColumn>& columns() const { return m_columns; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    void dateTyped(std::size_t place, kavela::ReferenceDate date);
    void valueTyped(std::size_t place, std::size_t column, double value);
    /// What was typed cannot be taken.
    void refused(const QString& reason);

private:
    void reorder(std::vector<MeasureRow> rows);
    [[nodiscard]] QString text(const QModelIndex& index, bool isEdited) const;
    [[nodiscard]] QString oddity(const QModelIndex& index) const;
    [[nodiscard]] const MeasureColumn& column(const QModelIndex& index) const;

    std::vector<MeasureColumn> m_columns;
    std::vector<MeasureRow> m_rows;
};

} // namespace kavela::desktop
