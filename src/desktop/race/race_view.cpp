#include "desktop/race/race_view.h"

#include "desktop/charts/chart_panel.h"
#include "desktop/race/best_panels.h"
#include "desktop/race/frozen_table.h"
#include "desktop/race/kept_selection.h"
#include "desktop/race/motion_panel.h"
#include "desktop/race/race_header.h"
#include "desktop/race/race_reports.h"
#include "desktop/race/run_chooser.h"
#include "desktop/race/run_panel.h"
#include "desktop/race/table_export.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/why/why_popup.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

namespace {

constexpr const char* ColumnsKey = "raceColumns";

QLabel* noteLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

RaceView::RaceView(Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      m_workspace(workspace),
      m_document(workspace),
      m_model(m_document),
      m_header(new RaceHeader(m_document)) {
    makeCentre();
    connect(&m_document, &RaceDocument::tableChanged, this, &RaceView::showTable);
    connect(&m_document, &RaceDocument::changedOnDisk, this, &RaceView::noticeChange);
    connect(m_selection, &KeptSelection::changed, this, &RaceView::showSelection);
}

bool RaceView::open(ReadRace& race) {
    if (!m_document.open(race, this))
        return false;
    showDocument();
    return true;
}

void RaceView::showRace(splittakerdata031 race, const QString& path, const QString& note) {
    m_document.show(std::move(race), path);
    showDocument();
    showNote(note, false);
}

void RaceView::makeCentre() {
    auto* split = new QSplitter;
    split->addWidget(makeWork());
    split->addWidget(makeSide());
    split->setStretchFactor(0, 1);
    shareSizes(*split, {900, 340});
    rememberSizes(*split, m_workspace, "raceSide");

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                               theme::LargeSpacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_header);
    column->addWidget(makeNoteBar());
    column->addWidget(split, 1);
}

QWidget* RaceView::makeWork() {
    m_table = new FrozenTable(SplitTableModel::LeadingColumns, SplitTableModel::ClosingColumns);
    m_table->setObjectName("splitTable");
    m_table->setModel(&m_model);
    m_selection = new KeptSelection(*m_table, m_model, m_document, this);
    connect(m_table, &FrozenTable::columnsMoved, this, &RaceView::rememberColumns);
    for (QHeaderView* header : m_table->headers()) {
        header->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(header, &QWidget::customContextMenuRequested, this, [this, header](QPoint at) {
            QMenu menu;
            fillColumnMenu(menu);
            menu.exec(header->mapToGlobal(at));
        });
    }
    connect(m_table, &QTableView::activated, this, &RaceView::requestMoment);
    for (QTableView* view :
         std::initializer_list<QTableView*>{m_table, m_table->frozenView(), m_table->backView()})
        answerWhy(view, [this](const QModelIndex& index) { return m_model.whyOf(index); });
    m_charts = new ChartPanel;
    connect(m_charts, &ChartPanel::runActivated, this, &RaceView::selectRun);
    connect(m_charts, &ChartPanel::savingFailed, this, [this](const QString&, const QString& why) {
        m_workspace.log()("Failed to create file");
        m_workspace.showAlert({"Failed to create file", why.toStdString()}, this);
    });
    auto* work = new QSplitter(Qt::Vertical);
    work->addWidget(m_table);
    work->addWidget(m_charts);
    work->setStretchFactor(0, 1);
    shareSizes(*work, {420, 280});
    rememberSizes(*work, m_workspace, "raceCharts");
    return work;
}

QWidget* RaceView::makeSide() {
    m_run = new RunPanel(m_document);
    m_ideal = new IdealPanel(m_document);
    m_potential = new PotentialPanel(m_document);
    connect(m_ideal, &IdealPanel::runActivated, this, &RaceView::selectRun);
    connect(m_potential, &PotentialPanel::runActivated, this, &RaceView::selectRun);
    m_motion = new MotionPanel(m_document);
    m_side = new QTabWidget;
    m_side->setDocumentMode(true);
    m_side->tabBar()->setDrawBase(false); // white on dark
    m_side->addTab(m_run, tr("&Run"));
    m_side->addTab(m_ideal, tr("I&deal run"));
    m_side->addTab(m_potential, tr("Pote&ntial"));
    m_side->addTab(m_motion, tr("&Motion"));
    return m_side;
}

QWidget* RaceView::makeNoteBar() {
    m_note = noteLabel();
    m_note->setObjectName("note");
    m_note->setWordWrap(true);
    m_reload = new QPushButton(tr("Open it again"));
    m_reload->setObjectName("reload");
    connect(m_reload, &QPushButton::clicked, this, &RaceView::reload);
    m_noteBar = new QWidget;
    auto* row = new QHBoxLayout(m_noteBar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_note, 1);
    row->addWidget(m_reload);
    m_noteBar->hide();
    return m_noteBar;
}

void RaceView::setCompact(bool isCompact) {
    m_isCompact = isCompact;
    showParts();
}

void RaceView::setEnlarged(bool isEnlarged) {
    const QWidget* focused = QApplication::focusWidget();
    const bool isInCharts = focused != nullptr && m_charts->isAncestorOf(focused);
    if (!isEnlarged)
        m_enlarged = nullptr;
    else if (isInCharts)
        m_enlarged = m_charts;
    else
        m_enlarged = m_table;
    showParts();
    if (m_enlarged == m_table && !m_header->isAncestorOf(focused))
        m_table->setFocus(); // also where the keyboard was in what is hidden now
    emit stateChanged();
}

void RaceView::showParts() {
    m_side->setVisible(!m_isCompact && m_enlarged == nullptr);
    m_table->setVisible(m_enlarged != m_charts);
    m_charts->setVisible(m_enlarged == nullptr ? !m_isCompact : m_enlarged == m_charts);
    m_header->setVisible(m_enlarged != m_charts); // the filter belongs to the table
}

void RaceView::showDocument() {
    m_header->showRace();
    QStringList notes{m_document.upgradeNote(), courseNote()};
    notes.removeAll(QString());
    showNote(notes.join('\n'), false);
    m_table->setFocus();
    emit stateChanged();
}

void RaceView::showNote(const QString& note, bool offersReload) {
    m_note->setText(note);
    m_noteBar->setVisible(!note.isEmpty());
    m_reload->setVisible(offersReload);
}

/// Whom the gaps in the table are to: the reference may be a run that the filter leaves out.
QString RaceView::referenceText() const {
    const TableReference& reference = m_model.reference();
    if (m_model.content() != CellContent::Gap)
        return {};
    switch (reference.kind) {
    case ReferenceKind::Best:
        return tr("gaps to the best");
    case ReferenceKind::Median:
        return tr("gaps to the median");
    case ReferenceKind::Run:
        return tr("gaps to %1").arg(qtText(m_document.table().rows[reference.row].run->name));
    case ReferenceKind::Values:
        return tr("gaps to %1")
            .arg(reference.name.empty() ? tr("the ideal run") : qtText(reference.name));
    }
    return {};
}

/// What a coach would otherwise take for a fault of the table.
QString RaceView::courseNote() const {
    if (m_document.wholeSet().totalsplits <= SectionColumns)
        return {};
    return tr("This course has %1 sections. The colours and the penalties in brackets are those of "
              "the first ten; place, gap and percent are there for all of them.")
        .arg(m_document.wholeSet().totalsplits);
}

void RaceView::showTable() {
    layOutColumns(m_workspace.remembered(ColumnsKey));
    m_charts->setPenaltiesIncluded(m_document.settings().penaltiesIncluded);
    if (m_shownVersion != m_document.shownVersion())
        showRuns();
    m_charts->setForeignReferences(m_document.courseReferences());
    showSelection();
    m_header->showCount(referenceText());
    emit stateChanged();
}

/// What depends on the runs alone stays as it is under other settings of the table, as far as the
/// coach has zoomed a chart.
void RaceView::showRuns() {
    m_shownVersion = m_document.shownVersion();
    const RaceSet& shown = m_document.shownSet();
    m_charts->setRace(shown, shown.alldata.size() < m_document.wholeSet().alldata.size());
    m_ideal->refresh();
    m_potential->refresh();
    m_motion->forget();
}

void RaceView::showSelection() {
    std::vector<std::size_t> runs;
    std::optional<RunAgainst> against;
    for (const int row : m_selection->rows()) {
        if (const auto run = m_model.runOfRow(row))
            runs.push_back(*run);
        else
            against = {m_model.index(row, SplitTableModel::NameColumn).data().toString(),
                       m_model.comparisonOfRow(row)->values};
    }
    m_charts->setSelection(runs);
    m_motion->showRuns(runs);
    if (runs.empty()) {
        m_run->showRun(std::nullopt, std::nullopt);
        return;
    }
    if (runs.size() > 1 && !against) {
        const TableRow& first = m_document.table().rows[runs.front()];
        against = {qtText(first.run->name), countedValues(first)};
        m_run->showRun(runs[1], against);
        return;
    }
    m_run->showRun(runs.front(), against);
}

void RaceView::findName() {
    if (m_enlarged == m_charts)
        setEnlarged(false);
    m_header->findName();
}

void RaceView::clearFilter() {
    m_document.setFilter({});
    m_header->showRace();
    m_table->setFocus();
}

void RaceView::selectRun(std::size_t run) {
    const int row = m_model.rowOfRun(run);
    if (row < 0)
        return;
    m_table->selectRow(row);
    m_side->setCurrentWidget(m_run);
}

void RaceView::setContent(CellContent content) {
    m_model.setContent(content);
    m_table->fitColumns();
    m_header->showCount(referenceText());
    emit stateChanged();
}

void RaceView::setScale(ColourScale scale) {
    m_model.setScale(scale);
    emit stateChanged();
}

void RaceView::setReference(ReferenceKind kind) {
    m_model.setReference(kind);
    m_header->showCount(referenceText());
    emit stateChanged();
}

void RaceView::useSelectionAsReference() {
    if (!m_selection->rows().empty())
        m_model.setReferenceRow(m_model.keyOfRow(m_selection->rows().front()));
    m_header->showCount(referenceText());
    emit stateChanged(); // also where nothing was selected, since the menu has ticked itself
}

void RaceView::compareWithOtherRace() {
    RunChooser chooser(m_workspace, m_document.path(), this);
    if (chooser.exec() == QDialog::Accepted)
        m_document.addComparison(chooser.run(), chooser.race());
}

QList<int> RaceView::allRows() const {
    QList<int> rows(m_model.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

void RaceView::copySelection() {
    QList<int> rows(m_selection->rows().begin(), m_selection->rows().end());
    std::sort(rows.begin(), rows.end());
    QApplication::clipboard()->setText(splitTableAsText(m_model, rows.isEmpty() ? allRows() : rows,
                                                        shownColumns(*m_table), clipboardTable()));
}

void RaceView::saveCsv() {
    const QFileInfo race(m_document.path());
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save the table"), race.path() + '/' + race.completeBaseName() + ".csv",
        tr("Semicolon-separated text (*.csv)"));
    if (path.isEmpty())
        return;
    disk::writeAwaited(
        *this, path.toStdString(),
        splitTableAsText(m_model, allRows(), shownColumns(*m_table), fileTable()).toStdString(),
        [this](const std::exception_ptr& fault) {
            if (!fault)
                return;
            m_workspace.log()("Failed to create file");
            m_workspace.showAlert({"Failed to create file", causeOf(fault)}, this);
        });
}

void RaceView::previewReports() {
    const PreviewFailures failures{m_workspace.log(), [this](const Alert& alert, QWidget* over) {
                                       m_workspace.showAlert(alert, over);
                                   }};
    // The run that the sheet is of: the topmost of the selected ones.
    std::vector<int> rows = m_selection->rows();
    std::ranges::sort(rows);
    std::optional<std::size_t> run;
    for (const int row : rows)
        if (!run)
            run = m_model.runOfRow(row);
    auto* preview = new ReportPreview(raceReports(m_document, m_model, shownColumns(*m_table), run),
                                      failures, this);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

/// A double click on a time, or Enter on it.
void RaceView::requestMoment(const QModelIndex& index) {
    const auto shown = m_model.runOfRow(index.row());
    const int section = index.column() - SplitTableModel::LeadingColumns;
    if (!shown || section < 0 || section >= m_document.wholeSet().totalsplits)
        return;
    const analyzerdata& run = m_document.shownSet().alldata[*shown];
    emit momentRequested(static_cast<int>(run.athleteInt), static_cast<std::size_t>(section) + 1);
}

std::optional<std::size_t> RaceView::currentRun() const {
    const QModelIndex current = m_table->currentIndex();
    const auto shown = current.isValid() ? m_model.runOfRow(current.row()) : std::nullopt;
    return shown ? std::optional(
                       static_cast<std::size_t>(m_document.shownSet().alldata[*shown].athleteInt))
                 : std::nullopt;
}

std::vector<std::size_t> RaceView::selectedRuns() const {
    std::vector<std::size_t> runs;
    for (const int row : m_selection->rows())
        if (const auto shown = m_model.runOfRow(row))
            runs.push_back(
                static_cast<std::size_t>(m_document.shownSet().alldata[*shown].athleteInt));
    return runs;
}

void RaceView::noticeChange() {
    if (QFileInfo::exists(m_document.path()))
        showNote(tr("The file on the disk is newer than what you see."), true);
    else
        showNote(tr("The file is not on the disk any more. What you see is what it held."), false);
}

void RaceView::reload() {
    m_document.reload(this, [this] { showDocument(); });
}

void RaceView::fillColumnMenu(QMenu& menu) {
    for (int column = SplitTableModel::NameColumn + 1; column < m_model.columnCount(); ++column) {
        QAction* action =
            menu.addAction(m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        action->setCheckable(true);
        action->setChecked(!m_table->isColumnHidden(column));
        connect(action, &QAction::toggled, this, [this, column](bool isShown) {
            m_table->setColumnShown(column, isShown);
            rememberColumns();
        });
    }
    menu.addSeparator();
    menu.addAction(tr("All columns in the order of the course"), this, &RaceView::resetColumns);
}

void RaceView::rememberColumns() {
    m_workspace.remember(ColumnsKey, columnLayout(*m_table));
}

void RaceView::resetColumns() {
    m_workspace.remember(ColumnsKey, {});
    layOutColumns({});
}

/// The leading columns stay in view, so they keep their places.
void RaceView::layOutColumns(const QStringList& layout) {
    applyColumnLayout(*m_table, layout, SplitTableModel::LeadingColumns);
    m_table->arrange();
}

} // namespace kavela::desktop
