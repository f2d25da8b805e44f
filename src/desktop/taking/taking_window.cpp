#include "desktop/taking/taking_window.h"

#include "desktop/barrier/slit_strip.h"
#include "desktop/film/film_grid.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/time_line.h"
#include "desktop/race/frozen_table.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/taking/day/day_desk.h"
#include "desktop/taking/day/day_panel.h"
#include "desktop/taking/day/start_list_dialog.h"
#include "desktop/taking/gate_strip.h"
#include "desktop/taking/notes/clip_player.h"
#include "desktop/taking/notes/lane_strip.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/recording/recording_of_run.h"
#include "desktop/taking/run_films.h"
#include "desktop/taking/run_form.h"
#include "desktop/taking/split_bar.h"
#include "desktop/taking/split_mode.h"
#include "desktop/taking/splits_shown.h"
#include "desktop/taking/taking_actions.h"
#include "desktop/why/why_popup.h"
#include "splittaking/annotations/penalty_details.h"
#include "splittaking/video_names.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

TakingWindow::TakingWindow(Workspace& workspace, Autosave autosave)
    : ToolWindow(workspace, &m_document, {"taking", tr("split taking"), "kvx"}),
      m_document(workspace, std::move(autosave)),
      m_files(m_document, workspace, *this),
      m_exchange(m_document, m_files, workspace, *this, [this] { return commit(); }),
      m_runs(columnsOfRuns(m_document), RowsKnownBy::Number),
      m_race(workspace),
      m_tableModel(m_race),
      m_stage(new FilmStage(workspace, {.typing = "typing"})) {
    // Before the notes and the form, which ask for the run in front.
    connect(&m_document, &TakingDocument::changed, this, &TakingWindow::showRuns);
    makeStage();
    makeModes();
    makeDay();
    auto* upper = new QSplitter;
    upper->addWidget(makeRuns());
    upper->addWidget(m_stage);
    upper->addWidget(m_notes);
    upper->setStretchFactor(1, 1);
    shareSizes(*upper, {290, 670, 280});
    rememberSizes(*upper, workspace, "takingParts");
    auto* whole = new QSplitter(Qt::Vertical);
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->addWidget(upper);
    m_below = new QStackedWidget;
    m_below->addWidget(makeTable());
    m_below->addWidget(m_dayPanel);
    whole->addWidget(m_below);
    whole->setStretchFactor(0, 1);
    shareSizes(*whole, {560, 200});
    rememberSizes(*whole, workspace, "takingTable");
    setCentralWidget(whole);
    // Wherever the keyboard is, unless a number of its own is there.
    answerWhy(whole, [this](const QPoint& at) {
        return at == QPoint(-1, -1) ? m_document.whyExpected(m_run) : std::nullopt;
    });
    m_actions = new TakingActions(*this, workspace);
    connectParts();
    connectNotes();
}

TakingWindow::~TakingWindow() {
    m_stage->silence();
    m_document.disconnect(this);
}

FilmDeck& TakingWindow::deck() const {
    return m_stage->deck();
}

QWidget* TakingWindow::makeRuns() {
    m_name = new QLineEdit;
    m_name->setObjectName("athlete");
    m_name->setPlaceholderText(tr("Athlete's name"));
    m_name->setToolTip(tr("Enter finds the athlete's next run, or collects a training file of all "
                          "videos with that name"));
    m_name->setClearButtonEnabled(true);
    m_runTable = filmTable(m_runs, "runs");
    m_runTable->stretch({0});
    // A letter is a key of the film that was missed, not another name.
    m_runTable->setEditTriggers(QAbstractItemView::DoubleClicked |
                                QAbstractItemView::EditKeyPressed);
    m_list = new QWidget;
    m_list->setMinimumWidth(grown(*this, 220)); // that names are read in the list
    auto* column = new QVBoxLayout(m_list);
    column->setContentsMargins(0, 0, theme::Spacing, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_name);
    column->addWidget(m_runTable, 1);
    return m_list;
}

