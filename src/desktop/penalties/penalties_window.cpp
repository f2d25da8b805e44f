#include "desktop/penalties/penalties_window.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/series_chart.h"
#include "desktop/facts/facts_status.h"
#include "desktop/penalties/cost_panel.h"
#include "desktop/penalties/course_panel.h"
#include "desktop/penalties/details_panel.h"
#include "desktop/penalties/figure_cells.h"
#include "desktop/penalties/penalties_actions.h"
#include "desktop/penalties/penalty_filter.h"
#include "desktop/penalties/rates_panel.h"
#include "desktop/penalties/trade_off_panel.h"
#include "desktop/shell/empty_page.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/why/why_popup.h"
#include "performance/penalty_rules.h"
#include "performance/penalty_words.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

bool isSplitFileOrFolder(const QString& path) {
    const QFileInfo file(path);
    return file.isDir() || file.suffix().compare("kvx", Qt::CaseInsensitive) == 0;
}

} // namespace

PenaltiesWindow::PenaltiesWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"penalties", tr("Penalties"), "kvx"}) {
    makeParts();
    m_actions = new PenaltiesActions(*this);
    connectParts();
    showTitle();
    showStatus();
}

PenaltiesWindow::~PenaltiesWindow() {
    m_facts.disconnect(this);
    m_filter->disconnect(this);
    m_rates->disconnect(this);
    m_tabs->disconnect(this);
}

void PenaltiesWindow::makeParts() {
    m_pages = new QStackedWidget;
    m_empty = new EmptyPage(tr("Drop split files (.kvx) or a folder of them here"), {},
                            {{tr("Open split files…"), [this] { chooseFiles(); }},
                             {tr("Open a folder…"), [this] { chooseFolder(); }}});
    m_pages->addWidget(m_empty);
    m_pages->addWidget(makeContent());
    setCentralWidget(m_pages);
    m_status = new FactsStatus(m_facts);
    statusBar()->addWidget(m_status);
}

QWidget* PenaltiesWindow::makeContent() {
    m_filter = new PenaltyFilter;
    m_clean = new QLabel;
    m_clean->setObjectName("clean");
    m_clean->setContentsMargins(theme::Spacing, 0, theme::Spacing, 0);
    m_clean->setFocusPolicy(Qt::TabFocus); // the keyboard asks it why
    m_course = new CoursePanel;
    m_rates = new RatesPanel(workspace());
    m_details = new DetailsPanel(workspace());
    m_costs = new CostPanel;
    m_tradeOff = new TradeOffPanel;
    m_tabs = new QTabWidget;
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(m_course, tr("Course"));
    m_tabs->addTab(m_rates, tr("Rates"));
    m_tabs->addTab(m_details, tr("Details"));
    m_tabs->addTab(m_costs, tr("Cost in places"));
    m_tabs->addTab(m_tradeOff, tr("Risk and speed"));
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_filter);
    column->addWidget(m_clean);
    column->addWidget(m_tabs, 1);
    return page;
}

void PenaltiesWindow::connectParts() {
    connect(&m_facts, &WatchedFacts::changed, this, &PenaltiesWindow::takeFacts);
    connect(&m_facts, &WatchedFacts::readingChanged, this, &PenaltiesWindow::showStatus);
    connect(m_filter, &PenaltyFilter::changed, this, &PenaltiesWindow::compute);
    connect(m_rates, &RatesPanel::byChanged, this, &PenaltiesWindow::compute);
    connect(m_costs, &CostPanel::placeRequested, this, &PenaltiesWindow::placeRequested);
    connect(m_course, &CoursePanel::gateActivated, this, [this](std::uint32_t file, qint64 gate) {
        m_costs->showGate(file, gate);
        showPage(Costs);
    });
    for (ChartFrame* const chart :
         {static_cast<ChartFrame*>(&m_course->chart()), static_cast<ChartFrame*>(&m_rates->chart()),
          static_cast<ChartFrame*>(&m_details->chart()),
          static_cast<ChartFrame*>(&m_tradeOff->chart())})
        connect(&chart->interaction(), &PlotInteraction::saved, this, [this](const QString& path) {
            m_status->tell(tr("Saved %1").arg(QFileInfo(path).fileName()));
        });
    answerWhy(m_clean,
              [this](const QPoint&) { return m_figures ? m_figures->why("clean") : std::nullopt; });
}

void PenaltiesWindow::setPaths(const QStringList& paths) {
    m_facts.setPaths(paths);
    showTitle();
    showStatus();
    emit pathsChanged();
}

bool PenaltiesWindow::open(const QString& path) {
    setPaths({path});
    return true;
}

QStringList PenaltiesWindow::paths() const {
    return m_facts.paths();
}

