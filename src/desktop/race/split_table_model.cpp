#include "desktop/race/split_table_model.h"

#include "analysis/analysis_reasons.h"
#include "desktop/race/cell_colours.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/theme.h"
#include "splitdata/run_timing.h"

#include <QApplication>
#include <QCollator>

#include <algorithm>
#include <limits>
#include <numeric>

namespace kavela::desktop {

SplitTableModel::SplitTableModel(RaceDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_document(document) {
    connect(&m_document, &RaceDocument::tableChanged, this, &SplitTableModel::reload);
    connect(&m_document, &RaceDocument::runsMoved, this, &SplitTableModel::renumber);
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
    applySort();
    resolveReference();
    endResetModel();
}

/// The keys of the rows and the reference are numbers of runs of the file, which has others now.
void SplitTableModel::renumber(const RunMoves& moves) {
    constexpr std::size_t Gone = std::numeric_limits<std::size_t>::max();
    const auto follow = [&](RowKey& key) {
        if (key.kind == RowKey::Kind::Run)
            key.number = key.number < moves.size() ? moves[key.number].value_or(Gone) : Gone;
    };
    std::ranges::for_each(m_keys, follow);
    follow(m_referenceRow);
}

void SplitTableModel::listKeys() {
    m_keys = m_document.comparisonKeys();
    for (const std::size_t run : m_order) {
        const std::int64_t number = m_document.shownSet().alldata[run].athleteInt;
        m_keys.push_back({RowKey::Kind::Run, static_cast<std::size_t>(number)});
    }
}

const RowKey& SplitTableModel::keyOfRow(int row) const {
    return m_keys[static_cast<std::size_t>(row)];
}

int SplitTableModel::rowOfKey(const RowKey& key) const {
    const auto at = std::ranges::find(m_keys, key);
    return at == m_keys.end() ? -1 : static_cast<int>(at - m_keys.begin());
}

/// A run that is shown is the reference by its place, as the report names it; any other row by what
/// it holds under the settings of the table as they are now.
void SplitTableModel::resolveReference() {
    m_reference = {m_referenceKind};
    if (m_referenceKind != ReferenceKind::Run)
        return;
    const int row = rowOfKey(m_referenceRow);
    const auto run = row < 0 ? std::nullopt : runOfRow(row);
    if (run) {
        m_reference.row = *run;
    } else if (const auto values = m_document.valuesOf(m_referenceRow)) {
        m_reference = {ReferenceKind::Values, 0, values->name, values->values};
    } else {
        m_referenceKind = ReferenceKind::Best;
        m_reference = {};
    }
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

std::optional<Reason> SplitTableModel::whyOf(const QModelIndex& index) const {
    if (!index.isValid() || index.column() < LeadingColumns)
        return std::nullopt;
    const auto column = static_cast<std::size_t>(index.column() - LeadingColumns);
    const TableSettings settings = m_document.settings();
    const ShownTable shown{m_document.shownSet(), settings,  m_document.table(),
                           m_document.figures(),  m_content, m_reference};
    if (const ComparisonRow* const row = comparisonOfRow(index.row()))
        return explainComparison(shown, *row, column);
    return explainCell(shown, *runOfRow(index.row()), column);
}

void SplitTableModel::setContent(CellContent content) {
    m_content = content;
    repaint();
}

void SplitTableModel::setReference(ReferenceKind kind) {
    m_referenceKind = kind;
    resolveReference();
    repaint();
}

void SplitTableModel::setReferenceRow(const RowKey& row) {
    m_referenceRow = row;
    setReference(ReferenceKind::Run);
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

const TableCell* SplitTableModel::sortedCell(std::size_t run) const {
    if (m_sortColumn < LeadingColumns)
        return nullptr;
    return &m_document.table()
                .rows[run]
                .cells[static_cast<std::size_t>(m_sortColumn - LeadingColumns)];
}

/// The official place; runs without one stand behind all others in either direction.
double SplitTableModel::placeOf(std::size_t run) const {
    return qtText(m_document.table().rows[run].run->pos).toDouble();
}

void SplitTableModel::applyTextSort() {
    const bool descends = m_sortOrder == Qt::DescendingOrder;
    QCollator collator;
    collator.setNumericMode(true);
    std::vector<QCollatorSortKey> keys;
    for (const std::size_t run : m_order)
        keys.push_back(collator.sortKey(leadingText(run, m_sortColumn)));
    std::stable_sort(m_order.begin(), m_order.end(), [&](std::size_t a, std::size_t b) {
        return descends ? keys[b].compare(keys[a]) < 0 : keys[a].compare(keys[b]) < 0;
    });
}

void SplitTableModel::applySort() {
    std::iota(m_order.begin(), m_order.end(), std::size_t{0});
    if (m_sortColumn >= 0 && m_sortColumn < LeadingColumns && m_sortColumn != PlaceColumn) {
        applyTextSort();
    } else if (m_sortColumn >= 0 && m_sortColumn < columnCount()) {
        // What was not timed stands last in either direction, behind what counts for nothing.
        const auto group = [&](std::size_t run) {
            const TableCell* cell = sortedCell(run);
            if (cell == nullptr)
                return placeOf(run) == 0 ? 2 : 0;
            return cell->value == 0 ? 2 : cell->isGreyed() ? 1 : 0;
        };
        const auto value = [&](std::size_t run) {
            const TableCell* cell = sortedCell(run);
            return cell != nullptr ? cell->value : placeOf(run);
        };
        const bool descends = m_sortOrder == Qt::DescendingOrder;
        std::stable_sort(m_order.begin(), m_order.end(), [&](std::size_t a, std::size_t b) {
            if (group(a) != group(b))
                return group(a) < group(b);
            return descends ? value(b) < value(a) : value(a) < value(b);
        });
    }
    listKeys();
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

QString SplitTableModel::plainNumber(std::size_t run, std::size_t cell) const {
    return qtText(
        cellNumber(m_document.table(), m_document.figures(), run, cell, m_content, m_reference));
}

bool SplitTableModel::showsPenalties(std::size_t cell) const {
    const std::vector<TableColumn>& columns = m_document.table().columns;
    return m_content == CellContent::Time && m_document.settings().penaltiesVisible &&
           cell + ClosingColumns < columns.size();
}

QVariant SplitTableModel::penalty(std::size_t run, std::size_t cell) const {
    if (!showsPenalties(cell))
        return {};
    const auto& penalties = m_document.table().rows[run].run->sectioninfo.pens;
    return QVariant::fromValue(static_cast<qlonglong>(entryOrZero(penalties, cell)));
}

QString SplitTableModel::toolTip(std::size_t run, std::size_t cell) const {
    const TableFigures& figures = m_document.figures();
    const auto rank = figures.rank(run, cell);
    const TableRow& row = m_document.table().rows[run];
    if (row.cells[cell].isGreyed())
        return greyedTip(run, cell);
    if (!rank)
        return tr("Not timed");
    return tr("%1, %2: %3 s\nplace %4 of %5\n%6 s behind the best, %7 %")
        .arg(qtText(row.run->name), qtText(m_document.table().columns[cell].title),
             shownHundredths(row.cells[cell].value))
        .arg(*rank)
        .arg(figures.timed(cell))
        .arg(qtText(signedHundredths(figures.gap(run, cell, {}).value_or(0))),
             shownHundredths(figures.percentBehind(run, cell).value_or(0)));
}

/// Why a cell is grey.
QString SplitTableModel::greyedTip(std::size_t run, std::size_t cell) const {
    const TableRow& row = m_document.table().rows[run];
    const std::string_view reason = reasonOf(row.cells[cell].standing);
    return tr("%1, %2: %3 s\n%4\nIt counts for nothing: no place, no gap, never a best.")
        .arg(qtText(row.run->name), qtText(m_document.table().columns[cell].title),
             shownHundredths(row.cells[cell].value),
             QString::fromUtf8(reason.data(), static_cast<qsizetype>(reason.size())));
}

QVariant SplitTableModel::background(const TableCell& cell) const {
    const auto tint = cell.band ? bandTint(*cell.band, m_scale) : std::nullopt;
    if (!tint)
        return {};
    return cell.isGreyed() ? fadedTint(*tint) : *tint;
}

QVariant SplitTableModel::foreground(const TableCell& cell) const {
    if (cell.isGreyed())
        return cell.background ? OnFadedTint : theme::quietText(QApplication::palette());
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
    case NumberRole:
        return column < LeadingColumns
                   ? comparisonText(row, column)
                   : qtText(comparisonNumber(row, m_document.figures(),
                                             static_cast<std::size_t>(column - LeadingColumns),
                                             m_content, m_reference));
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
        return role == Qt::DisplayRole || role == Qt::ToolTipRole || role == NumberRole
                   ? leadingText(run, column)
                   : QVariant();
    const auto cell = static_cast<std::size_t>(column - LeadingColumns);
    const TableCell& shown = m_document.table().rows[run].cells[cell];
    switch (role) {
    case Qt::DisplayRole:
        return cellText(run, cell);
    case NumberRole:
        return plainNumber(run, cell);
    case PenaltyRole:
        return penalty(run, cell);
    case Qt::ToolTipRole:
        return toolTip(run, cell);
    case Qt::BackgroundRole:
        return background(shown);
    case Qt::ForegroundRole:
        return foreground(shown);
    case Qt::FontRole: {
        QFont font;
        font.setBold(shown.isBest);
        font.setItalic(shown.isGreyed());
        return font;
    }
    default:
        return {};
    }
}

/// The gates of a section, and what is different about those from the eleventh on.
QString SplitTableModel::headerTip(std::size_t cell) const {
    const TableColumn& column = m_document.table().columns[cell];
    QStringList lines{qtText(column.title)};
    const auto& sections = m_document.shownSet().definedsections;
    if (cell < sections.size() && (!column.number || *column.number <= SectionColumns)) {
        QStringList gates;
        for (const std::int64_t gate : sections[cell])
            gates.append(QString::number(gate));
        if (!gates.isEmpty())
            lines.append(tr("Gates %1").arg(gates.join(", ")));
    }
    if (!column.number)
        lines.append(tr("Section %1: the colours and the penalties in brackets are those of the "
                        "first ten sections only.\nPlace, gap and percent are there as in any "
                        "other.")
                         .arg(cell + 1));
    return lines.join('\n');
}

/// Sections go by their number, since their titles differ from course to course.
QString SplitTableModel::columnName(int column) const {
    static const QStringList leading{"name", "phase", "category", "place"};
    static const QStringList closing{"total", "sprint", "real"};
    if (column < LeadingColumns)
        return leading[column];
    const auto fromEnd = columnCount() - column;
    if (fromEnd <= closing.size())
        return closing[closing.size() - fromEnd];
    return QString::number(column - LeadingColumns + 1);
}

QVariant SplitTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (role == Qt::TextAlignmentRole)
        return QVariant((section < PlaceColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    if (role == ColumnNameRole)
        return columnName(section);
    if (role == PenaltyRole)
        return section >= LeadingColumns &&
               showsPenalties(static_cast<std::size_t>(section - LeadingColumns));
    if (role == Qt::ToolTipRole && section >= LeadingColumns)
        return headerTip(static_cast<std::size_t>(section - LeadingColumns));
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