void TakingWindow::makeStage() {
    m_times = new SplitBar;
    m_gates = new GateStrip;
    m_clips = new ClipPlayer(deck(), this);
    m_form = new RunForm(m_document);
    m_notes = new NotesPanel({m_document, deck(), workspace(), *m_gates, *m_clips, m_run, {}},
                             m_stage->line(), *m_form);
    m_stage->addAbove(m_notes->bar());
    m_slit = new SlitStrip(deck(), m_stage->line());
    m_stage->addOverLine(*m_slit); // which owns it
    m_stage->addBelow(m_notes->lanes());
    m_stage->addBelow(*m_times);
    m_stage->addBelow(*m_gates);
}

/// The splits are the first of the modes: what the others leave is theirs.
void TakingWindow::makeModes() {
    m_splits = new SplitMode(m_document, *m_stage, *m_gates, workspace());
    m_shown = new SplitsShown(m_document, *m_stage, *m_splits, *m_times);
    m_films = new RunFilms(
        {m_document, *m_stage, *m_notes, m_files, workspace(), [this] { return commit(); }});
    std::vector<FilmMode*> modes = m_notes->modes();
    modes.insert(modes.begin(), m_splits);
    m_stage->setModes(std::move(modes));
}

void TakingWindow::makeDay() {
    m_day = new DayDesk({m_document, *m_stage, workspace(), [this] { return commit(); },
                         [this] { return m_run; }, [this](int run) { selectRun(run); }});
    m_stage->addBelow(m_day->glance());
    m_dayPanel = new DayPanel(*m_day);
    m_dayShown = new QAction(tr("Race &day, or the table of the race"), this);
    m_dayShown->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
    m_dayShown->setCheckable(true);
    connect(m_dayShown, &QAction::triggered, this, &TakingWindow::showDay);
    connect(m_dayPanel, &DayPanel::listWanted, this, &TakingWindow::takeStartList);
    connect(m_dayPanel, &DayPanel::folderWanted, this, &TakingWindow::chooseDayFolder);
}

void TakingWindow::takeStartList() {
    const auto& starts = m_document.day().starts;
    StartListDialog dialog(m_files, workspace(),
                           starts.empty() ? QString() : qtText(starts.back().phase), m_day->date(),
                           this);
    if (dialog.exec() != QDialog::Accepted || !commit())
        return;
    m_day->takeStarts(dialog.list(), dialog.phase(), dialog.day());
    showDay(true);
}

void TakingWindow::showDay(bool isShown) {
    m_dayShown->setChecked(isShown);
    m_below->setCurrentIndex(isShown ? 1 : 0);
    m_below->setVisible(true); // also where the film was made larger
}

void TakingWindow::chooseDayFolder() {
    const QString folder = m_files.chooseFolder(tr("In which folder do the films appear?"));
    if (!folder.isEmpty() && commit())
        m_day->watchFolder(QFileInfo(folder) == QFileInfo(m_document.folder()) ? QString()
                                                                               : folder);
}

QWidget* TakingWindow::makeTable() {
    m_table = new FrozenTable(SplitTableModel::LeadingColumns);
    m_table->setObjectName("splitTable");
    m_table->setModel(&m_tableModel);
    m_table->setToolTip(tr("A click on a time shows its frame"));
    for (QTableView* view : {static_cast<QTableView*>(m_table), m_table->frozenView()})
        answerWhy(view, [this](const QModelIndex& index) { return m_tableModel.whyOf(index); });
    return m_table;
}

void TakingWindow::connectParts() {
    m_stage->keepKeys(*this, [this] {
        m_list->isVisible() ? m_runTable->setFocus() : m_stage->line().setFocus();
    });
    connect(&m_document, &TakingDocument::changed, this, &TakingWindow::showDocument);
    connect(m_runTable, &ColumnTable::chosen, this, [this] {
        if (const int run = m_runTable->currentPlace(); run >= 0)
            selectRun(run);
    });
    connect(m_runTable, &ColumnTable::clicked, this, [this] {
        if (workspace().preferences().boolean("playonclick"))
            deck().play(1);
    });
    connect(m_name, &QLineEdit::returnPressed, this,
            [this] { m_exchange.collectTraining(m_name->text().trimmed()); });
    // After the clips, which may have gone on from the end of the film.
    connect(&deck(), &FilmDeck::stateChanged, this, &TakingWindow::goOn);
    connect(m_splits, &SplitMode::chosen, m_notes, &NotesPanel::clearSelection);
    connect(m_splits, &SplitMode::told, m_notes, &NotesPanel::tell);
    connect(m_films, &RunFilms::shown, m_shown, &SplitsShown::showExpected);
    connect(m_gates, &GateStrip::gateClicked, m_gates, &GateStrip::setCurrent);
    for (QTableView* table : {static_cast<QTableView*>(m_table), m_table->frozenView()})
        connect(table, &QTableView::clicked, this, &TakingWindow::playTableCell);
}

