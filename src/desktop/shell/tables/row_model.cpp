#include "desktop/shell/tables/row_model.h"

#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"

#include <QApplication>
#include <QBrush>
#include <QFont>
#include <QScopedValueRollback>

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

namespace {

const QColor Warning(0xE0, 0x7B, 0x00);

QVariant alignment(ColumnKind kind) {
    return QVariant((kind == ColumnKind::Number ? Qt::AlignRight : Qt::AlignLeft) |
                    Qt::AlignVCenter);
}

/// In a column of numbers a dash stands for none, and so does an empty text anywhere.
QVariant sortValue(const Cell& cell, const ColumnHead& head) {
    if (cell.sortValue)
        return *cell.sortValue;
    if (cell.number)
        return cell.text.isEmpty() ? QVariant() : QVariant(*cell.number);
    if (cell.isTicked && cell.text.isEmpty())
        return *cell.isTicked ? 1.0 : 0.0;
    return cell.text.isEmpty() || head.kind == ColumnKind::Number ? QVariant()
                                                                  : QVariant(cell.text);
}

QVariant copied(const Cell& cell) {
    if (cell.number && !cell.text.isEmpty())
        return *cell.number;
    if (cell.text == QStringLiteral("–"))
        return QString(); // stands for none, and is none in a spreadsheet
    if (cell.isTicked && cell.text.isEmpty())
        return *cell.isTicked ? RowModel::tr("yes") : QString();
    return cell.typed.value_or(cell.text);
}

/// Between two rows that stayed: as many rows as before are the same ones, changed.
void pairBetween(std::vector<int>& movedTo, int fromBefore, int toBefore, int fromNow, int toNow) {
    if (toBefore - fromBefore != toNow - fromNow)
        return;
    for (int was = fromBefore; was < toBefore; ++was)
        movedTo[static_cast<std::size_t>(was)] = fromNow + was - fromBefore;
}

} // namespace

std::vector<int> followedRows(int before, int now,
                              const std::function<bool(int was, int is)>& isSame) {
    std::vector<int> movedTo(static_cast<std::size_t>(before), -1);
    const int common = std::min(before, now);
    int front = 0; // rows that stayed at the front, and at the end
    while (front < common && isSame(front, front))
        ++front;
    int behind = 0;
    while (behind < common - front && isSame(before - 1 - behind, now - 1 - behind))
        ++behind;
    std::iota(movedTo.begin(), movedTo.begin() + front, 0);
    int last = front; // behind the last row from before that stayed
    int next = front; // behind its place
    for (int was = front; was < before - behind; ++was) {
        int is = next;
        while (is < now - behind && !isSame(was, is))
            ++is;
        if (is == now - behind)
            continue;
        pairBetween(movedTo, last, was, next, is);
        movedTo[static_cast<std::size_t>(was)] = is;
        last = was + 1;
        next = is + 1;
    }
    pairBetween(movedTo, last, before - behind, next, now - behind);
    for (int i = 1; i <= behind; ++i)
        movedTo[static_cast<std::size_t>(before - i)] = now - i;
    return movedTo;
}

RowModel::RowModel(std::vector<ColumnHead> heads, QObject* parent)
    : QAbstractTableModel(parent), m_heads(std::move(heads)) {}

int RowModel::placeOf(int row) const {
    return row >= 0 && row < rowCount() ? m_places[static_cast<std::size_t>(row)] : -1;
}

int RowModel::rowAt(int place) const {
    const auto found = std::ranges::find(m_places, place);
    return place < 0 || found == m_places.end() ? -1 : static_cast<int>(found - m_places.begin());
}

void RowModel::startWith(int count) {
    m_places.resize(static_cast<std::size_t>(count));
    std::iota(m_places.begin(), m_places.end(), 0);
}

/// The cells show what is now from the first step on, so that each step leaves the views with rows
/// that are there.
void RowModel::follow(std::vector<int> movedTo, int count) {
    {
        const QScopedValueRollback following(m_isFollowing, true);
        m_places = std::move(movedTo);
        takeOut();
        arrange();
        noteChanges(); // before rows come, which a sorted view puts between these
        bringIn(count);
    }
    if (m_rowTitles && count > 0)
        emit headerDataChanged(Qt::Vertical, 0, count - 1);
    emit followed();
}

