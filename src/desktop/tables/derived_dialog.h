#pragma once

#include "tables/derived_columns.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QListWidget;

namespace kavela::desktop {

/// Asks what a new column is to be reckoned from.
class DerivedDialog : public QDialog {
    Q_OBJECT

public:
    /// `column` is proposed where it has numbers.
    DerivedDialog(const ListTable& table, std::size_t column, QWidget* parent = nullptr);

    [[nodiscard]] DerivedColumn derived() const;

private:
    void fillColumns(const ListTable& table, std::size_t column);
    void showFields();
    [[nodiscard]] Derivation what() const;

    QFormLayout* m_form;
    QComboBox* m_what;
    QListWidget* m_parts; ///< of a total
    QComboBox* m_of;
    QComboBox* m_less; ///< of a difference
    QComboBox* m_by;
    QCheckBox* m_isHighestBest;
};

} // namespace kavela::desktop
