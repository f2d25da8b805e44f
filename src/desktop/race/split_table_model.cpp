#include "desktop/race/split_table_model.h"

#include "common/number_text.h"
#include "desktop/race/cell_colours.h"
#include "desktop/race/race_document.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QCollator>

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

namespace {

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

SplitTableModel::SplitTableModel(RaceDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_document(document) {
    connect(&m_document, &RaceDocument::tableChanged, this, &SplitTableModel::reload);
    reload();
}

int SplitTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : comparisons() + static_cast<int>(m_order.size());
}

int SplitTableModel::comparisons() const {
    return static_cast<int>(m_document.comparisons().size());
}

int SplitTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0
                            : LeadingColumns + static_cast<int>(m_document.table().columns.size());
}

void SplitTableModel::reload() {
    beginResetModel();
    m_order.resize(m_document.table().rows.size());
    std::iota(m_order.begin(), m_order.end(), std::size_t{0});
    if (m_reference.row >= m_order.size())
        m_reference = {};
    applySort();
    endResetModel();
}

std::optional<std::size_t> SplitTableModel::runOfRow(int row) const {
    const int place = row - comparisons();
    return place < 0 ? std::nullopt : std::optional(m_order[static_cast<std::size_t>(place)]);
}

int SplitTableModel::rowOfRun(std::size_t run) const {
    const auto at = std::find(m_order.begin(), m_order.end(), run);
    return at == m_order.end() ? -1 : comparisons() + static_cast<int>(at - m_order.begin());
}

const ComparisonRow* SplitTableModel::comparisonOfRow(int row) const {
    return row < comparisons() ? &m_document.comparisons()[static_cast<std::size_t>(row)] : nullptr;
}

void SplitTableModel::setContent(CellContent content) {
    m_content = content;
    repaint();
}

void SplitTableModel::setReference(const TableReference& reference) {
    m_reference = reference;
    repaint();
}

void SplitTableModel::setScale(ColourScale scale) {
    m_scale = scale;
    repaint();
}

