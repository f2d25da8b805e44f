#include "desktop/cross/cross_window.h"

#include "desktop/cross/course_strip.h"
#include "desktop/cross/cross_actions.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/results/results_page.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_stage.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "splittaking/annotations/cross_trials.h"
#include "splittaking/video_names.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kavela::desktop {

CrossWindow::CrossWindow(Workspace& workspace, Autosave autosave)
    : ToolWindow(workspace, &m_document, {"cross", tr("kayak cross"), "kvx"}),
      m_document(workspace, std::move(autosave)),
      m_files(m_document, workspace, *this),
      m_stage(new FilmStage(workspace,
                            {.state = "crossState", .health = "crossHealth", .isQuiet = true})) {
    auto* whole = new QSplitter;
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->setChildrenCollapsible(false);
    whole->addWidget(makePages());
    m_stage->layout()->setContentsMargins(theme::Spacing, 0, 0, 0);
    whole->addWidget(m_stage);
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
    m_stage->silence();
    m_document.disconnect(this);
}

FilmDeck& CrossWindow::deck() const {
    return m_stage->deck();
}

QWidget* CrossWindow::makePages() {
    const CrossDesk desk{m_document, deck(), workspace()};
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
            if (isInFront(page))
                act();
        };
    };
    connect(&page, &CrossPage::filmChanged, this, ifInFront([this] { showFilm(); }));
    connect(&page, &CrossPage::marksChanged, this, ifInFront([this] { showMarks(); }));
    connect(&page, &CrossPage::flashed, m_stage, &FilmStage::flash);
    connect(&page, &CrossPage::refused, this, &CrossWindow::refuse);
    connect(&page, &CrossPage::told, this, [this, &page](const QString& text) {
        page.isPressed() && !text.isEmpty() ? refuse(text) : tell(text);
    });
}

void CrossWindow::connectParts() {
    m_stage->keepKeys(*this, [this] { page().setFocus(); });
    connect(&m_document, &TakingDocument::changed, this, &CrossWindow::showDocument);
    connect(&m_document.undoStack(), &QUndoStack::cleanChanged, this,
            [this] { setWindowModified(m_document.isDirty()); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &CrossWindow::showPageInFront);
    connect(&deck(), &FilmDeck::frameShown, this, [this] { page().showFrame(); });
    connect(m_stage, &FilmStage::searchWanted, this, &CrossWindow::findFilms);
    connect(m_trials, &TrialPage::filmWanted, this, &CrossWindow::chooseFilm);
    connect(m_heats, &HeatPage::filmWanted, this, &CrossWindow::chooseFilm);
    connect(m_trials, &TrialPage::heatsMade, this, [this] { showPage(Page::Heats); });
    connect(m_results, &ResultsPage::heatWanted, this, [this](std::size_t heat) {
        showPage(Page::Heats);
        m_heats->selectHeat(heat);
    });
}

FileReading CrossWindow::readingOf(const QString& path) {
    return followedBy(m_document.reading(path, this),
                      [this, isFolder = QFileInfo(path).isDir()] { beginWork(isFolder); });
}

void CrossWindow::beginWork(bool isFolder) {
    if (isFolder && !QFile::exists(m_document.path()))
        takeFolder();
    const auto& cross = m_document.cross();
    if (cross.timetrials.empty() && !cross.eliphase.empty())
        showPage(Page::Heats);
    if (cross.crossinfo.gates.empty())
        m_course->setFocus();
    else
        page().setFocus();
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
    deck().finishPresses();
    if (m_front && m_front != &page())
        m_front->commit();
    m_front = &page();
    m_stage->setModes({m_front});
    tell({});
    m_stage->setVisible(!isInFront(*m_results));
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
    if (films != deck().films()) {
        m_stage->rememberPlace();
        m_stage->showFilms({.films = films, .key = film});
        const auto marks = page().marks();
        const bool isWanted = !marks.empty() && workspace().preferences().boolean("startinCMTime");
        m_stage->goToPlace(isWanted ? std::optional(marks.front().stamp) : std::nullopt);
    }
    if (isThere)
        return;
    if (isInFront(*m_trials) && !m_trials->trial())
        m_stage->setMessage(tr("Import films with Ctrl+I, or drop them here: each becomes a time "
                               "trial."));
    else if (name.isEmpty())
        m_stage->setMessage(tr("No film yet. Ctrl+Shift+I chooses the film of what is selected; "
                               "films can be dropped here too."));
    else
        m_stage->askForFilm(0, tr("%1 is not in the folder of the split file. Ctrl+Shift+I chooses "
                                  "another film.")
                                   .arg(name));
}

/// Whoever looks at the film hears and sees that a key did nothing.
void CrossWindow::refuse(const QString& why) {
    tell(why);
    m_stage->refuse(why);
}

void CrossWindow::showMarks() {
    m_stage->showMarks();
    page().showFrame();
}

bool CrossWindow::takePending() {
    deck().finishPresses();
    page().commit();
    return m_course->commit();
}

void CrossWindow::takeFiles(const QStringList& files) {
    QStringList films;
    QStringList others;
    for (const QString& file : files)
        (isVideoFile(QFileInfo(file).fileName().toStdString()) ? films : others).append(file);
    m_files.copy(films, [this](const QStringList& names) {
        if (isInFront(*m_trials))
            m_trials->addFilms(names);
        else
            page().setFilm(names.front());
    });
    if (!others.isEmpty())
        emit openRequested(others);
}

void CrossWindow::findFilms() {
    const auto missing = m_files.search([] { return true; });
    if (!missing)
        return;
    showDocument();
    if (!missing->isEmpty())
        refuse(tr("Not found: %1.").arg(missing->join(", ")));
}

void CrossWindow::importFilms() {
    m_files.copy(m_files.chooseFilms(tr("Import films of time trials")),
                 [this](const QStringList& names) {
                     showPage(Page::Trials);
                     m_trials->addFilms(names);
                 });
}

void CrossWindow::chooseFilm() {
    if (isInFront(*m_trials) && !m_trials->trial())
        return;
    const QStringList chosen =
        m_files.chooseFilms(tr("Choose the film of the trial or heat")).mid(0, 1);
    m_files.copy(chosen, [this](const QStringList& names) { page().setFilm(names.front()); });
}

} // namespace kavela::desktop
