#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

class QAbstractItemView;

namespace kavela::desktop {

/// The cells of a table that is typed in. What a cell cannot take stays in it with the cursor, and
/// why is said beside it, until it is corrected or Esc brings the old value back.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// For every cell of `view`, which owns it.
    explicit CellDelegate(QAbstractItemView& view);

    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

public slots:
    /// What the model is just being given cannot be taken, for this reason.
    void refuse(const QString& reason);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QAbstractItemView& m_view;
    const QObject* m_viewport; ///< known here too: the view is no view any more when it goes
    mutable QPointer<QWidget> m_editor;   ///< the one that was opened last
    mutable bool m_isHandingOver = false; ///< its text is on the way to the model
    mutable bool m_isRefused = false;
};

} // namespace kavela::desktop
