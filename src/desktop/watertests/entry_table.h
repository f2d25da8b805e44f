#pragma once

#include "desktop/shell/edit_order.h"

#include <QAbstractTableModel>

#include <vector>

namespace kavela::desktop {

class CellDelegate;

/// A column of numbers that a coach types.
struct EntryColumn {
    QString title;
    QString tip;
    double most = 0; ///< a greater number is refused; 0 in a column that is only read
    bool isReadOnly = false;
    bool hasZero = false; ///< 0 is a value here and not the want of one
};

/// Rows of numbers, none of them negative. 0 stands for "not entered" and is shown as an empty
/// cell, unless the column says otherwise.
class EntryModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using Rows = std::vector<std::vector<double>>; ///< by row, then by column

    explicit EntryModel(std::vector<EntryColumn> columns, QObject* parent = nullptr);

    /// `rowTitles` names each row.
    void show(Rows rows, const QStringList& rowTitles);
    void setReadOnly(int column, bool isReadOnly, const QString& tip);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    void entered(int row, int column, double value);
    /// What was typed cannot be taken.
    void refused(const QString& reason);

private:
    [[nodiscard]] double valueAt(const QModelIndex& index) const;

    std::vector<EntryColumn> m_columns;
    Rows m_rows;
    QStringList m_rowTitles;
};

/// Titles of rows that are numbered from 1, such as "Lap %1".
[[nodiscard]] QStringList numbered(const QString& title, std::size_t count);

/// A table to type numbers into: a digit begins, Enter goes on to the next row.
class EntryTable : public EditOrder<QTableView> {
    Q_OBJECT

public:
    explicit EntryTable(EntryModel& model, QWidget* parent = nullptr);

    void emptyCurrent();
    /// What is just being entered cannot be taken.
    void refuse(const QString& reason);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    CellDelegate* m_cells;
};

} // namespace kavela::desktop
