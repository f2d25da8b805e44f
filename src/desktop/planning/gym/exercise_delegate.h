#pragma once

#include "desktop/shell/cell_delegate.h"

#include <QStringList>

namespace kavela::desktop {

/// The cells of a gym session. Completes the name of an exercise from those that were used before.
class ExerciseDelegate : public CellDelegate {
    Q_OBJECT

public:
    using CellDelegate::CellDelegate;

    void setNames(const QStringList& names) { m_names = names; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

private:
    QStringList m_names;
};

} // namespace kavela::desktop
