#include "desktop/watertests/test_list_panel.h"

#include "common/folded_text.h"
#include "desktop/shell/choose_alone.h"
#include "desktop/shell/theme.h"
#include "desktop/watertests/tests_document.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

/// Tests of one athlete and one kind; an empty name and -1 stand for all.
class TestFilter : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void set(const QString& athlete, int kind) {
        m_athlete = athlete;
        m_kind = kind;
        m_kept.reset();
        invalidateFilter();
    }

    /// A test that is being typed stays listed, also when it no longer fits.
    void keep(TestId id) { m_kept = id; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        const QModelIndex index = sourceModel()->index(row, TestListModel::AthleteColumn, parent);
        if (m_kept && index.data(TestListModel::IdRole).value<TestId>() == *m_kept)
            return true;
        return (m_athlete.isEmpty() || index.data().toString() == m_athlete) &&
               (m_kind < 0 || index.data(TestListModel::KindRole).toInt() == m_kind);
    }

    bool lessThan(const QModelIndex& a, const QModelIndex& b) const override {
        const QVariant first = a.data(TestListModel::SortRole);
        const QVariant second = b.data(TestListModel::SortRole);
        if (a.column() == TestListModel::DateColumn)
            return first.toDouble() < second.toDouble();
        return isNaturallyBefore(first.toString().toStdString(), second.toString().toStdString());
    }

private:
    QString m_athlete;
    int m_kind = -1;
    std::optional<TestId> m_kept;
};

TestListPanel::TestListPanel(TestsDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_model(document),
      m_shown(new TestFilter(this)),
      m_athlete(new QComboBox),
      m_kind(new QComboBox),
      m_table(new QTableView) {
    m_athlete->setObjectName("athleteFilter");
    m_kind->setObjectName("kindFilter");
    m_kind->addItem(tr("All tests"), -1);
    for (const TestKind kind : {TestKind::Lap, TestKind::Sprint, TestKind::Eight})
        m_kind->addItem(kindText(kind), static_cast<int>(kind));
    fillAthletes();
    makeTable();
    auto* filters = new QHBoxLayout;
    filters->addWidget(m_athlete, 3);
    filters->addWidget(m_kind, 2);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, theme::Spacing, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(filters);
    column->addWidget(m_table, 1);
    connect(m_athlete, &QComboBox::currentIndexChanged, this, &TestListPanel::filter);
    connect(m_kind, &QComboBox::currentIndexChanged, this, &TestListPanel::filter);
    connect(&m_document, &TestsDocument::changed, this, &TestListPanel::fillAthletes);
    connect(&m_model, &TestListModel::ticksChanged, this, &TestListPanel::chosen);
}

void TestListPanel::makeTable() {
    m_shown->setSourceModel(&m_model);
    m_table->setObjectName("tests");
    m_table->setModel(m_shown);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(TestListModel::DateColumn, Qt::DescendingOrder);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    QHeaderView* header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setMinimumWidth(330); // that names are read in the list
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(TestListModel::AthleteColumn, QHeaderView::Stretch);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& index) {
                if (!index.isValid())
                    return;
                m_chosen = idAt(index);
                m_shown->keep(*m_chosen);
                emit chosen();
            });
    connect(m_shown, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { m_place = std::max(m_table->currentIndex().row(), 0); });
    connect(m_shown, &QAbstractItemModel::modelReset, this, &TestListPanel::keepOneChosen);
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_shown, change, this, &TestListPanel::listChanged);
    connect(m_shown, &QAbstractItemModel::layoutChanged, this, &TestListPanel::listChanged);
    connect(m_shown, &QAbstractItemModel::dataChanged, this, &TestListPanel::listChanged);
}

TestId TestListPanel::idAt(const QModelIndex& index) const {
    return index.data(TestListModel::IdRole).value<TestId>();
}

void TestListPanel::fillAthletes() {
    QStringList names{tr("All athletes")};
    names += m_document.athletes();
    QStringList present;
    for (int i = 0; i < m_athlete->count(); ++i)
        present.append(m_athlete->itemText(i));
    if (names == present)
        return;
    const QString chosenName = m_athlete->currentIndex() > 0 ? m_athlete->currentText() : QString();
    {
        const QSignalBlocker quiet(m_athlete);
        m_athlete->clear();
        m_athlete->addItems(names);
        m_athlete->setCurrentIndex(
            chosenName.isEmpty() ? 0 : std::max(m_athlete->findText(chosenName), 0));
    }
    if (!chosenName.isEmpty() && m_athlete->currentIndex() == 0)
        filter();
}

void TestListPanel::filter() {
    m_place = 0;
    m_shown->set(m_athlete->currentIndex() > 0 ? m_athlete->currentText() : QString(),
                 m_kind->currentData().toInt());
    keepOneChosen();
}

/// The test chosen before where it is still listed, or else the one in its place.
void TestListPanel::keepOneChosen() {
    QModelIndex index =
        m_chosen ? m_shown->mapFromSource(m_model.indexOf(*m_chosen)) : QModelIndex();
    if (!index.isValid() && m_shown->rowCount() > 0)
        index = m_shown->index(std::min(m_place, m_shown->rowCount() - 1),
                               TestListModel::AthleteColumn);
    if (m_table->selectionModel())
        chooseAlone(*m_table, index);
    m_chosen = index.isValid() ? std::optional(idAt(index)) : std::nullopt;
    emit chosen();
    emit listChanged();
}

std::optional<TestId> TestListPanel::current() const {
    return m_chosen;
}

void TestListPanel::choose(TestId id) {
    const QModelIndex index = m_model.indexOf(id);
    if (!m_shown->mapFromSource(index).isValid()) {
        m_athlete->setCurrentIndex(0);
        m_kind->setCurrentIndex(0);
    }
    if (const QModelIndex shown = m_shown->mapFromSource(index); shown.isValid())
        chooseAlone(*m_table, shown);
}

std::vector<TestId> TestListPanel::selected() const {
    std::vector<TestId> ids;
    for (const QModelIndex& index : m_table->selectionModel()->selectedRows())
        ids.push_back(idAt(index));
    return ids;
}

std::vector<TestId> TestListPanel::listed() const {
    std::vector<TestId> ids;
    for (int row = 0; row < m_shown->rowCount(); ++row)
        ids.push_back(idAt(m_shown->index(row, TestListModel::AthleteColumn)));
    return ids;
}

std::vector<TestId> TestListPanel::ticked() const {
    std::vector<TestId> ids;
    for (const auto& test : m_document.value())
        if (m_model.isTicked(test->id))
            ids.push_back(test->id);
    return ids;
}

void TestListPanel::tickAll(bool isTicked) {
    m_model.setTicked(isTicked ? listed() : ticked(), isTicked);
}

void TestListPanel::tickHistory() {
    const ListedTest* const shown = m_chosen ? m_document.find(*m_chosen) : nullptr;
    if (!shown)
        return;
    std::vector<TestId> history;
    std::vector<TestId> others;
    for (const auto& test : m_document.value()) {
        const bool isSame = test->kind() == shown->kind() && test->athlete() == shown->athlete();
        (isSame ? history : others).push_back(test->id);
    }
    m_model.setTicked(others, false);
    m_model.setTicked(history, true);
}

void TestListPanel::move(int rows) {
    const int row =
        std::clamp(m_table->currentIndex().row() + rows, 0, std::max(m_shown->rowCount() - 1, 0));
    chooseAlone(*m_table, m_shown->index(row, TestListModel::AthleteColumn));
}

} // namespace kavela::desktop
