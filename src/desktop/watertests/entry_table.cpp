#include "desktop/watertests/entry_table.h"

#include "desktop/shell/cell_delegate.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"

#include <QHeaderView>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// The number typed into a cell; 0 for an emptied one. Throws RefusedEntry.
double typedNumber(const QString& text, const EntryColumn& column) {
    if (text.trimmed().isEmpty() && !column.hasZero)
        return 0;
    const QString title = QString(column.title).replace('\n', ' ');
    const NumberRange range{
        0, column.most,
        EntryModel::tr("“%1” is a number from 0 to %2").arg(title, shownNumber(column.most))};
    const double number = text.contains(':') ? typedSeconds(text, range) : typedReal(text, range);
    if (number == 0 && !column.hasZero)
        throw RefusedEntry(
            EntryModel::tr("“%1” is more than 0. An emptied cell stands for none.").arg(title));
    return number;
}

} // namespace

EntryModel::EntryModel(std::vector<EntryColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns)) {}

/// A model that is reset closes the editor in a cell and forgets which cell it was, so rows come
/// and go at the end.
void EntryModel::show(Rows rows, const QStringList& rowTitles) {
    const int before = rowCount();
    const int after = static_cast<int>(rows.size());
    if (after > before)
        beginInsertRows({}, before, after - 1);
    else if (after < before)
        beginRemoveRows({}, after, before - 1);
    m_rows = std::move(rows);
    m_rowTitles = rowTitles;
    if (after > before)
        endInsertRows();
    else if (after < before)
        endRemoveRows();
    if (after == 0)
        return;
    emit headerDataChanged(Qt::Vertical, 0, after - 1);
    emit dataChanged(index(0, 0), index(after - 1, columnCount() - 1));
}

void EntryModel::setReadOnly(int column, bool isReadOnly, const QString& tip) {
    EntryColumn& entry = m_columns[static_cast<std::size_t>(column)];
    entry.isReadOnly = isReadOnly;
    entry.tip = tip;
}

int EntryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int EntryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

double EntryModel::valueAt(const QModelIndex& index) const {
    const std::vector<double>& row = m_rows[static_cast<std::size_t>(index.row())];
    const auto column = static_cast<std::size_t>(index.column());
    return column < row.size() ? row[column] : 0;
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const EntryColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    const double value = valueAt(index);
    const bool isEmpty = value == 0 && !column.hasZero;
    if (role == Qt::DisplayRole)
        return isEmpty ? QString() : shownHundredths(value);
    if (role == Qt::EditRole)
        return isEmpty ? QString() : shownNumber(value);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole)
        return column.tip;
    return {};
}

QVariant EntryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(m_rowTitles.value(section)) : QVariant();
    const EntryColumn& column = m_columns[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return column.title;
    if (role == Qt::ToolTipRole)
        return column.tip;
    return {};
}

Qt::ItemFlags EntryModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isReadOnly =
        index.isValid() && m_columns[static_cast<std::size_t>(index.column())].isReadOnly;
    return isReadOnly ? flags : flags | Qt::ItemIsEditable;
}

bool EntryModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable) ||
        data(index, Qt::EditRole).toString() == value.toString())
        return false;
    try {
        const double number =
            typedNumber(value.toString(), m_columns[static_cast<std::size_t>(index.column())]);
        if (number != valueAt(index))
            emit entered(index.row(), index.column(), number);
        return true;
    } catch (const RefusedEntry& refusal) {
        emit refused(refusal.reason());
        return false;
    }
}

QStringList numbered(const QString& title, std::size_t count) {
    QStringList titles;
    for (std::size_t number = 1; number <= count; ++number)
        titles.append(title.arg(number));
    return titles;
}

EntryTable::EntryTable(EntryModel& model, QWidget* parent)
    : EditOrder(parent), m_cells(new CellDelegate(*this)) {
    setModel(&model);
    connect(&model, &EntryModel::refused, m_cells, &CellDelegate::refuse);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                    QAbstractItemView::EditKeyPressed);
    setWordWrap(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(64);
}

/// High enough for the rows of most tests, so that they need no scrolling.
QSize EntryTable::sizeHint() const {
    const int rows = std::clamp(model()->rowCount(), 5, 14);
    return {EditOrder::sizeHint().width(), horizontalHeader()->sizeHint().height() +
                                               rows * verticalHeader()->defaultSectionSize() +
                                               2 * frameWidth()};
}

void EntryTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    EditOrder::closeEditor(editor, hint);
    if (hint == QAbstractItemDelegate::SubmitModelCache && currentIndex().isValid() &&
        currentIndex().row() + 1 < model()->rowCount())
        setCurrentIndex(currentIndex().siblingAtRow(currentIndex().row() + 1));
}

void EntryTable::refuse(const QString& reason) {
    m_cells->refuse(reason);
}

void EntryTable::emptyCurrent() {
    model()->setData(currentIndex(), QString());
}

} // namespace kavela::desktop
