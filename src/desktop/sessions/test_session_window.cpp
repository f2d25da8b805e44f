#include "desktop/sessions/test_session_window.h"

#include "boatmotion/session_files.h"
#include "boatmotion/test_attempts.h"
#include "common/error.h"
#include "common/json_encode.h"
#include "common/text.h"
#include "desktop/charts/series_chart.h"
#include "desktop/sessions/grid_model.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int TimeColumn = 0;
enum class Data { Kind, All, Sprint };

/// The columns of a grid as series over the time; heart rates on the right.
ChartContent contentOf(const SessionGrid& grid, const QString& title) {
    ChartContent content;
    content.title = title;
    content.xTitle = TestSessionWindow::tr("Time (s)");
    content.yTitle = TestSessionWindow::tr("Value");
    content.emptyText = TestSessionWindow::tr("There are no values in this attempt.");
    for (std::size_t column = 0; column < grid.columns.size(); ++column) {
        ChartSeries series;
        series.name = qtText(translated(grid.columns[column].title));
        series.onRight = grid.columns[column].title == "Heart rate";
        series.slot = column;
        for (const SessionGrid::Row& row : grid.rows)
            if (const double* const value = std::get_if<double>(&row.cells[column]))
                series.points.emplace_back(row.moment, *value);
        if (column == TimeColumn || series.points.empty())
            continue;
        if (series.onRight)
            content.rightTitle = TestSessionWindow::tr("Heart rate (1/min)");
        content.series.push_back(std::move(series));
    }
    return content;
}

} // namespace

void TestSessionFile::show(varoTestAlldata session, const QString& path, QWidget* over) {
    start(std::move(session), path, over);
}

TestSessionFile::Content TestSessionFile::contentNow() const {
    return [session = shared()] { return encode(*session); };
}

bool TestSessionFile::recover(const std::string& /*content*/) {
    return false; // there is no work to be kept
}

TestSessionWindow::TestSessionWindow(Workspace& workspace, Autosave autosave)
    : TestSessionWindow(workspace,
                        std::make_unique<TestSessionFile>(workspace, std::move(autosave))) {}

TestSessionWindow::TestSessionWindow(Workspace& workspace, std::unique_ptr<TestSessionFile> file)
    : ToolWindow(workspace, file.get(), {"testsession", tr("Test session"), "*"}),
      m_session(std::move(file)) {
    makeParts();
    makeMenus();
    connect(m_session.get(), &TestSessionFile::changed, this, &TestSessionWindow::showSession);
}

TestSessionWindow::~TestSessionWindow() {
    m_session->undoStack().disconnect(this);
    m_session->disconnect(this);
}

void TestSessionWindow::makeParts() {
    m_title = new QLabel;
    m_title->setFont(theme::titleFont(*this));
    m_title->setTextFormat(Qt::PlainText);
    m_attempts = new QListWidget;
    m_attempts->setObjectName("attempts");
    m_kinds = new QComboBox;
    m_kinds->setObjectName("kinds");
    m_chart = new SeriesChart;
    m_model = new GridModel(this);
    m_view = new ColumnTable(*m_model, "");
    auto* kinds = new QHBoxLayout;
    auto* label = new QLabel(tr("Values"));
    label->setBuddy(m_kinds);
    kinds->addWidget(label);
    kinds->addWidget(m_kinds);
    kinds->addStretch();
    auto* chartAndTable = new QSplitter(Qt::Vertical);
    chartAndTable->addWidget(m_chart);
    chartAndTable->addWidget(m_view);
    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(kinds);
    column->addWidget(chartAndTable, 1);
    auto* parts = new QSplitter;
    parts->addWidget(m_attempts);
    parts->addWidget(right);
    parts->setStretchFactor(1, 1);
    shareSizes(*parts, {220, 1020});
    rememberSizes(*parts, workspace(), "testsessionParts");
    auto* central = new QWidget;
    auto* whole = new QVBoxLayout(central);
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->addWidget(m_title);
    whole->addWidget(parts, 1);
    setCentralWidget(central);
    connect(m_attempts, &QListWidget::currentRowChanged, this, &TestSessionWindow::showKinds);
    connect(m_kinds, &QComboBox::currentIndexChanged, this, &TestSessionWindow::showData);
    connect(m_view, &ColumnTable::chosen, this, [this] {
        if (const int place = m_view->currentPlace(); place >= 0)
            m_chart->showCursorAt(m_model->key(place));
    });
    connect(m_chart, &SeriesChart::pointActivated, this, [this](int series, int index) {
        const double time =
            m_chart->content().series[static_cast<std::size_t>(series)].points[index].x();
        m_view->choose(m_model->placeAtMoment(time));
    });
}

