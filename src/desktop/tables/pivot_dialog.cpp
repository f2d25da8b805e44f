#include "desktop/tables/pivot_dialog.h"

#include "desktop/shell/qt_text.h"
#include "tables/table_error.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

namespace kavela::desktop {

namespace {

std::string namePicked(const QComboBox& box) {
    return box.currentData().toString().toStdString();
}

/// The column that ranks the rows is what is asked for most.
int likelyValue(const ListTable& table) {
    try {
        return static_cast<int>(resultColumn(table));
    } catch (const TableError&) {
        return 0;
    }
}

} // namespace

PivotDialog::PivotDialog(const ListTable& table, std::size_t column, QWidget* parent)
    : QDialog(parent),
      m_row(new QComboBox),
      m_column(new QComboBox),
      m_value(new QComboBox),
      m_function(new QComboBox) {
    setWindowTitle(tr("Pivot"));
    m_row->setObjectName("row");
    m_column->setObjectName("column");
    m_value->setObjectName("value");
    m_function->setObjectName("function");
    m_column->addItem(tr("one column for all"), QString());
    for (const GridColumn& each : table.columns) {
        const QString name = qtText(each.name);
        for (QComboBox* const box : {m_row, m_column, m_value})
            box->addItem(name, name);
    }
    // In the order of the functions.
    m_function->addItems(
        {tr("How many"), tr("Sum"), tr("Mean"), tr("Median"), tr("Least"), tr("Most")});
    m_function->setCurrentIndex(static_cast<int>(PivotFunction::Mean));
    m_row->setCurrentIndex(static_cast<int>(column));
    m_value->setCurrentIndex(likelyValue(table));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* const make = buttons->addButton(tr("Make"), QDialogButtonBox::AcceptRole);
    auto* const form = new QFormLayout(this);
    form->addRow(tr("A &row for each"), m_row);
    form->addRow(tr("A &column for each"), m_column);
    form->addRow(tr("&Of"), m_value);
    form->addRow(tr("&Tell"), m_function);
    form->addRow(buttons);
    make->setDefault(true); // once it is part of the dialog
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

Pivot PivotDialog::pivot() const {
    return {namePicked(*m_row), namePicked(*m_column), namePicked(*m_value),
            static_cast<PivotFunction>(m_function->currentIndex())};
}

} // namespace kavela::desktop