void RowModel::takeOut() {
    for (int last = rowCount() - 1; last >= 0; --last) {
        if (m_places[static_cast<std::size_t>(last)] >= 0)
            continue;
        int first = last;
        while (first > 0 && m_places[static_cast<std::size_t>(first - 1)] < 0)
            --first;
        beginRemoveRows({}, first, last);
        m_places.erase(m_places.begin() + first, m_places.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

void RowModel::arrange() {
    if (std::ranges::is_sorted(m_places))
        return;
    emit layoutAboutToBeChanged();
    const std::vector<int> before = m_places;
    std::ranges::sort(m_places);
    for (const QModelIndex& from : persistentIndexList())
        changePersistentIndex(
            from, index(rowAt(before[static_cast<std::size_t>(from.row())]), from.column()));
    emit layoutChanged();
}

void RowModel::bringIn(int count) {
    for (int row = 0; row < count; ++row) {
        int last = row - 1;
        const int stayed = row < rowCount() ? m_places[static_cast<std::size_t>(row)] : count;
        while (last + 1 < stayed)
            ++last;
        if (last < row)
            continue;
        beginInsertRows({}, row, last);
        for (int place = row; place <= last; ++place)
            m_places.insert(m_places.begin() + place, place);
        endInsertRows();
        row = last;
    }
}

void RowModel::noteChanges() {
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void RowModel::changeHeads(std::vector<ColumnHead> heads, const std::function<void()>& take) {
    const int before = columnCount();
    const int now = static_cast<int>(heads.size());
    if (now > before)
        beginInsertColumns({}, before, now - 1);
    else if (now < before)
        beginRemoveColumns({}, now, before - 1);
    const bool isOther = heads != m_heads;
    m_heads = std::move(heads);
    take();
    if (now > before)
        endInsertColumns();
    else if (now < before)
        endRemoveColumns();
    noteChanges();
    if (!isOther)
        return;
    if (now > 0)
        emit headerDataChanged(Qt::Horizontal, 0, now - 1);
    emit columnsChanged();
}

void RowModel::refresh() {
    noteChanges();
    if (m_rowTitles && rowCount() > 0)
        emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_places.size());
}

int RowModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_heads.size());
}

Cell RowModel::cellAt(const QModelIndex& index) const {
    const int place = index.isValid() ? placeOf(index.row()) : -1;
    return place < 0 ? Cell() : cell(place, index.column());
}

QVariant RowModel::look(const Cell& cell, int role) const {
    if (role == Qt::ForegroundRole && cell.colour.isValid())
        return cell.colour;
    if (role == Qt::ForegroundRole && cell.look == Cell::Look::Warning)
        return Warning;
    if (role == Qt::ForegroundRole)
        return cell.look == Cell::Look::Quiet ? QVariant(theme::quietText(QApplication::palette()))
                                              : QVariant();
    if (cell.look != Cell::Look::Bold && cell.look != Cell::Look::Italic && !cell.isStruck)
        return {};
    QFont font;
    font.setStrikeOut(cell.isStruck);
    font.setBold(cell.look == Cell::Look::Bold);
    font.setItalic(cell.look == Cell::Look::Italic);
    return font;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || placeOf(index.row()) < 0)
        return {};
    const ColumnHead& head = m_heads[static_cast<std::size_t>(index.column())];
    if (role == Qt::TextAlignmentRole)
        return alignment(head.kind);
    if (role == ProposalsRole)
        return proposals(placeOf(index.row()), index.column());
    const Cell shown = cellAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return shown.text;
    case Qt::EditRole:
        return shown.typed.value_or(shown.text);
    case Qt::ToolTipRole:
        return shown.tip.isEmpty() ? head.tip : shown.tip;
    case Qt::CheckStateRole:
        return shown.isTicked ? QVariant(*shown.isTicked ? Qt::Checked : Qt::Unchecked)
                              : QVariant();
    case Qt::ForegroundRole:
    case Qt::FontRole:
        return look(shown, role);
    case Qt::BackgroundRole:
        return shown.ground.isValid() ? QVariant(shown.ground) : QVariant();
    case Qt::DecorationRole:
        return shown.badge.isNull() ? QVariant() : QVariant(shown.badge);
    case SortRole:
        return sortValue(shown, head);
    case CopyRole:
        return copied(shown);
    default:
        return {};
    }
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole && m_rowTitles ? m_rowTitles(placeOf(section)) : QVariant();
    const ColumnHead& head = m_heads[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return head.unit.isEmpty() ? head.title
                                   : QStringLiteral("%1 (%2)").arg(head.title, head.unit);
    case Qt::ToolTipRole:
        return head.tip.isEmpty() ? QVariant() : QVariant(head.tip);
    case Qt::TextAlignmentRole:
        return alignment(head.kind);
    case Qt::ForegroundRole:
        return head.colour.isValid() ? QVariant(QBrush(head.colour)) : QVariant();
    case ColumnNameRole:
        return columnName(section);
    default:
        return {};
    }
}

/// Columns of one title, as the penalties of several races, are told apart by a number.
QString RowModel::columnName(int section) const {
    const QString title = headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
    int number = 1;
    for (int before = 0; before < section; ++before)
        if (headerData(before, Qt::Horizontal, Qt::DisplayRole).toString() == title)
            ++number;
    const QString name = QString(title).replace('\n', ' ');
    return number == 1 ? name : QStringLiteral("%1 %2").arg(name).arg(number);
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    const ColumnHead& head = m_heads[static_cast<std::size_t>(index.column())];
    if (!head.isTyped && !head.isTicked)
        return flags;
    const Cell shown = cellAt(index);
    if (shown.isLocked)
        return flags;
    flags.setFlag(Qt::ItemIsEditable, head.isTyped);
    flags.setFlag(Qt::ItemIsUserCheckable, head.isTicked && shown.isTicked.has_value());
    return flags;
}

bool RowModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const int place = index.isValid() ? placeOf(index.row()) : -1;
    const bool isTick = role == Qt::CheckStateRole;
    const Qt::ItemFlag needed = isTick ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    if (place < 0 || (!isTick && role != Qt::EditRole) || !flags(index).testFlag(needed))
        return false;
    const QString typed = value.toString();
    const QString before = isTick ? QString() : data(index, Qt::EditRole).toString();
    if (!isTick && (typed == before || typed.trimmed() == before))
        return false;
    try {
        if (isTick)
            tick(place, index.column(), value.toInt() == Qt::Checked);
        else
            take(place, index.column(), typed.trimmed());
        return true;
    } catch (const RefusedEntry& refusal) {
        emit refused(refusal.reason());
        return false;
    }
}

} // namespace kavela::desktop