/// Nothing is saved here: the file is as it was.
void TestSessionWindow::makeMenus() {
    QMenu* const file = makeFileMenu();
    for (QAction* const action : file->actions())
        if (action->shortcut() == QKeySequence(QKeySequence::Save) ||
            action->shortcut() == QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S))
            file->removeAction(action);
    file->addAction(tr("&Export the table…"), QKeySequence(Qt::CTRL | Qt::Key_E), this,
                    &TestSessionWindow::askAndExport);
    finishMenus([] { return Commands(); });
}

bool TestSessionWindow::open(const QString& path) {
    std::string reason;
    try {
        m_session->show(readTestSession(path.toStdString()), path, this);
        return true;
    } catch (const FileError& error) {
        reason = error.reason();
    } catch (const DecodeError& error) {
        reason = error.what();
    }
    workspace().log()(path.toStdString() + ": " + reason);
    workspace().showAlert(
        {tr("“%1” cannot be opened").arg(QFileInfo(path).fileName()).toStdString(), reason}, this);
    return false;
}

const differentGTdata* TestSessionWindow::attempt() const {
    const int place = m_attempts->currentRow();
    return place < 0 ? nullptr : &m_session->value().test[static_cast<std::size_t>(place)];
}

void TestSessionWindow::chooseAttempt(int place) {
    m_attempts->setCurrentRow(place);
}

void TestSessionWindow::showSession() {
    const varoTestAlldata& session = m_session->value();
    QStringList title;
    for (const std::string& part :
         {session.info.name, session.info.testkind, dayText(session.info.date)})
        if (!part.empty())
            title.append(QString::fromStdString(part));
    m_title->setText(title.join(" · "));
    m_attempts->clear();
    for (const differentGTdata& attempt : session.test)
        m_attempts->addItem(tr("Attempt %1\n%2 stroke values, %3 of the sprint")
                                .arg(attempt.attempt)
                                .arg(attempt.boatdata.size())
                                .arg(attempt.sprintdata.size()));
    m_attempts->setCurrentRow(session.test.empty() ? -1 : 0);
    showKinds();
}

void TestSessionWindow::showKinds() {
    const QString before = m_kinds->currentText();
    {
        const QSignalBlocker blocker(m_kinds);
        m_kinds->clear();
        if (const differentGTdata* const chosen = attempt()) {
            for (const std::string& kind : kindsIn(*chosen))
                m_kinds->addItem(QString::fromStdString(kind), static_cast<int>(Data::Kind));
            if (m_kinds->count() > 1)
                m_kinds->addItem(tr("All kinds"), static_cast<int>(Data::All));
            if (!chosen->sprintdata.empty())
                m_kinds->addItem(tr("Sprint data"), static_cast<int>(Data::Sprint));
        }
        m_kinds->setCurrentIndex(std::max(m_kinds->findText(before), 0));
    }
    showData();
}

void TestSessionWindow::showData() {
    SessionGrid grid;
    if (const differentGTdata* const chosen = attempt(); chosen && m_kinds->currentIndex() >= 0) {
        const auto shown = static_cast<Data>(m_kinds->currentData().toInt());
        if (shown == Data::Sprint)
            grid = sprintDataGrid(*chosen);
        else
            grid = strokeDataGrid(
                *chosen, shown == Data::All ? std::string() : m_kinds->currentText().toStdString());
    }
    m_chart->show(contentOf(grid, m_kinds->currentText()));
    m_model->show(std::move(grid));
}

void TestSessionWindow::askAndExport() {
    const QFileInfo file(m_session->path());
    QFileDialog dialog(this, tr("Export the table"), file.path(),
                       tr("Semicolon-separated text (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("csv");
    dialog.selectFile(file.completeBaseName() + ".csv");
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    disk::writeAwaited(*this, dialog.selectedFiles().constFirst().toStdString(),
                       csvOf(m_model->grid()), [this](const std::exception_ptr& fault) {
                           if (!fault)
                               return;
                           workspace().log()(messageOf(fault));
                           workspace().showAlert({"Failed to create file", causeOf(fault)}, this);
                       });
}

} // namespace kavela::desktop
