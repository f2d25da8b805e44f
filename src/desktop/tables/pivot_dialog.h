#pragma once

#include "tables/pivot.h"

#include <QDialog>

class QComboBox;

namespace kavela::desktop {

/// Asks which rows a pivot puts together, and what it tells of them.
class PivotDialog : public QDialog {
    Q_OBJECT

public:
    /// `column` is proposed for the rows.
    PivotDialog(const ListTable& table, std::size_t column, QWidget* parent = nullptr);

    [[nodiscard]] Pivot pivot() const;

private:
    QComboBox* m_row;
    QComboBox* m_column;
    QComboBox* m_value;
    QComboBox* m_function;
};

} // namespace kavela::desktop
