#include "desktop/watertests/tests_window.h"

#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/watertests/chart_view.h"
#include "desktop/watertests/entry_table.h"
#include "desktop/watertests/result_columns.h"
#include "desktop/watertests/test_list_panel.h"
#include "desktop/watertests/tests_actions.h"
#include "desktop/watertests/values_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenu>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela::desktop {

namespace {

constexpr double SecondsOfDay = 86400;

/// The beginning of a moment's day: a test that is typed has no time of day.
ReferenceDate dayOf(ReferenceDate date) {
    return {std::floor(date.seconds / SecondsOfDay) * SecondsOfDay};
}

} // namespace

TestsWindow::TestsWindow(Workspace& workspace, Autosave autosave)
    : TestsWindow(workspace, std::make_unique<TestsDocument>(workspace, std::move(autosave))) {}

TestsWindow::TestsWindow(Workspace& workspace, std::unique_ptr<TestsDocument> document)
    : ToolWindow(workspace, document.get(), {"watertests", tr("Tests"), "kvtest"}),
      m_document(std::move(document)) {
    makeParts();
    connectParts();
    QMenu* const fileMenu = makeFileMenu();
    QMenu* const editMenu = makeEditMenu();
    // A cell keeps its editor under a menu, and undoing would overwrite what stands in it.
    connect(editMenu, &QMenu::aboutToShow, this, &TestsWindow::commit);
    makeTestsMenus(*this, *fileMenu, *editMenu);
    finishMenus([this] { return testsCommands(*this); });
}

TestsWindow::~TestsWindow() {
    hide(); // an open cell would else hand its text to what is gone already
    m_document->undoStack().disconnect(this);
    m_document->disconnect(this);
}

void TestsWindow::makeParts() {
    m_list = new TestListPanel(*m_document);
    m_charts = new ChartView;
    m_values = new ValuesPanel(*m_document);
    m_pages = new QTabWidget;
    m_pages->setDocumentMode(true);
    m_pages->tabBar()->setDrawBase(false); // white on dark
    m_pages->addTab(m_charts, tr("Charts"));
    m_pages->addTab(m_values, tr("Values"));
    m_pages->addTab(makeTablePage(), tr("Table"));
    auto* whole = new QSplitter;
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->addWidget(m_list);
    whole->addWidget(m_pages);
    whole->setStretchFactor(1, 1);
    shareSizes(*whole, {410, 830});
    rememberSizes(*whole, workspace(), "watertestsParts");
    setCentralWidget(whole);
}

QWidget* TestsWindow::makeTablePage() {
    m_results = std::make_unique<ColumnModel<TestResultRow, TestId>>(
        resultColumns(), [](const TestResultRow& row) { return row.test->id; });
    m_results->setRowTitles(
        [this](int place) { return kindText(m_results->row(place).test->kind()); });
    m_table = new ColumnTable(*m_results, "table");
    m_table->setShowGrid(true);
    return m_table;
}

void TestsWindow::connectParts() {
    connect(m_list, &TestListPanel::chosen, this, &TestsWindow::showTests);
    connect(m_list, &TestListPanel::listChanged, this, &TestsWindow::showTable);
    connect(m_document.get(), &TestsDocument::changed, this, &TestsWindow::showTests);
    connect(m_table, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        m_list->choose(m_results->key(m_table->placeAt(index)));
        showPage(ChartPage);
    });
}

FileReading TestsWindow::readingOf(const QString& path) {
    return followedBy(m_document->reading(path, this), [this] { m_list->table().setFocus(); });
}

void TestsWindow::startNew(const QString& path) {
    if (QFileInfo(path).isDir())
        m_document->createNew(path, this);
    else
        m_document->startNew(path, this);
    showPage(ValuePage);
    m_list->table().setFocus();
}

void TestsWindow::showPage(Page page) {
    m_pages->setCurrentIndex(page);
}

