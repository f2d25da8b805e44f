#include "desktop/watertests/result_table_model.h"

#include "desktop/shell/shown_number.h"
#include "planning/test_table.h"

namespace kavela::desktop {

namespace {

QStringList textsOf(const std::vector<std::string>& fields) {
    QStringList texts;
    for (const std::string& field : fields)
        texts.append(QString::fromStdString(field));
    return texts;
}

} // namespace

ResultTableModel::ResultTableModel(QObject* parent)
    : QAbstractTableModel(parent), m_titles(textsOf(testTableColumns())) {}

void ResultTableModel::show(const TestList& tests) {
    beginResetModel();
    m_tests = tests;
    m_cells.clear();
    for (const auto& test : tests)
        m_cells.push_back(textsOf(testTableCells(tableRunOf(*test))));
    endResetModel();
}

std::string ResultTableModel::csv() const {
    std::vector<testData> runs;
    for (const auto& test : m_tests)
        runs.push_back(tableRunOf(*test));
    return testTableCsv(runs);
}

int ResultTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_cells.size());
}

int ResultTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_titles.size());
}

/// The cells hold numbers to the last digit, as a spreadsheet wants them; people see two decimals.
QVariant ResultTableModel::data(const QModelIndex& index, int role) const {
    const QString text = m_cells[static_cast<std::size_t>(index.row())].value(index.column());
    if (role == Qt::DisplayRole) {
        bool isNumber = false;
        const double value = text.toDouble(&isNumber);
        return isNumber && index.column() > 1 ? shownHundredths(value) : text;
    }
    if (role == Qt::TextAlignmentRole && index.column() > 1)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole)
        return m_titles.value(index.column()) + ": " + text;
    return {};
}

QVariant ResultTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole
                   ? QVariant(kindText(m_tests[static_cast<std::size_t>(section)]->kind()))
                   : QVariant();
    if (role == Qt::DisplayRole)
        return QString(m_titles.value(section));
    return {};
}

} // namespace kavela::desktop
