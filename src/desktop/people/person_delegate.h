#pragma once

#include <QStyledItemDelegate>

namespace kavela::desktop {

class ColumnTable;
class FoundLines;

/// Offers the people whom a line of a file may belong to. For a column of FoundLines.
class PersonDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// `table` shows the lines and owns the delegate.
    PersonDelegate(const FoundLines& lines, ColumnTable& table);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    const FoundLines& m_lines;
    const ColumnTable& m_table;
};

} // namespace kavela::desktop
