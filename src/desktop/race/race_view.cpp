#include "desktop/race/race_view.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/charts/chart_panel.h"
#include "desktop/race/best_panels.h"
#include "desktop/race/column_layout.h"
#include "desktop/race/frozen_table.h"
#include "desktop/race/motion_panel.h"
#include "desktop/race/race_reports.h"
#include "desktop/race/run_chooser.h"
#include "desktop/race/run_panel.h"
#include "desktop/race/table_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* ColumnsKey = "raceColumns";

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

/// Refills a filter with the values that the runs have, the choice of all in front, and keeps the
/// choice where it is still there.
void fill(QComboBox& box, const QString& all, const RaceSet& set,
          std::string analyzerdata::*field) {
    const QSignalBlocker blocker(box);
    const QString chosen = box.currentData().toString();
    QStringList values;
    for (const analyzerdata& run : set.alldata)
        if (const QString value = qtText(run.*field); !value.isEmpty() && !values.contains(value))
            values.append(value);
    box.clear();
    box.addItem(all, QString());
    for (const QString& value : values)
        box.addItem(value, value);
    box.setCurrentIndex(std::max(0, box.findData(chosen)));
    box.setVisible(values.size() > 1);
}

QString countText(std::size_t shown, std::size_t all) {
    if (shown == all)
        return all == 1 ? RaceView::tr("1 run") : RaceView::tr("%1 runs").arg(all);
    return RaceView::tr("%1 of %2 runs").arg(shown).arg(all);
}

QLabel* quietLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

std::vector<double> valuesOf(const TableRow& row) {
    std::vector<double> values;
    for (const TableCell& cell : row.cells)
        values.push_back(cell.value);
    return values;
}

} // namespace

RaceView::RaceView(Workspace& workspace, QWidget* parent)
    : QWidget(parent), m_workspace(workspace), m_document(workspace), m_model(m_document) {
    makeCentre();
    connect(&m_document, &RaceDocument::tableChanged, this, &RaceView::showTable);
    connect(&m_document, &RaceDocument::changedOnDisk, this, &RaceView::noticeChange);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RaceView::showSelection);
}

bool RaceView::open(const QString& path) {
    if (!m_document.open(path, this))
        return false;
    showDocument();
    return true;
}

void RaceView::makeCentre() {
    auto* split = new QSplitter;
    split->addWidget(makeWork());
    split->addWidget(makeSide());
    split->setStretchFactor(0, 1);
    split->setSizes({900, 340});
    rememberSizes(*split, m_workspace, "raceSide");

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                               theme::LargeSpacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(makeFilterBar());
    column->addWidget(makeNoteBar());
    column->addWidget(split, 1);
}

QWidget* RaceView::makeWork() {
    m_table = new FrozenTable(SplitTableModel::LeadingColumns);
    m_table->setObjectName("splitTable");
    m_table->setModel(&m_model);
    connect(m_table, &FrozenTable::columnsMoved, this, &RaceView::rememberColumns);
    for (QHeaderView* header :
         {m_table->horizontalHeader(), m_table->frozenView()->horizontalHeader()}) {
        header->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(header, &QWidget::customContextMenuRequested, this, [this, header](QPoint at) {
            QMenu menu;
            fillColumnMenu(menu);
            menu.exec(header->mapToGlobal(at));
        });
    }
    connect(m_table, &QTableView::activated, this, &RaceView::requestMoment);
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
    work->setSizes({420, 280});
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
    m_side->addTab(m_run, tr("&Run"));
    m_side->addTab(m_ideal, tr("I&deal run"));
    m_side->addTab(m_potential, tr("Pote&ntial"));
    m_side->addTab(m_motion, tr("&Motion"));
    return m_side;
}

QWidget* RaceView::makeFilterBar() {
    m_title = new QLabel;
    m_title->setTextFormat(Qt::PlainText);
    m_title->setFont(theme::titleFont(*this));
    m_subtitle = quietLabel();
    m_count = quietLabel();
    m_phase = new QComboBox;
    m_phase->setObjectName("phase");
    m_phase->setAccessibleName(tr("Phase"));
    m_category = new QComboBox;
    m_category->setObjectName("category");
    m_category->setAccessibleName(tr("Category"));
    m_name = new QLineEdit;
    m_name->setObjectName("name");
    m_name->setPlaceholderText(tr("Name"));
    m_name->setClearButtonEnabled(true);
    m_name->setMaximumWidth(200);
    for (QComboBox* box : {m_phase, m_category})
        connect(box, &QComboBox::currentIndexChanged, this, &RaceView::applyFilter);
    connect(m_name, &QLineEdit::textChanged, this, &RaceView::applyFilter);

    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(m_title);
    words->addWidget(m_subtitle);
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    row->addLayout(words, 1);
    for (QWidget* widget : std::initializer_list<QWidget*>{m_count, m_phase, m_category, m_name})
        row->addWidget(widget, 0, Qt::AlignBottom);
    return box;
}

QWidget* RaceView::makeNoteBar() {
    m_note = quietLabel();
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
    m_side->setVisible(!isCompact);
    m_charts->setVisible(!isCompact);
}