/// One mark is selected at a time: a split or a note.
void TakingWindow::connectNotes() {
    connect(m_notes, &NotesPanel::modeChanged, this, [this] {
        FilmMode* const page = m_notes->page();
        m_stage->setFront(page ? *page : *m_splits);
        m_splits->leave();
    });
    connect(m_notes, &NotesPanel::noteSelected, m_splits, &SplitMode::leave);
    connect(m_notes, &NotesPanel::splitChosen, m_stage, &FilmStage::goToMark);
    connect(m_notes, &NotesPanel::runRequested, this, &TakingWindow::selectRun);
    connect(m_notes, &NotesPanel::refused, m_stage, &FilmStage::refuse);
    connect(m_notes, &NotesPanel::flashed, m_stage, &FilmStage::flash);
}

FileReading TakingWindow::readingOf(const QString& path) {
    return followedBy(m_document.reading(path, this), [this] { beginWork(); });
}

void TakingWindow::beginWork() {
    if (m_run < 0)
        m_films->show(); // says how films come here
    if (const auto run = m_document.workedOn())
        selectRun(*run);
    m_runTable->setFocus();
}

void TakingWindow::makeFilmLarger() {
    constexpr int Stages = 3;
    m_larger = (m_larger + 1) % Stages;
    m_below->setVisible(m_larger == 0);
    m_list->setVisible(m_larger < 2);
    m_notes->setVisible(m_larger < 2);
    if (m_larger == 2) // what was hidden may have had it, and keys belong to the window
        m_stage->line().setFocus();
    else
        m_runTable->setFocus();
}

/// A run is known by its place: followRun() says where the one in front has gone.
void TakingWindow::showRuns() {
    m_runs.show(runsInList(m_document));
}

void TakingWindow::showDocument() {
    followRun();
    m_films->follow();
    m_splits->follow();
    m_gates->setCourse(static_cast<int>(m_document.info().gates), m_document.info().upGates);
    showGates();
    showNextSplit();
    m_shown->show();
    m_race.show(timesOf(m_document.value()), m_document.path());
    m_actions->refresh();
}

void TakingWindow::showGates() {
    m_gates->setPenalties(m_run < 0 ? std::vector<std::int64_t>()
                                    : m_document.run(m_run).sectioninfo.pens);
}

/// The first press marks the start.
void TakingWindow::showNextSplit() {
    const RunMarks marks = m_splits->runMarks();
    const bool isStarted = marks.start || !marks.marks.empty();
    m_slit->setNextSplit(isStarted ? marks.marks.size() + 1 : 0);
}

/// Presses that wait for their frame belong to what is in front now.
bool TakingWindow::takePending() {
    deck().finishPresses();
    m_form->commit();
    m_notes->commit();
    return true;
}

/// The run in front may stand elsewhere in the list after an edit, or be gone.
void TakingWindow::followRun() {
    const int place = m_document.placeOf(m_identity);
    if (place == m_run && m_run >= 0)
        return;
    m_notes->forget();
    if (place < 0) {
        showRun(std::clamp(m_run, m_document.runCount() > 0 ? 0 : -1, m_document.runCount() - 1));
        return;
    }
    m_run = place;
    m_splits->runMoved(place);
    m_films->runMoved(place);
    m_form->runMoved(place);
    m_notes->runMoved(place);
    m_runTable->choose(place);
}

