#include "desktop/tables/derived_dialog.h"

#include "desktop/shell/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QListWidget>
#include <QPushButton>

namespace kavela::desktop {

namespace {

/// The name of the column that is chosen; empty for the first line, which stands for none.
std::string pickedColumn(const QComboBox& box) {
    return box.currentData().toString().toStdString();
}

} // namespace

DerivedDialog::DerivedDialog(const ListTable& table, std::size_t column, QWidget* parent)
    : QDialog(parent),
      m_form(new QFormLayout(this)),
      m_what(new QComboBox),
      m_parts(new QListWidget),
      m_of(new QComboBox),
      m_less(new QComboBox),
      m_by(new QComboBox),
      m_isHighestBest(new QCheckBox(tr("The &highest number is the best"))) {
    setWindowTitle(tr("Another column"));
    m_what->addItems({tr("Total"), tr("Rank"), tr("Gap to the best"), tr("Percent behind the best"),
                      tr("Percentile"), tr("Difference")});
    m_what->setObjectName("what");
    m_parts->setObjectName("parts");
    m_of->setObjectName("of");
    m_less->setObjectName("less");
    m_by->setObjectName("by");
    fillColumns(table, column);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* const add = buttons->addButton(tr("Add"), QDialogButtonBox::AcceptRole);
    m_form->addRow(tr("&What"), m_what);
    m_form->addRow(tr("Sum &of (none: times and penalties)"), m_parts);
    m_form->addRow(tr("O&f"), m_of);
    m_form->addRow(tr("&Less"), m_less);
    m_form->addRow(tr("Each &compared within"), m_by);
    m_form->addRow(m_isHighestBest);
    m_form->addRow(buttons);
    add->setDefault(true); // once it is part of the dialog
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_what, &QComboBox::currentIndexChanged, this, &DerivedDialog::showFields);
    m_what->setCurrentIndex(static_cast<int>(Derivation::Rank));
    showFields();
}

void DerivedDialog::fillColumns(const ListTable& table, std::size_t column) {
    m_of->addItem(tr("the total, else the times"), QString());
    m_by->addItem(tr("all rows"), QString());
    for (std::size_t place = 0; place < table.columns.size(); ++place) {
        const QString name = qtText(table.columns[place].name);
        m_by->addItem(name, name);
        if (!isReckoned(table.columns[place].kind))
            continue;
        m_of->addItem(name, name);
        m_less->addItem(name, name);
        auto* const part = new QListWidgetItem(name, m_parts);
        part->setFlags(part->flags() | Qt::ItemIsUserCheckable);
        part->setCheckState(Qt::Unchecked);
        if (place == column)
            m_of->setCurrentIndex(m_of->count() - 1);
    }
    constexpr int PartsShown = 5;
    m_parts->setMaximumHeight(PartsShown * (fontMetrics().height() + 6));
}

Derivation DerivedDialog::what() const {
    return static_cast<Derivation>(m_what->currentIndex());
}

void DerivedDialog::showFields() {
    const bool isTotal = what() == Derivation::Total;
    const bool isDifference = what() == Derivation::Difference;
    if (isDifference && m_of->currentIndex() == 0 && m_of->count() > 1)
        m_of->setCurrentIndex(1); // both columns of a difference have a name
    m_form->setRowVisible(m_parts, isTotal);
    m_form->setRowVisible(m_of, !isTotal);
    m_form->setRowVisible(m_less, isDifference);
    m_form->setRowVisible(m_by, !isTotal && !isDifference);
    m_form->setRowVisible(m_isHighestBest, !isTotal && !isDifference);
}

DerivedColumn DerivedDialog::derived() const {
    DerivedColumn derived;
    derived.what = what();
    if (what() == Derivation::Total) {
        for (int part = 0; part < m_parts->count(); ++part)
            if (m_parts->item(part)->checkState() == Qt::Checked)
                derived.columns.push_back(m_parts->item(part)->text().toStdString());
        return derived;
    }
    if (const std::string of = pickedColumn(*m_of); !of.empty())
        derived.columns.push_back(of);
    if (what() == Derivation::Difference) {
        derived.columns.push_back(pickedColumn(*m_less));
        return derived;
    }
    derived.by = pickedColumn(*m_by);
    derived.isHighestBest = m_isHighestBest->isChecked();
    return derived;
}

} // namespace kavela::desktop