void PenaltiesWindow::takeFiles(const QStringList& paths) {
    QStringList shown = m_facts.paths();
    QStringList others;
    for (const QString& path : paths)
        (isSplitFileOrFolder(path) ? shown : others).append(path);
    shown.removeDuplicates();
    if (shown != m_facts.paths())
        setPaths(shown);
    if (!others.isEmpty())
        emit openRequested(others);
}

void PenaltiesWindow::chooseFiles() {
    const QString folder = QFileInfo(paths().value(0)).path();
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open split files"), folder, tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        setPaths(files);
}

void PenaltiesWindow::chooseFolder() {
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Open a folder"), paths().value(0));
    if (!folder.isEmpty())
        setPaths({folder});
}

void PenaltiesWindow::showPage(Page page) {
    m_tabs->setCurrentIndex(page);
    if (ChartFrame* const front = chart())
        front->setFocus();
    else
        m_costs->table().setFocus();
}

PenaltiesWindow::Page PenaltiesWindow::page() const {
    return static_cast<Page>(m_tabs->currentIndex());
}

ChartFrame* PenaltiesWindow::chart() const {
    switch (page()) {
    case Course:
        return &m_course->chart();
    case Rates:
        return &m_rates->chart();
    case Details:
        return &m_details->chart();
    case RiskAndSpeed:
        return &m_tradeOff->chart();
    default:
        return nullptr;
    }
}

void PenaltiesWindow::saveChart() {
    if (ChartFrame* const front = chart(); front && front->emptyMessage().isEmpty())
        front->interaction().askAndSave();
}

ColumnTable* PenaltiesWindow::table() const {
    switch (page()) {
    case Rates:
        return &m_rates->table();
    case Details:
        return &m_details->table();
    case Costs:
        return &m_costs->table();
    case RiskAndSpeed:
        return &m_tradeOff->table();
    case Course:
        break;
    }
    return nullptr;
}

void PenaltiesWindow::saveTable() {
    if (ColumnTable* const front = table())
        front->saveCsv();
}

bool PenaltiesWindow::isBusy() const {
    return m_facts.isReading() || m_isComputing;
}

QString PenaltiesWindow::status() const {
    return m_status->text();
}

/// The choice may say something else now: a crew may be gone.
void PenaltiesWindow::takeFacts() {
    {
        const QSignalBlocker quiet(m_filter);
        m_filter->offer(*m_facts.facts());
    }
    compute();
}

/// Only the latest question is answered.
void PenaltiesWindow::compute() {
    const int asked = ++m_asked;
    m_isComputing = true;
    m_work.run(
        [facts = m_facts.facts(), question = PenaltyQuestion{m_rates->by(), m_filter->choice()}] {
            return penaltyFigures(facts, question);
        },
        [this, asked](const SharedFigures& figures) {
            if (asked == m_asked)
                take(figures);
        });
}

void PenaltiesWindow::take(const SharedFigures& figures) {
    m_isComputing = false;
    m_figures = figures;
    m_clean->setText(shownWords(cleanWords(figures->rates)));
    m_course->show(figures);
    m_rates->show(figures);
    m_details->show(figures);
    m_costs->show(figures);
    m_tradeOff->show(figures);
    showStatus();
    emit shown();
}

void PenaltiesWindow::showStatus() {
    const std::size_t files = m_figures ? m_figures->facts->files().size() : 0;
    m_pages->setCurrentIndex(files > 0 ? 1 : 0);
    if (paths().isEmpty())
        m_empty->tell(tr("Which gates are touched and missed, by whom, and what it cost: of "
                         "one race, of several, or of a whole season. Files are only read."));
    else if (m_facts.isReading())
        m_empty->tell(tr("Reading…"));
    else if (!m_facts.failed().empty())
        m_empty->tell(qtText(m_facts.failed().front().path.string()) + ": " +
                      qtText(m_facts.failed().front().reason));
    else
        m_empty->tell(tr("There is no split file (.kvx) here."));
    QStringList parts;
    if (files > 0) {
        const PenaltyRates& rates = m_figures->rates;
        parts << (files == 1 ? tr("1 file") : tr("%n files", nullptr, static_cast<int>(files)))
              << (rates.runs == 1 ? tr("1 run")
                                  : tr("%n runs", nullptr, static_cast<int>(rates.runs)));
        if (rates.leftOut > 0)
            parts << shownWords(leftOutText(rates.leftOut));
    }
    m_status->show(parts);
    m_actions->refresh();
}

void PenaltiesWindow::showFailed() {
    m_status->showFailed();
}

void PenaltiesWindow::showTitle() {
    const QStringList shown = paths();
    QString name = tr("Penalties");
    if (!shown.isEmpty()) {
        const QString first = QFileInfo(shown.front()).completeBaseName();
        name = (shown.size() > 1 ? tr("%1 and %2 more").arg(first).arg(shown.size() - 1) : first) +
               QStringLiteral(" – ") + name;
    }
    setWindowTitle(name + QStringLiteral(" – Kavela"));
}

} // namespace kavela::desktop