void TakingWindow::selectRun(int run) {
    if (run == m_run || run >= m_document.runCount())
        return;
    if (!commit()) {
        m_runTable->choose(m_run);
        return;
    }
    showRun(run);
}

void TakingWindow::showRun(int run) {
    m_films->startRun(run);
    m_run = run;
    m_identity = run < 0 ? nullptr : m_document.identityOf(run);
    m_splits->showRun(run);
    m_form->showRun(run);
    if (run >= 0 && m_runTable->currentPlace() != run)
        m_runTable->choose(run);
    {
        const QSignalBlocker blocked(m_notes); // the film beside is opened with the run's own
        m_notes->showRun(run);
    }
    m_films->show();
    m_gates->setCurrent(1);
    if (run >= 0)
        showGates();
    showNextSplit();
    m_shown->show();
    m_day->followRun();
    if (m_recording)
        m_recording->startRun();
}

/// Where the film has played to its end the next run's plays from its beginning, if that is wanted.
void TakingWindow::goOn() {
    const bool wasPlaying = std::exchange(m_wasPlaying, deck().isPlaying());
    if (!wasPlaying || !m_stage->isAtEnd() || m_run + 1 >= m_document.runCount() ||
        !workspace().preferences().boolean("autoplaynext"))
        return;
    m_stage->forgetPlace(m_document.identityOf(m_run + 1));
    selectRun(m_run + 1);
    deck().play(1);
}

void TakingWindow::stepRun(int step) {
    const int run = m_run + step;
    if (run >= 0 && run < m_document.runCount())
        selectRun(run);
}

void TakingWindow::removeRun() {
    if (commit())
        m_document.removeRun(m_run);
}

void TakingWindow::moveRun(int step) {
    if (commit())
        m_document.moveRun(m_run, m_run + step);
}

void TakingWindow::reset() {
    if (commit())
        m_document.reset(this);
}

void TakingWindow::findRun() {
    m_name->setFocus();
    m_name->selectAll();
}

void TakingWindow::setPenalty(GatePenalty penalty) {
    const auto gates = m_document.info().gates;
    if (m_run < 0 || gates <= 0)
        return;
    const int gate = m_gates->current();
    m_document.editRun(m_run, tr("penalty at gate %1").arg(gate), [&](athletedata031& run) {
        setPenaltyAndDetails(run, gate, static_cast<std::int64_t>(penalty), gates);
    });
    m_stage->stepGate(1);
}

void TakingWindow::playTableCell(const QModelIndex& index) {
    const auto shown = m_tableModel.runOfRow(index.row());
    if (!shown)
        return;
    selectRun(static_cast<int>(m_race.shownSet().alldata[*shown].athleteInt));
    const int section = index.column() - SplitTableModel::LeadingColumns;
    if (section >= 0 && section < m_document.info().totalsplits)
        m_stage->goToMark(static_cast<std::size_t>(section) + 1);
}

void TakingWindow::takeFiles(const QStringList& files) {
    QStringList films;
    QStringList others;
    for (const QString& file : files)
        if (QFileInfo(file).suffix().toLower() == "kvb")
            openRecording(file);
        else
            (isVideoFile(QFileInfo(file).fileName().toStdString()) ? films : others).append(file);
    if (!commit())
        return;
    if (!films.isEmpty())
        m_files.copy(films, [this](const QStringList& names) { (void)m_document.addFilms(names); });
    if (!others.isEmpty())
        emit openRequested(others);
}

RecordingDialog& TakingWindow::recording() {
    if (!m_recording)
        m_recording = new RecordingOfRun(
            {m_document, deck(), m_files, workspace(), [this] { return m_run; }}, this);
    return *m_recording;
}

void TakingWindow::openRecording(const QString& path) {
    if (!recording().isVisible()) {
        // The dialog asks for moments of the film, which therefore has to be seen.
        const FilmGrid& grid = m_stage->grid();
        const QRect film(grid.mapToGlobal(QPoint()), grid.size());
        recording().placeBeside(film, screen()->availableGeometry());
    }
    recording().show();
    recording().raise();
    if (!path.isEmpty())
        recording().load(path);
}

} // namespace kavela::desktop