void RaceView::showDocument() {
    m_title->setText(m_document.title());
    m_subtitle->setText(m_document.subtitle());
    showNote(m_document.upgradeNote(), false);
    fillFilters();
    m_table->setFocus();
    emit stateChanged();
}

void RaceView::showNote(const QString& note, bool offersReload) {
    m_note->setText(note);
    m_noteBar->setVisible(!note.isEmpty());
    m_reload->setVisible(offersReload);
}

void RaceView::showTable() {
    m_count->setText(
        countText(m_document.shownSet().alldata.size(), m_document.wholeSet().alldata.size()));
    applyColumnLayout(*m_table, m_workspace.remembered(ColumnsKey));
    m_charts->setPenaltiesIncluded(m_document.settings().penaltiesIncluded);
    m_charts->setRace(m_document.shownSet());
    m_charts->setForeignReferences(m_document.courseReferences());
    m_ideal->refresh();
    m_potential->refresh();
    m_motion->forget();
    showSelection();
    emit stateChanged();
}

void RaceView::showSelection() {
    std::vector<std::size_t> runs;
    std::optional<RunAgainst> against;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows()) {
        if (const auto run = m_model.runOfRow(row.row()))
            runs.push_back(*run);
        else
            against = {row.siblingAtColumn(SplitTableModel::NameColumn).data().toString(),
                       m_model.comparisonOfRow(row.row())->values};
    }
    m_charts->setSelection(runs);
    m_motion->showRuns(runs);
    if (runs.empty()) {
        m_run->showRun(std::nullopt, std::nullopt);
        return;
    }
    if (runs.size() > 1 && !against) {
        const TableRow& first = m_document.table().rows[runs.front()];
        against = {qtText(first.run->name), valuesOf(first)};
        m_run->showRun(runs[1], against);
        return;
    }
    m_run->showRun(runs.front(), against);
}

void RaceView::fillFilters() {
    fill(*m_phase, tr("All phases"), m_document.wholeSet(), &analyzerdata::phase);
    fill(*m_category, tr("All categories"), m_document.wholeSet(), &analyzerdata::category);
}

void RaceView::applyFilter() {
    m_document.setFilter({m_phase->currentData().toString(), m_category->currentData().toString(),
                          m_name->text().trimmed()});
}

void RaceView::findName() {
    m_name->setFocus();
    m_name->selectAll();
}

void RaceView::clearFilter() {
    m_phase->setCurrentIndex(0);
    m_category->setCurrentIndex(0);
    m_name->clear();
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
    emit stateChanged();
}

void RaceView::setScale(ColourScale scale) {
    m_model.setScale(scale);
    emit stateChanged();
}

void RaceView::setReference(ReferenceKind kind) {
    m_model.setReference({kind});
    emit stateChanged();
}

void RaceView::useSelectionAsReference() {
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    const int row = rows.front().row();
    if (const auto run = m_model.runOfRow(row))
        m_model.setReference({ReferenceKind::Run, *run});
    else
        m_model.setReference({ReferenceKind::Values, 0, m_model.comparisonOfRow(row)->name,
                              m_model.comparisonOfRow(row)->values});
    emit stateChanged();
}

void RaceView::compareWithOtherRace() {
    RunChooser chooser(m_workspace, m_document.path(), this);
    if (chooser.exec() == QDialog::Accepted)
        m_document.addComparison(chooser.run(), chooser.race());
}

void RaceView::copySelection() {
    QList<int> rows;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows())
        rows.append(row.row());
    std::sort(rows.begin(), rows.end());
    if (rows.isEmpty())
        for (int row = 0; row < m_model.rowCount(); ++row)
            rows.append(row);
    QApplication::clipboard()->setText(tabSeparated(m_model, rows, shownColumns(*m_table)));
}

void RaceView::saveCsv() {
    const QFileInfo race(m_document.path());
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save the table"), race.path() + '/' + race.completeBaseName() + ".csv",
        tr("Semicolon-separated text (*.csv)"));
    if (path.isEmpty())
        return;
    try {
        writeFileSafely(path.toStdString(),
                        semicolonSeparated(m_model, shownColumns(*m_table)).toStdString());
    } catch (const FileError& error) {
        m_workspace.log()("Failed to create file");
        m_workspace.showAlert({"Failed to create file", error.reason()}, this);
    }
}

void RaceView::previewReports() {
    const PreviewFailures failures{m_workspace.log(), [this](const Alert& alert, QWidget* over) {
                                       m_workspace.showAlert(alert, over);
                                   }};
    // The run that the sheet is of: the topmost of the selected ones.
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    std::optional<std::size_t> run;
    for (const QModelIndex& row : rows)
        if (!run)
            run = m_model.runOfRow(row.row());
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

void RaceView::noticeChange() {
    if (QFileInfo::exists(m_document.path()))
        showNote(tr("The file was changed by another program."), true);
    else
        showNote(tr("The file is not on the disk any more. What you see is what it held."), false);
}

void RaceView::reload() {
    if (m_document.reload(this))
        showDocument();
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
    applyColumnLayout(*m_table, {});
}

} // namespace kavela::desktop