void SplitTableModel::repaint() {
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void SplitTableModel::sort(int column, Qt::SortOrder order) {
    m_sortColumn = column;
    m_sortOrder = order;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::optional<std::size_t>> runs;
    for (const QModelIndex& index : before)
        runs.push_back(runOfRow(index.row()));
    applySort();
    std::vector<int> rowOf(m_order.size());
    for (std::size_t row = 0; row < m_order.size(); ++row)
        rowOf[m_order[row]] = comparisons() + static_cast<int>(row);
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const auto run = runs[static_cast<std::size_t>(i)];
        after.append(index(run ? rowOf[*run] : before[i].row(), before[i].column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

void SplitTableModel::applySort() {
    std::iota(m_order.begin(), m_order.end(), std::size_t{0});
    if (m_sortColumn < 0 || m_sortColumn >= columnCount())
        return;
    const bool descends = m_sortOrder == Qt::DescendingOrder;
    const auto ordered = [&](const auto& a, const auto& b) { return descends ? b < a : a < b; };
    if (m_sortColumn < LeadingColumns && m_sortColumn != PlaceColumn) {
        QCollator collator;
        collator.setNumericMode(true);
        std::vector<QCollatorSortKey> keys;
        for (const std::size_t run : m_order)
            keys.push_back(collator.sortKey(leadingText(run, m_sortColumn)));
        std::stable_sort(m_order.begin(), m_order.end(), [&](std::size_t a, std::size_t b) {
            return descends ? keys[b].compare(keys[a]) < 0 : keys[a].compare(keys[b]) < 0;
        });
        return;
    }
    const auto value = [&](std::size_t run) {
        if (m_sortColumn == PlaceColumn)
            return qtText(m_document.table().rows[run].run->pos).toDouble();
        const auto cell = static_cast<std::size_t>(m_sortColumn - LeadingColumns);
        return m_document.table().rows[run].cells[cell].value;
    };
    std::stable_sort(m_order.begin(), m_order.end(), [&](std::size_t a, std::size_t b) {
        // What was not timed stands last in either direction.
        const double x = value(a);
        const double y = value(b);
        return x != 0 && (y == 0 || ordered(x, y));
    });
}

QString SplitTableModel::leadingText(std::size_t run, int column) const {
    const analyzerdata& record = *m_document.table().rows[run].run;
    switch (column) {
    case NameColumn:
        return qtText(record.name);
    case PhaseColumn:
        return qtText(record.phase);
    case CategoryColumn:
        return qtText(record.category);
    default:
        return record.pos == "0" ? QString() : qtText(record.pos);
    }
}

QString SplitTableModel::cellText(std::size_t run, std::size_t cell) const {
    return qtText(kavela::cellText(m_document.table(), m_document.figures(), run, cell, m_content,
                                   m_reference));
}

QString SplitTableModel::toolTip(std::size_t run, std::size_t cell) const {
    const TableFigures& figures = m_document.figures();
    const auto rank = figures.rank(run, cell);
    if (!rank)
        return tr("Not timed");
    const TableRow& row = m_document.table().rows[run];
    return tr("%1, %2: %3 s\nplace %4 of %5\n%6 s behind the best, %7 %")
        .arg(qtText(row.run->name), qtText(m_document.table().columns[cell].title),
             qtText(hundredthsText(row.cells[cell].value)))
        .arg(*rank)
        .arg(figures.timed(cell))
        .arg(qtText(signedHundredths(figures.gap(run, cell, {}).value_or(0))),
             qtText(hundredthsText(figures.percentBehind(run, cell).value_or(0))));
}

QVariant SplitTableModel::background(const TableCell& cell) const {
    const auto tint = cell.band ? bandTint(*cell.band, m_scale) : std::nullopt;
    return tint ? QVariant(*tint) : QVariant();
}

QVariant SplitTableModel::foreground(const TableCell& cell) const {
    if (cell.foreground)
        return raceText(*cell.foreground, m_scale, theme::isDark(QApplication::palette()));
    if (cell.band && bandTint(*cell.band, m_scale))
        return QColor(Qt::black); // every tint is a light one
    return {};
}

QVariant SplitTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((index.column() < PlaceColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    if (const ComparisonRow* row = comparisonOfRow(index.row()))
        return comparisonData(*row, index.column(), role);
    return runData(*runOfRow(index.row()), index.column(), role);
}

QVariant SplitTableModel::comparisonData(const ComparisonRow& row, int column, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return comparisonText(row, column);
    case Qt::ToolTipRole:
        return row.origin.empty() ? tr("The best of every section, put together")
                                  : tr("%1 in %2").arg(qtText(row.name), qtText(row.origin));
    case Qt::BackgroundRole:
        return theme::surface(QApplication::palette());
    case Qt::FontRole: {
        QFont font;
        font.setItalic(true);
        return font;
    }
    default:
        return {};
    }
}

QString SplitTableModel::comparisonText(const ComparisonRow& row, int column) const {
    if (column == NameColumn)
        return row.origin.empty() ? tr("Ideal run")
                                  : tr("%1, %2").arg(qtText(row.name), qtText(row.origin));
    if (column < LeadingColumns)
        return column == PhaseColumn      ? qtText(row.phase)
               : column == CategoryColumn ? qtText(row.category)
                                          : QString();
    return qtText(kavela::comparisonText(row, m_document.figures(),
                                         static_cast<std::size_t>(column - LeadingColumns),
                                         m_content, m_reference));
}

QVariant SplitTableModel::runData(std::size_t run, int column, int role) const {
    if (column < LeadingColumns)
        return role == Qt::DisplayRole || role == Qt::ToolTipRole ? leadingText(run, column)
                                                                  : QVariant();
    const auto cell = static_cast<std::size_t>(column - LeadingColumns);
    const TableCell& shown = m_document.table().rows[run].cells[cell];
    switch (role) {
    case Qt::DisplayRole:
        return cellText(run, cell);
    case Qt::ToolTipRole:
        return toolTip(run, cell);
    case Qt::BackgroundRole:
        return background(shown);
    case Qt::ForegroundRole:
        return foreground(shown);
    case Qt::FontRole: {
        QFont font;
        font.setBold(shown.band == Band::Fastest || shown.foreground == NamedGreen);
        return font;
    }
    default:
        return {};
    }
}

QVariant SplitTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (role == Qt::TextAlignmentRole)
        return QVariant((section < PlaceColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Name");
    case PhaseColumn:
        return tr("Phase");
    case CategoryColumn:
        return tr("Cat");
    case PlaceColumn:
        return tr("Place");
    default:
        return qtText(
            m_document.table().columns[static_cast<std::size_t>(section - LeadingColumns)].title);
    }
}

} // namespace kavela::desktop
