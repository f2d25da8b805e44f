#include "desktop/cross/cross_window.h"

#include "desktop/cross/course_strip.h"
#include "desktop/cross/cross_actions.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/results/results_page.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_sound.h"
#include "desktop/film/film_view.h"
#include "desktop/film/tick_strip.h"
#include "desktop/film/time_line.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/field_keys.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "splittaking/annotations/cross_trials.h"
#include "splittaking/video_names.h"
#include "video/health.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

/// A label of one or more lines that explains.
QLabel* quietLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setWordWrap(true);
    return label;
}

} // namespace

CrossWindow::CrossWindow(Workspace& workspace, Autosave autosave)
    : ToolWindow(workspace, &m_document, {"cross", tr("kayak cross"), "kvx"}),
      m_document(workspace, std::move(autosave)),
      m_deck(new FilmDeck(FilmMemory::of(workspace), this)),
      m_sound(new FilmSound(*m_deck, this)),
      m_chooseFiles([this](const QString& title, const QString& filter) {
          return QFileDialog::getOpenFileNames(this, title, m_document.folder(), filter);
      }),
      m_chooseFolder([this](const QString& title) {
          return QFileDialog::getExistingDirectory(this, title, m_document.folder());
      }) {
    auto* whole = new QSplitter;
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->setChildrenCollapsible(false);
    whole->addWidget(makePages());
    whole->addWidget(makeStage());
    whole->setStretchFactor(1, 1);
    shareSizes(*whole, {500, 750});
    rememberSizes(*whole, workspace, "crossParts");
    setCentralWidget(whole);
    m_actions = new CrossActions(*this, workspace);
    connectParts();
    showPageInFront();
}

CrossWindow::~CrossWindow() {
    m_tabs->disconnect(this); // its pages go one by one
    m_deck->disconnect(this);
    m_document.disconnect(this);
}

QWidget* CrossWindow::makePages() {
    const CrossDesk desk{m_document, *m_deck, workspace()};
    m_course = new CourseStrip(m_document);
    m_trials = new TrialPage(desk);
    m_heats = new HeatPage(desk);
    m_results = new ResultsPage(desk);
    m_tabs = new QTabWidget;
    m_tabs->setObjectName("crossPages");
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setFocusPolicy(Qt::NoFocus);
    m_tabs->tabBar()->setDrawBase(false);
    addPage(*m_trials, tr("Time trials"));
    addPage(*m_heats, tr("Heats"));
    addPage(*m_results, tr("Results"));
    m_told = new QLabel;
    m_told->setObjectName("crossTold");
    m_told->setTextFormat(Qt::PlainText);
    m_told->setWordWrap(true);
    m_told->hide();
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, theme::Spacing, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_course);
    column->addWidget(m_tabs, 1);
    column->addWidget(m_told);
    return box;
}

void CrossWindow::addPage(CrossPage& page, const QString& title) {
    m_tabs->addTab(new ScrollPage(&page), title);
    page.layout()->setContentsMargins(0, theme::Spacing, 0, 0);
    const auto ifInFront = [this, &page](auto act) {
        return [this, &page, act] {
            if (&this->page() == &page)
                act();
        };
    };
    connect(&page, &CrossPage::filmChanged, this, ifInFront([this] { showFilm(); }));
    connect(&page, &CrossPage::marksChanged, this, ifInFront([this] { showMarks(); }));
    connect(&page, &CrossPage::flashed, this, [this](const QString& text) { m_view->flash(text); });
    connect(&page, &CrossPage::refused, this, &CrossWindow::refuse);
    connect(&page, &CrossPage::told, this, [this](const QString& text) {
        m_isPressed && !text.isEmpty() ? refuse(text) : tell(text);
    });
}

