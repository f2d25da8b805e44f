#include "desktop/taking/run_table_model.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/video_names.h"

namespace kavela::desktop {

RunTableModel::RunTableModel(TakingDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_document(document), m_rows(document.runCount()) {
    connect(&m_document, &TakingDocument::changed, this, &RunTableModel::follow);
}

/// Rows come and go at the end: which run a row shows, the views ask anew.
void RunTableModel::follow() {
    const int rows = m_document.runCount();
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    if (m_rows > 0)
        emit dataChanged(index(0, 0), index(m_rows - 1, Columns - 1));
}

int RunTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int RunTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QString RunTableModel::text(int run, int column) const {
    const athletedata031& record = m_document.run(run);
    const sectiondata030& timing = record.sectioninfo;
    switch (column) {
    case NameColumn:
        return qtText(crewText(record.names));
    case CategoryColumn:
        return qtText(record.cat);
    case PhaseColumn:
        return qtText(record.phase);
    default:
        return timing.isfullrun
                   ? shownHundredths(timing.totaltime)
                   : tr("%1/%2").arg(timing.splitnum).arg(m_document.info().totalsplits);
    }
}

QVariant RunTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_document.runCount())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(index.row(), index.column());
    case Qt::ToolTipRole: {
        QStringList films{text(index.row(), NameColumn)};
        for (const std::string& film : m_document.run(index.row()).videoname)
            films.append(qtText(film));
        return films.join('\n');
    }
    case Qt::TextAlignmentRole:
        return QVariant((index.column() < TakenColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant RunTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return QVariant((section < TakenColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    if (orientation == Qt::Vertical || role != Qt::DisplayRole)
        return {};
    static const QStringList titles{tr("Name"), tr("Cat"), tr("Phase"), tr("Total")};
    return titles[section];
}

Qt::ItemFlags RunTableModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() <= PhaseColumn ? flags | Qt::ItemIsEditable : flags;
}

bool RunTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || text(index.row(), index.column()) == value.toString())
        return false;
    const std::string entered = value.toString().trimmed().toStdString();
    m_document.editRun(index.row(), tr("correction"), [&](athletedata031& run) {
        if (index.column() == NameColumn)
            run.names = crewIn(entered);
        else
            (index.column() == CategoryColumn ? run.cat : run.phase) = entered;
    });
    return true;
}

} // namespace kavela::desktop
