#include "desktop/taking/taking_window.h"

#include "desktop/film/film_deck.h"
#include "desktop/film/film_grid.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_sound.h"
#include "desktop/film/film_view.h"
#include "desktop/film/time_line.h"
#include "desktop/race/frozen_table.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/field_keys.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/gate_strip.h"
#include "desktop/taking/notes/clip_player.h"
#include "desktop/taking/notes/lane_strip.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/recording/recording_dialog.h"
#include "desktop/taking/run_form.h"
#include "desktop/taking/split_bar.h"
#include "desktop/taking/taking_actions.h"
#include "splitdata/run_timing.h"
#include "splittaking/messages.h"
#include "splittaking/video_names.h"
#include "video/health.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabBar>
#include <QTableView>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

QString rateText(double rate) {
    return QStringLiteral("×") + QString::number(rate);
}

} // namespace

TakingWindow::TakingWindow(Workspace& workspace, Autosave autosave)
    : ToolWindow(workspace, &m_document, {"taking", tr("split taking"), "kvx"}),
      m_document(workspace, std::move(autosave)),
      m_runs(m_document),
      m_race(workspace),
      m_tableModel(m_race),
      m_deck(new FilmDeck(FilmMemory::of(workspace), this)),
      m_sound(new FilmSound(*m_deck, this)),
      m_chooseFiles([this](const QString& title, const QString& filter) {
          return QFileDialog::getOpenFileNames(this, title, m_document.folder(), filter);
      }),
      m_chooseFolder([this](const QString& title) {
          return QFileDialog::getExistingDirectory(this, title, m_document.folder());
      }) {
    auto* upper = new QSplitter;
    upper->addWidget(makeRuns());
    upper->addWidget(makeStage());
    upper->addWidget(m_notes);
    upper->setStretchFactor(1, 1);
    shareSizes(*upper, {290, 670, 280});
    rememberSizes(*upper, workspace, "takingParts");
    auto* whole = new QSplitter(Qt::Vertical);
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->addWidget(upper);
    whole->addWidget(makeTable());
    whole->setStretchFactor(0, 1);
    shareSizes(*whole, {560, 200});
    rememberSizes(*whole, workspace, "takingTable");
    setCentralWidget(whole);
    m_actions = new TakingActions(*this, workspace);
    connectParts();
    connectNotes();
}

TakingWindow::~TakingWindow() {
    m_deck->disconnect(this);
    m_document.disconnect(this);
}

QWidget* TakingWindow::makeRuns() {
    m_name = new QLineEdit;
    m_name->setObjectName("athlete");
    m_name->setPlaceholderText(tr("Athlete's name"));
    m_name->setToolTip(tr("Enter finds the athlete's next run, or collects a training file of all "
                          "videos with that name"));
    m_name->setClearButtonEnabled(true);
    m_runTable = new QTableView;
    m_runTable->setObjectName("runs");
    m_runTable->setModel(&m_runs);
    m_runTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_runTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_runTable->setShowGrid(false);
    m_runTable->setWordWrap(false);
    m_runTable->verticalHeader()->hide();
    m_runTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    m_runTable->horizontalHeader()->setHighlightSections(false);
    m_runTable->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_runTable->horizontalHeader()->setSectionResizeMode(RunTableModel::NameColumn,
                                                         QHeaderView::Stretch);
    m_list = new QWidget;
    m_list->setMinimumWidth(220); // that names are read in the list
    auto* column = new QVBoxLayout(m_list);
    column->setContentsMargins(0, 0, theme::Spacing, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_name);
    column->addWidget(m_runTable, 1);
    return m_list;
}

QWidget* TakingWindow::makeStage() {
    m_films = new FilmGrid;
    m_state = new QLabel;
    m_state->setObjectName("state");
    m_health = new QLabel;
    m_health->setTextFormat(Qt::PlainText);
    m_health->setWordWrap(true);
    m_health->setObjectName("health");
    m_typing = new QLabel(tr("Typing: Esc gives the keys back to the film"));
    m_typing->setObjectName("typing");
    m_typing->hide();
    m_line = new TimeLine(*m_deck);
    m_splits = new SplitBar;
    m_gates = new GateStrip;
    m_clips = new ClipPlayer(*m_deck, this);
    m_form = new RunForm(m_document);
    m_notes = new NotesPanel({m_document, *m_deck, workspace(), *m_gates, *m_clips, m_run, {}},
                             *m_line, *m_form);
    auto* row = new QHBoxLayout;
    row->addWidget(m_health, 1);
    row->addWidget(m_typing, 0, Qt::AlignRight | Qt::AlignTop);
    row->addWidget(m_state, 0, Qt::AlignRight | Qt::AlignTop);
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(&m_notes->bar());
    column->addWidget(m_films, 1);
    column->addLayout(row);
    column->addWidget(m_line);
    column->addWidget(&m_notes->lanes());
    column->addWidget(m_splits);
    column->addWidget(m_gates);
    return box;
}