QWidget* CrossWindow::makeStage() {
    m_view = new FilmView(*m_deck, 0);
    m_state = new QLabel;
    m_state->setObjectName("crossState");
    m_health = quietLabel("crossHealth");
    m_line = new TimeLine(*m_deck);
    m_ticks = new TickStrip(*m_line);
    auto* row = new QHBoxLayout;
    row->addWidget(m_health, 1);
    row->addWidget(m_state, 0, Qt::AlignRight | Qt::AlignTop);
    m_stage = new QWidget;
    auto* column = new QVBoxLayout(m_stage);
    column->setContentsMargins(theme::Spacing, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_view, 1);
    column->addLayout(row);
    column->addWidget(m_line);
    column->addWidget(m_ticks);
    return m_stage;
}

void CrossWindow::connectParts() {
    new FieldKeys(*this, [this] { page().setFocus(); }); // the window owns it
    connect(&m_document, &TakingDocument::changed, this, &CrossWindow::showDocument);
    connect(&m_document.undoStack(), &QUndoStack::cleanChanged, this,
            [this] { setWindowModified(m_document.isDirty()); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &CrossWindow::showPageInFront);
    connect(m_deck, &FilmDeck::frameShown, this, [this] { page().showFrame(); });
    connect(m_deck, &FilmDeck::stateChanged, this, &CrossWindow::showState);
    connect(m_deck, &FilmDeck::indexChanged, this, &CrossWindow::showHealth);
    connect(m_view, &FilmView::answered, this, &CrossWindow::findFilms);
    connect(m_line, &TimeLine::markClicked, this, &CrossWindow::goToMark);
    connect(m_line, &TimeLine::markDropped, this, &CrossWindow::dropMark);
    connect(m_ticks, &TickStrip::markClicked, this, &CrossWindow::goToMark);
    const auto follow = [ticks = m_ticks] { ticks->update(); };
    connect(m_deck, &FilmDeck::indexChanged, m_ticks, follow);
    connect(m_deck, &FilmDeck::stateChanged, m_ticks, follow);
    connect(m_trials, &TrialPage::filmWanted, this, &CrossWindow::chooseFilm);
    connect(m_heats, &HeatPage::filmWanted, this, &CrossWindow::chooseFilm);
    connect(m_trials, &TrialPage::heatsMade, this, [this] { showPage(Page::Heats); });
    connect(m_results, &ResultsPage::heatWanted, this, [this](std::size_t heat) {
        showPage(Page::Heats);
        m_heats->selectHeat(heat);
    });
}

bool CrossWindow::open(const QString& path) {
    const bool isFolder = QFileInfo(path).isDir();
    if (isFolder ? !m_document.openFolder(path, this) : !m_document.openFile(path, this))
        return false;
    if (isFolder && !QFile::exists(m_document.path()))
        takeFolder();
    const auto& cross = m_document.cross();
    if (cross.timetrials.empty() && !cross.eliphase.empty())
        showPage(Page::Heats);
    if (cross.crossinfo.gates.empty())
        m_course->setFocus();
    else
        page().setFocus();
    return true;
}

/// A new race on a folder of films: they are time trials and no runs.
void CrossWindow::takeFolder() {
    QStringList films;
    for (int run = 0; run < m_document.runCount(); ++run)
        films.append(QString::fromStdString(m_document.run(run).videoname.front()));
    if (films.isEmpty())
        return;
    m_document.undoStack().beginMacro(tr("films of the folder"));
    while (m_document.runCount() > 0)
        m_document.removeRun(m_document.runCount() - 1);
    m_trials->addFilms(films);
    m_document.undoStack().endMacro();
}

CrossPage& CrossWindow::page() const {
    return *static_cast<CrossPage*>(static_cast<ScrollPage*>(m_tabs->currentWidget())->widget());
}

void CrossWindow::showPage(Page page) {
    m_tabs->setCurrentIndex(static_cast<int>(page));
}

void CrossWindow::showPageInFront() {
    m_deck->finishPresses();
    if (m_front && m_front != &page())
        m_front->commit();
    m_front = &page();
    tell({});
    m_stage->setVisible(&page() != static_cast<CrossPage*>(m_results));
    page().refresh();
    showFilm();
    showMarks();
    page().setFocus();
    emit pageChanged();
}

void CrossWindow::showDocument() {
    m_course->refresh();
    page().refresh();
    showFilm();
    showMarks();
}

void CrossWindow::tell(const QString& text) {
    m_told->setText(text);
    m_told->setVisible(!text.isEmpty());
}

/// A film that is open already goes on.
void CrossWindow::showFilm() {
    const QString name = page().film();
    const QString film = m_document.pathOf(name.toStdString());
    const bool isThere = QFileInfo(film).isFile();
    const QStringList films = isThere ? QStringList(film) : QStringList();
    if (films != m_deck->films()) {
        m_health->clear();
        m_view->setMessage({});
        rememberFilmPlace();
        m_deck->open(films);
        const auto marks = page().marks();
        const auto left = m_places.find(film);
        if (isThere && left != m_places.end())
            m_deck->seek(left->second);
        else if (isThere && !marks.empty() && workspace().preferences().boolean("startinCMTime"))
            m_deck->seek(marks.front().stamp);
    }
    if (isThere)
        return;
    const bool isNothing = &page() == static_cast<CrossPage*>(m_trials) && !m_trials->trial();
    if (isNothing)
        m_view->setMessage(tr("Import films with Ctrl+I, or drop them here: each becomes a time "
                              "trial."));
    else if (name.isEmpty())
        m_view->setMessage(tr("No film yet. Ctrl+Shift+I chooses the film of what is selected; "
                              "films can be dropped here too."));
    else
        m_view->setQuestion(tr("%1 is not in the folder of the split file. Ctrl+Shift+I chooses "
                               "another film.")
                                .arg(name),
                            tr("Where are the films now?…"));
}

void CrossWindow::rememberFilmPlace() {
    const auto meant = m_deck->meant();
    if (!meant.empty())
        m_places.insert_or_assign(m_deck->films().front(), meant.front());
}

/// Whoever looks at the film hears and sees that a key did nothing.
void CrossWindow::refuse(const QString& why) {
    tell(why);
    m_view->refuse(why);
}

void CrossWindow::showMarks() {
    std::vector<LineMark> named = page().marks();
    std::vector<LineMark> unnamed;
    const auto selected = page().selectedMark();
    std::erase_if(named, [&](const LineMark& mark) {
        if (mark.label.isEmpty())
            unnamed.push_back(mark);
        return mark.label.isEmpty();
    });
    const auto place = std::ranges::find(named, selected, &LineMark::number) - named.begin();
    m_line->setMarks(named);
    m_line->setSelected(std::cmp_less(place, named.size())
                            ? std::optional(static_cast<std::size_t>(place))
                            : std::nullopt);
    m_ticks->setVisible(!unnamed.empty() && m_deck->cameras() > 0);
    m_ticks->setMarks(std::move(unnamed), selected);
    page().showFrame();
}

void CrossWindow::showState() {
    const QString rate = QStringLiteral("×") + QString::number(m_deck->rate());
    m_state->setText(m_deck->cameras() == 0 ? QString()
                     : m_deck->isPlaying()  ? tr("Playing %1").arg(rate)
                                            : tr("Paused, %1").arg(rate));
}

void CrossWindow::showHealth() {
    QStringList notes;
    const auto index = m_deck->index(0);
    if (index && index->isComplete())
        for (const HealthNote& note : checkHealth(*index))
            notes.append(QString::fromStdString(note.text));
    m_health->setText(notes.join('\n'));
}

bool CrossWindow::takePending() {
    m_deck->finishPresses();
    page().commit();
    return m_course->commit();
}

void CrossWindow::takeFiles(const QStringList& files) {
    QStringList films;
    QStringList others;
    for (const QString& file : files)
        (isVideoFile(QFileInfo(file).fileName().toStdString()) ? films : others).append(file);
    if (const QStringList names = copied(films); !names.isEmpty()) {
        if (&page() == static_cast<CrossPage*>(m_trials))
            m_trials->addFilms(names);
        else
            page().setFilm(names.front());
    }
    if (!others.isEmpty())
        emit openRequested(others);
}

} // namespace kavela::desktop