/// The chosen test, and the ticked ones of its kind laid over it.
void TestsWindow::showTests() {
    const auto current = m_list->current();
    m_values->show(current);
    const ListedTest* const chosen = current ? m_document->find(*current) : nullptr;
    const std::vector<TestId> ticked = m_list->ticked();
    TestList shown;
    int others = 0;
    for (const auto& test : m_document->value()) {
        const bool isTicked = std::ranges::count(ticked, test->id) > 0;
        if (chosen && test->kind() != chosen->kind())
            others += isTicked ? 1 : 0;
        else if (isTicked || test.get() == chosen)
            shown.push_back(test);
    }
    std::ranges::stable_sort(shown, {}, [](const auto& test) { return test->date(); });
    QString note;
    if (others > 0)
        note = others == 1
                   ? tr("One ticked test is of another kind and left out here.")
                   : tr("%1 ticked tests are of another kind and left out here.").arg(others);
    m_charts->showTests(shown, note);
}

void TestsWindow::showTable() {
    TestList listed;
    for (const TestId id : m_list->listed())
        for (const auto& test : m_document->value())
            if (test->id == id)
                listed.push_back(test);
    m_results->show(resultRows(listed));
}

void TestsWindow::tell(const QString& title, const QString& text) {
    workspace().showAlert({title.toStdString(), text.toStdString()}, this);
}

std::string TestsWindow::chosenAthlete() const {
    const auto current = m_list->current();
    const ListedTest* const test = current ? m_document->find(*current) : nullptr;
    return test ? test->athlete().toStdString() : std::string();
}

QString TestsWindow::ownFolder() const {
    return QFileInfo(m_document->path()).path();
}

void TestsWindow::addAndChoose(const QString& what, std::vector<TestsDocument::Content> tests) {
    if (tests.empty())
        return;
    const std::vector<TestId> added = m_document->add(what, std::move(tests));
    m_list->choose(added.front());
}

void TestsWindow::addTest(TestKind kind) {
    if (!commit())
        return;
    const auto current = m_list->current();
    const ListedTest* const before = current ? m_document->find(*current) : nullptr;
    const std::string location = before ? before->location().toStdString() : std::string();
    const ReferenceDate day = dayOf(workspace().clock()());
    if (kind == TestKind::Eight) {
        onWaterEight eight{day, location, {}};
        eight.run.athlete = chosenAthlete();
        addAndChoose(tr("new eight test"), {eight});
    } else {
        onWaterTest test;
        if (before && before->run() && before->kind() == kind) {
            test = *before->run(); // the same set-up as the test before
            test.test = {};
        }
        test.kind = kind == TestKind::Sprint ? water_test::Sprint : water_test::Lap;
        test.test.athlete = chosenAthlete();
        test.test.location = location;
        test.test.date = day;
        addAndChoose(kind == TestKind::Sprint ? tr("new sprint") : tr("new lap test"), {test});
    }
    showPage(ValuePage);
    m_values->focusAthlete();
}

void TestsWindow::duplicateTest() {
    if (!commit())
        return;
    const auto current = m_list->current();
    if (const ListedTest* const test = current ? m_document->find(*current) : nullptr)
        addAndChoose(tr("copy of a test"), {test->test});
}

void TestsWindow::removeCurrent() {
    if (auto* const table = qobject_cast<EntryTable*>(focusWidget())) {
        table->emptyCurrent();
        return;
    }
    m_document->remove(m_list->selected());
}

void TestsWindow::moveBy(int rows) {
    if (!commit())
        return;
    m_list->move(rows);
}

/// Every test that the list shows, in its order.
void TestsWindow::copyTable() {
    const QAbstractItemModel& shown = *m_table->model();
    QList<int> rows(shown.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    QList<int> columns(shown.columnCount());
    std::iota(columns.begin(), columns.end(), 0);
    QApplication::clipboard()->setText(tableAsText(shown, rows, columns, clipboardTable()));
}

void TestsWindow::exportTable(const QString& path) {
    disk::writeAwaited(*this, path.toStdString(), resultCsv(m_results->rows()),
                       [this](const std::exception_ptr& fault) {
                           if (!fault)
                               return;
                           workspace().log()(messageOf(fault));
                           workspace().showAlert({"Failed to create file", causeOf(fault)}, this);
                       });
}

void TestsWindow::askAndExport() {
    if (!commit())
        return;
    QFileDialog dialog(this, tr("Export the table of tests"), ownFolder(),
                       tr("Semicolon-separated text (*.csv);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("csv");
    dialog.selectFile(QFileInfo(m_document->path()).completeBaseName() + ".csv");
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    exportTable(dialog.selectedFiles().constFirst());
}

} // namespace kavela::desktop