QWidget* TakingWindow::makeTable() {
    m_table = new FrozenTable(SplitTableModel::LeadingColumns);
    m_table->setObjectName("splitTable");
    m_table->setModel(&m_tableModel);
    m_table->setToolTip(tr("A click on a time shows its frame"));
    return m_table;
}

void TakingWindow::connectParts() {
    auto* const keys = new FieldKeys(
        *this, [this] { m_list->isVisible() ? m_runTable->setFocus() : m_line->setFocus(); });
    connect(keys, &FieldKeys::typingChanged, m_typing, &QLabel::setVisible);
    connect(&m_document, &TakingDocument::changed, this, &TakingWindow::showDocument);
    connect(m_runTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { selectRun(current.row()); });
    connect(m_runTable, &QTableView::clicked, this, [this] {
        if (workspace().preferences().boolean("playonclick"))
            m_deck->play(1);
    });
    connect(m_name, &QLineEdit::returnPressed, this, &TakingWindow::collectTraining);
    connect(m_deck, &FilmDeck::frameShown, this, &TakingWindow::showRunning);
    connect(m_deck, &FilmDeck::stateChanged, this, &TakingWindow::showState);
    connect(m_deck, &FilmDeck::indexChanged, this, &TakingWindow::showHealth);
    connect(m_line, &TimeLine::markClicked, this, &TakingWindow::goToMark);
    connect(m_line, &TimeLine::markDropped, this, &TakingWindow::dropMark);
    connect(m_splits, &SplitBar::splitClicked, this, &TakingWindow::goToMark);
    connect(m_gates, &GateStrip::gateClicked, m_gates, &GateStrip::setCurrent);
    for (QTableView* table : {static_cast<QTableView*>(m_table), m_table->frozenView()})
        connect(table, &QTableView::clicked, this, &TakingWindow::playTableCell);
}

/// One mark is selected at a time: a split or a note.
void TakingWindow::connectNotes() {
    const auto leaveSplits = [this] {
        m_selected.reset();
        showMarks();
    };
    connect(m_notes, &NotesPanel::modeChanged, this, leaveSplits);
    connect(m_notes, &NotesPanel::noteSelected, this, leaveSplits);
    connect(m_notes, &NotesPanel::splitChosen, this, &TakingWindow::goToMark);
    connect(m_notes, &NotesPanel::attachWanted, this, &TakingWindow::attachFixedCamera);
    connect(m_notes, &NotesPanel::besideChanged, this, &TakingWindow::showBeside);
    connect(m_notes, &NotesPanel::runRequested, this, &TakingWindow::selectRun);
    connect(m_notes, &NotesPanel::refused, this, &TakingWindow::refuse);
    connect(m_notes, &NotesPanel::flashed, this,
            [this](const QString& text) { m_views.front()->flash(text); });
}

bool TakingWindow::open(const QString& path) {
    const bool isOpen = QFileInfo(path).isDir() ? m_document.openFolder(path, this)
                                                : m_document.openFile(path, this);
    if (!isOpen)
        return false;
    if (m_run < 0)
        showFilms(); // says how films come here
    m_runTable->setFocus();
    return true;
}

void TakingWindow::makeFilmLarger() {
    constexpr int Stages = 3;
    m_larger = (m_larger + 1) % Stages;
    m_table->setVisible(m_larger == 0);
    m_list->setVisible(m_larger < 2);
    m_notes->setVisible(m_larger < 2);
    if (m_larger == 2)
        m_line->setFocus(); // what was hidden may have had it, and keys belong to the window
    else
        m_runTable->setFocus();
}

void TakingWindow::tell(const std::string& message) {
    workspace().showAlert({"", message}, this);
}

void TakingWindow::showDocument() {
    followRun();
    if (m_run >= 0 && filmsOf(m_run) != m_filmsShown)
        showFilms();
    if (m_selected && (m_run < 0 || !stampsOf(m_document.marks(m_run), *m_selected)))
        m_selected.reset();
    std::vector<std::int64_t> penalties;
    if (m_run >= 0)
        penalties = m_document.run(m_run).sectioninfo.pens;
    m_gates->setCourse(static_cast<int>(m_document.info().gates), m_document.info().upGates);
    m_gates->setPenalties(penalties);
    showMarks();
    m_race.show(timesOf(m_document.value()), m_document.path());
    m_actions->refresh();
}

/// Presses that wait for their frame belong to what is in front now.
bool TakingWindow::takePending() {
    m_deck->finishPresses();
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
    m_form->runMoved(place);
    m_notes->runMoved(place);
    m_runTable->selectRow(place);
}

void TakingWindow::selectRun(int run) {
    if (run == m_run || run >= m_document.runCount())
        return;
    if (!commit()) {
        m_runTable->selectRow(m_run);
        return;
    }
    showRun(run);
}

