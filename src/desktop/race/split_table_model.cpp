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

QString signedHundredths(double seconds) {
    const QString text = qtText(hundredthsText(seconds));
    return seconds > 0 ? '+' + text : text;
}

} // namespace

SplitTableModel::SplitTableModel(RaceDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_document(document) {
    connect(&m_document, &RaceDocument::tableChanged, this, &SplitTableModel::reload);
    reload();
}

int SplitTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_order.size());
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

std::size_t SplitTableModel::runOfRow(int row) const {
    return m_order[static_cast<std::size_t>(row)];
}

int SplitTableModel::rowOfRun(std::size_t run) const {
    const auto at = std::find(m_order.begin(), m_order.end(), run);
    return at == m_order.end() ? -1 : static_cast<int>(at - m_order.begin());
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
    if (!m_order.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void SplitTableModel::sort(int column, Qt::SortOrder order) {
    m_sortColumn = column;
    m_sortOrder = order;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::size_t> runs;
    for (const QModelIndex& index : before)
        runs.push_back(runOfRow(index.row()));
    applySort();
    std::vector<int> rowOf(m_order.size());
    for (std::size_t row = 0; row < m_order.size(); ++row)
        rowOf[m_order[row]] = static_cast<int>(row);
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(index(rowOf[runs[static_cast<std::size_t>(i)]], before[i].column()));
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

const TableCell& SplitTableModel::cellAt(const QModelIndex& index) const {
    const auto& row = m_document.table().rows[runOfRow(index.row())];
    return row.cells[static_cast<std::size_t>(index.column() - LeadingColumns)];
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
    const TableFigures& figures = m_document.figures();
    const QString none = "–";
    switch (m_content) {
    case CellContent::Time:
        return qtText(m_document.table().rows[run].cells[cell].text);
    case CellContent::Gap: {
        const auto gap = figures.gap(run, cell, m_reference);
        return gap ? signedHundredths(*gap) : none;
    }
    case CellContent::Rank: {
        const auto rank = figures.rank(run, cell);
        return rank ? QString::number(*rank) : none;
    }
    case CellContent::PercentBehind: {
        const auto percent = figures.percentBehind(run, cell);
        return percent ? qtText(hundredthsText(*percent)) + " %" : none;
    }
    case CellContent::Percentile: {
        const auto percentile = figures.percentile(run, cell);
        return percentile ? QString::number(*percentile, 'f', 0) : none;
    }
    }
    return none;
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
        .arg(signedHundredths(figures.gap(run, cell, {}).value_or(0)),
             qtText(hundredthsText(figures.percentBehind(run, cell).value_or(0))));
}

QVariant SplitTableModel::background(const TableCell& cell) const {
    const auto tint =
        cell.band ? bandTint(*cell.band, m_scale == ColourScale::BlueOrange) : std::nullopt;
    return tint ? QVariant(*tint) : QVariant();
}

QVariant SplitTableModel::foreground(const TableCell& cell) const {
    const bool blueOrange = m_scale == ColourScale::BlueOrange;
    if (cell.foreground)
        return raceText(*cell.foreground, blueOrange, theme::isDark(QApplication::palette()));
    if (cell.band && bandTint(*cell.band, blueOrange))
        return QColor(Qt::black); // every tint is a light one
    return {};
}

QVariant SplitTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const std::size_t run = runOfRow(index.row());
    if (index.column() < LeadingColumns) {
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
            return leadingText(run, index.column());
        if (role == Qt::TextAlignmentRole && index.column() == PlaceColumn)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    }
    const auto cell = static_cast<std::size_t>(index.column() - LeadingColumns);
    switch (role) {
    case Qt::DisplayRole:
        return cellText(run, cell);
    case Qt::ToolTipRole:
        return toolTip(run, cell);
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return background(cellAt(index));
    case Qt::ForegroundRole:
        return foreground(cellAt(index));
    case Qt::FontRole: {
        const TableCell& shown = cellAt(index);
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
