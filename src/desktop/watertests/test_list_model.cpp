#include "desktop/watertests/test_list_model.h"

#include "desktop/watertests/tests_document.h"

#include <algorithm>

namespace kavela::desktop {

TestListModel::TestListModel(TestsDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_document(document) {
    connect(&m_document, &TestsDocument::changed, this, &TestListModel::reload);
}

/// The views keep their place as long as the same tests are there.
void TestListModel::reload() {
    const auto id = [](const auto& test) { return test->id; };
    if (std::ranges::equal(m_tests, m_document.value(), {}, id, id)) {
        m_tests = m_document.value();
        if (!m_tests.empty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
        return;
    }
    beginResetModel();
    m_tests = m_document.value();
    endResetModel();
}

void TestListModel::setTicked(const std::vector<TestId>& tests, bool isTicked) {
    for (const TestId id : tests) {
        if (isTicked)
            m_ticked.insert(id);
        else
            m_ticked.erase(id);
    }
    if (!m_tests.empty())
        emit dataChanged(index(0, AthleteColumn), index(rowCount() - 1, AthleteColumn),
                         {Qt::CheckStateRole});
    emit ticksChanged();
}

QModelIndex TestListModel::indexOf(TestId id) const {
    const auto test =
        std::ranges::find_if(m_tests, [&](const auto& entry) { return entry->id == id; });
    return test == m_tests.end() ? QModelIndex()
                                 : index(static_cast<int>(test - m_tests.begin()), AthleteColumn);
}

int TestListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_tests.size());
}

int TestListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QVariant TestListModel::data(const QModelIndex& index, int role) const {
    const ListedTest& test = *m_tests[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return QStringList{test.athlete(), test.day(), shortKindText(test.kind()), test.location()}
            .value(index.column());
    case Qt::CheckStateRole:
        if (index.column() == AthleteColumn)
            return isTicked(test.id) ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::ToolTipRole:
        return index.column() == AthleteColumn
                   ? tr("Ticked tests are laid over the chosen one (Space)")
                   : QVariant();
    case IdRole:
        return QVariant::fromValue(test.id);
    case KindRole:
        return static_cast<int>(test.kind());
    case SortRole:
        return index.column() == DateColumn ? QVariant(test.date().seconds)
                                            : data(index, Qt::DisplayRole);
    default:
        return {};
    }
}

QVariant TestListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QStringList{tr("Athlete"), tr("Date"), tr("Test"), tr("Location")}.value(section);
}

Qt::ItemFlags TestListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == AthleteColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

bool TestListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole)
        return false;
    setTicked({index.data(IdRole).value<TestId>()}, value.toInt() == Qt::Checked);
    return true;
}

} // namespace kavela::desktop