void TakingWindow::showRun(int run) {
    rememberFilmPlace();
    m_run = run;
    m_identity = run < 0 ? nullptr : m_document.identityOf(run);
    m_selected.reset();
    m_form->showRun(run);
    if (run >= 0 && m_runTable->currentIndex().row() != run)
        m_runTable->selectRow(run);
    {
        const QSignalBlocker blocked(m_notes); // the film beside is opened with the run's own
        m_notes->showRun(run);
    }
    showFilms();
    m_gates->setCurrent(1);
    if (run >= 0)
        m_gates->setPenalties(m_document.run(run).sectioninfo.pens);
    showMarks();
    if (m_recording)
        m_recording->startRun();
}

const Stamps* TakingWindow::stampsOf(const RunMarks& marks, std::size_t mark) const {
    if (mark == 0)
        return marks.start && !marks.start->empty() ? &*marks.start : nullptr;
    return mark <= marks.marks.size() && !marks.marks[mark - 1].empty() ? &marks.marks[mark - 1]
                                                                        : nullptr;
}

void TakingWindow::showMarks() {
    const RunMarks marks = m_run < 0 ? RunMarks() : m_document.marks(m_run);
    const std::vector<double> times = splitTimes(marks);
    std::vector<LineMark> line;
    std::optional<std::size_t> selected;
    for (std::size_t mark = 0; mark <= marks.marks.size(); ++mark) {
        const Stamps* const stamps = stampsOf(marks, mark);
        if (!stamps)
            continue;
        if (m_selected == mark)
            selected = line.size();
        line.push_back({stamps->front(), mark == 0 ? tr("Start") : QString::number(mark), mark});
    }
    m_line->setMarks(std::move(line));
    m_line->setSelected(selected);
    std::vector<SplitBar::Section> sections;
    const infodata031& info = m_document.info();
    for (std::size_t i = 0; std::cmp_less(i, std::min<std::int64_t>(info.totalsplits, 100)); ++i) {
        const QString title = qtText(entryOrZero(info.splitTitles, i));
        const bool isTaken = i < times.size() && stampsOf(marks, i + 1);
        sections.push_back({title.isEmpty() ? 'S' + QString::number(i + 1) : title,
                            isTaken ? shownHundredths(times[i]) : QString()});
    }
    m_splits->setSections(std::move(sections));
    m_splits->setSelected(m_selected && *m_selected > 0 ? m_selected : std::nullopt);
    showRunning();
    showExpected();
}

void TakingWindow::showRunning() {
    const RunMarks marks = m_run < 0 ? RunMarks() : m_document.marks(m_run);
    const std::size_t next = marks.marks.size() + 1;
    const FilmPicture* const shown = m_deck->shown(0);
    const auto last = lastMark();
    const bool isRunning =
        shown && last && std::cmp_less_equal(next, m_document.info().totalsplits);
    if (!isRunning) {
        m_splits->setRunning(std::nullopt, {});
        return;
    }
    const double since = shown->frame.stamp.seconds() - stampsOf(marks, *last)->front().seconds();
    m_splits->setRunning(next, since < 0 ? QString() : shownHundredths(since));
}

std::optional<std::size_t> TakingWindow::lastMark() const {
    if (m_run < 0)
        return std::nullopt;
    const RunMarks marks = m_document.marks(m_run);
    for (std::size_t mark = marks.marks.size() + 1; mark-- > 0;)
        if (stampsOf(marks, mark))
            return mark;
    return std::nullopt;
}

void TakingWindow::showState() {
    const QString motion = m_deck->cameras() == 0 ? QString()
                           : m_deck->isPlaying()  ? tr("Playing %1").arg(rateText(m_deck->rate()))
                                                  : tr("Paused, %1").arg(rateText(m_deck->rate()));
    m_state->setText(motion);
    const bool hasEnded = !m_deck->isPlaying() && m_deck->cameras() > 0 && m_deck->end() > 0 &&
                          m_deck->position() >= m_deck->end() && m_deck->rate() > 0;
    if (hasEnded && m_wasPlaying && workspace().preferences().boolean("autoplaynext") &&
        m_run + 1 < m_document.runCount()) {
        m_places.erase(m_document.identityOf(m_run + 1)); // from its beginning
        selectRun(m_run + 1);
        m_deck->play(1);
    }
    m_wasPlaying = m_deck->isPlaying();
}

void TakingWindow::playTableCell(const QModelIndex& index) {
    const auto shown = m_tableModel.runOfRow(index.row());
    if (!shown)
        return;
    selectRun(static_cast<int>(m_race.shownSet().alldata[*shown].athleteInt));
    const int section = index.column() - SplitTableModel::LeadingColumns;
    if (section >= 0 && section < m_document.info().totalsplits)
        goToMark(static_cast<std::size_t>(section) + 1);
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
        (void)m_document.addFilms(copied(films));
    if (!others.isEmpty())
        emit openRequested(others);
}

} // namespace kavela::desktop
