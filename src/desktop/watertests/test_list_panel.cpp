#include "desktop/watertests/test_list_panel.h"

#include "desktop/shell/choose_alone.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/watertests/tests_document.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

enum ListColumn { AthleteColumn, DateColumn };

} // namespace

TestListPanel::TestListPanel(TestsDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_model(columns(), [](const Test& test) { return test->id; }),
      m_athlete(new QComboBox),
      m_kind(new QComboBox),
      m_table(new ColumnTable(m_model, "tests")) {
    m_athlete->setObjectName("athleteFilter");
    m_kind->setObjectName("kindFilter");
    m_kind->addItem(tr("All tests"), -1);
    for (const TestKind kind : {TestKind::Lap, TestKind::Sprint, TestKind::Eight})
        m_kind->addItem(kindText(kind), static_cast<int>(kind));
    makeTable();
    fillAthletes();
    filter();
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
    connect(&m_document, &TestsDocument::changed, this, [this] {
        m_model.show(m_document.value());
        fillAthletes();
    });
}

std::vector<Column<TestListPanel::Test, TestId>> TestListPanel::columns() {
    using TestColumn = Column<Test, TestId>;
    TestColumn athlete{.title = tr("Athlete"),
                       .tip = tr("Ticked tests are laid over the chosen one (Space)"),
                       .show = [this](const Test& test) {
                           return Cell{.text = test->athlete(),
                                       .isTicked = m_ticked.contains(test->id)};
                       }};
    athlete.tick = [this](TestId id, const Test&, bool isTicked) { setTicked({id}, isTicked); };
    TestColumn date{.title = tr("Date"), .show = [](const Test& test) {
                        return Cell{.text = test->day(), .sortValue = test->date().seconds};
                    }};
    TestColumn kind{.title = tr("Test"),
                    .show = [](const Test& test) { return Cell{shortKindText(test->kind())}; }};
    TestColumn location{.title = tr("Location"),
                        .show = [](const Test& test) { return Cell{test->location()}; }};
    return {athlete, date, kind, location};
}

void TestListPanel::makeTable() {
    m_table->setAlternatingRowColors(false);
    m_table->sortBy(DateColumn, Qt::DescendingOrder);
    m_table->stretch({AthleteColumn});
    m_table->keepOneChosen();
    setMinimumWidth(grown(*this, 330)); // that names are read in the list
    connect(m_table, &ColumnTable::chosen, this, [this] {
        m_kept = current();
        emit chosen();
    });
    connect(m_table, &ColumnTable::shownChanged, this, &TestListPanel::listChanged);
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

/// Tests of one athlete and one kind. A test that is being typed stays listed.
void TestListPanel::filter() {
    m_kept.reset();
    const QString athlete = m_athlete->currentIndex() > 0 ? m_athlete->currentText() : QString();
    const int kind = m_kind->currentData().toInt();
    m_table->setFilter([this, athlete, kind](int place) {
        const ListedTest& test = *m_model.row(place);
        return test.id == m_kept || ((athlete.isEmpty() || test.athlete() == athlete) &&
                                     (kind < 0 || static_cast<int>(test.kind()) == kind));
    });
}

std::optional<TestId> TestListPanel::current() const {
    const int place = m_table->currentPlace();
    return place < 0 ? std::nullopt : std::optional(m_model.key(place));
}

void TestListPanel::choose(TestId id) {
    const int place = m_model.placeOfKey(id);
    if (!m_table->cellAt(place, AthleteColumn).isValid()) {
        m_athlete->setCurrentIndex(0);
        m_kind->setCurrentIndex(0);
    }
    if (m_table->cellAt(place, AthleteColumn).isValid())
        m_table->choose(place, AthleteColumn);
}

std::vector<TestId> TestListPanel::idsOf(const std::vector<int>& places) const {
    std::vector<TestId> ids;
    for (const int place : places)
        ids.push_back(m_model.key(place));
    return ids;
}

std::vector<TestId> TestListPanel::selected() const {
    return idsOf(m_table->selectedPlaces());
}

std::vector<TestId> TestListPanel::listed() const {
    return idsOf(m_table->shownPlaces());
}

std::vector<TestId> TestListPanel::ticked() const {
    std::vector<TestId> ids;
    for (const auto& test : m_document.value())
        if (m_ticked.contains(test->id))
            ids.push_back(test->id);
    return ids;
}

void TestListPanel::setTicked(const std::vector<TestId>& tests, bool isTicked) {
    for (const TestId id : tests) {
        if (isTicked)
            m_ticked.insert(id);
        else
            m_ticked.erase(id);
    }
    m_model.refresh();
    emit chosen();
}

void TestListPanel::tickAll(bool isTicked) {
    setTicked(isTicked ? listed() : ticked(), isTicked);
}

void TestListPanel::tickHistory() {
    const auto id = current();
    const ListedTest* const shown = id ? m_document.find(*id) : nullptr;
    if (!shown)
        return;
    std::vector<TestId> history;
    m_ticked.clear();
    for (const auto& test : m_document.value())
        if (test->kind() == shown->kind() && test->athlete() == shown->athlete())
            history.push_back(test->id);
    setTicked(history, true);
}

void TestListPanel::move(int rows) {
    const int last = m_table->model()->rowCount() - 1;
    const int row = std::clamp(m_table->currentIndex().row() + rows, 0, std::max(last, 0));
    chooseAlone(*m_table, m_table->model()->index(row, AthleteColumn));
}

} // namespace kavela::desktop
