#include "desktop/taking/taking_actions.h"

#include "desktop/compose/compare_request.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/mark_actions.h"
#include "desktop/film/play_menu.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/day/day_actions.h"
#include "desktop/taking/notes/note_actions.h"
#include "desktop/taking/official_dialog.h"
#include "desktop/taking/run_films.h"
#include "desktop/taking/split_mode.h"
#include "desktop/taking/taking_reports.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/run_timing.h"

#include <QAction>
#include <QFileDialog>
#include <QMenuBar>

namespace kavela::desktop {

namespace {

QKeySequence keys(QKeyCombination combination) {
    return QKeySequence(combination);
}

} // namespace

TakingActions::TakingActions(TakingWindow& window, Workspace& workspace)
    : QObject(&window), m_window(window), m_workspace(workspace) {
    makeFileMenu();
    makeEditMenu();
    makeMarkMenu();
    makePenaltyMenu();
    addNoteMenu(window, window.notes());
    addDayMenu(window, window.day(), window.dayPanel(), window.dayShown());
    new PlayMenu(window, window.deck(), window.stage().sound(), workspace); // the window owns it
    makeCameraMenu();
    window.finishMenus([this] { return athletes(); });
}

QAction* TakingActions::add(QMenu& menu, const QString& text, const QList<QKeySequence>& shortcuts,
                            Act act) {
    QAction* action = menu.addAction(text);
    action->setShortcuts(shortcuts);
    connect(action, &QAction::triggered, &m_window, std::move(act));
    return action;
}

void TakingActions::makeFileMenu() {
    QMenu* menu = m_window.makeFileMenu(
        {tr("&Open a folder of videos…"), [this] { chooseFolder(); }, tr("&Save data"), false});
    add(*menu, tr("Import &video…"), {keys(Qt::CTRL | Qt::Key_I)},
        [this] { m_window.films().importFilms(); });
    add(*menu, tr("Import split &file…"), {}, [this] { m_window.exchange().importSplitFile(); });
    add(*menu, tr("Import official &results…"), {},
        [this] { m_window.exchange().importResults(); });
    add(*menu, tr("Compare &with official results…"), {keys(Qt::CTRL | Qt::Key_U)},
        [this] { showOfficialDifferences(m_window, m_workspace); });
    m_ofRun.push_back(add(*menu, tr("&Recording of the run…"), {keys(Qt::CTRL | Qt::Key_B)},
                          [this] { m_window.openRecording(); }));
    m_ofRun.push_back(add(*menu, tr("Run s&heet: preview, PDF, print…"), {QKeySequence::Print},
                          [this] { previewRunSheet(m_window, m_workspace); }));
    menu->addSeparator();
    add(*menu, tr("&Export data…"), {keys(Qt::CTRL | Qt::Key_E)},
        [this] { m_window.exchange().exportData(); });
    add(*menu, tr("Show in the race &analyzer"), {keys(Qt::CTRL | Qt::Key_R)}, [this] {
        if (m_window.commit()) // what is typed is shown too; nothing is saved
            emit m_window.analysisRequested();
    });
    m_ofRun.push_back(add(*menu, tr("Compare fil&ms of the run…"),
                          {keys(Qt::CTRL | Qt::SHIFT | Qt::Key_F)}, [this] {
                              m_window.whenSaved([this] {
                                  emit m_window.compareRequested(
                                      {.runs = {{m_window.document().path(),
                                                 static_cast<std::size_t>(m_window.currentRun())}},
                                       .films = {}});
                              });
                          }));
    add(*menu, tr("Kayak &cross of this race"), {keys(Qt::CTRL | Qt::SHIFT | Qt::Key_R)}, [this] {
        m_window.whenSaved([this] { emit m_window.crossRequested(m_window.document().path()); });
    });
}

void TakingActions::chooseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(
        &m_window, tr("Open a folder of videos"), m_window.document().folder());
    if (!folder.isEmpty())
        emit m_window.openRequested({folder});
}

void TakingActions::makeEditMenu() {
    QMenu* menu = m_window.makeEditMenu();
    add(*menu, tr("Race and &course…"), {keys(Qt::CTRL | Qt::Key_G)},
        [this] { m_window.exchange().setUpCourse(); });
    add(*menu, tr("&Draw the course…"), {keys(Qt::CTRL | Qt::SHIFT | Qt::Key_G)},
        [this] { m_window.exchange().drawCourse(); });
    add(*menu, tr("Names of the &films…"), {}, [this] { m_window.exchange().readFilmNames(); });
    add(*menu, tr("&Previous run"), {keys(Qt::Key_Up)}, [this] {
        if (!stepNumber(1))
            m_window.stepRun(-1);
    });
    add(*menu, tr("&Next run"), {keys(Qt::Key_Down)}, [this] {
        if (!stepNumber(-1))
            m_window.stepRun(1);
    });
    add(*menu, tr("&Find an athlete"), {QKeySequence::Find}, [this] { m_window.findRun(); });
    add(*menu, tr("Move the run up"), {keys(Qt::CTRL | Qt::SHIFT | Qt::Key_Up)},
        [this] { m_window.moveRun(-1); });
    add(*menu, tr("Move the run down"), {keys(Qt::CTRL | Qt::SHIFT | Qt::Key_Down)},
        [this] { m_window.moveRun(1); });
    m_ofRun.push_back(
        add(*menu, tr("Remove the run from the list"), {}, [this] { m_window.removeRun(); }));
    menu->addSeparator();
    add(*menu, tr("Delete &all data…"), {}, [this] { m_window.reset(); });
}

void TakingActions::makeMarkMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Mark"));
    FilmStage& stage = m_window.stage();
    m_ofRun.push_back(addMarkActions(*menu, stage, tr("&Mark the split")));
    m_ofRun.push_back(add(*menu, tr("To where the next split is e&xpected"), {keys(Qt::Key_E)},
                          [this] { m_window.splits().goToExpected(); }));
    add(*menu, tr("To the start mark"), {keys(Qt::CTRL | Qt::Key_Home)},
        [&stage] { stage.goToMark(0); });
    for (int split = 1; split <= 9; ++split)
        add(*menu, tr("To split &%1").arg(split), {keys(static_cast<Qt::Key>(Qt::Key_0 + split))},
            [&stage, split] { stage.pressNumber(split); });
}

void TakingActions::makePenaltyMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Gates"));
    add(*menu, tr("&Touch: 2 s"), {keys(Qt::Key_T)},
        [this] { m_window.setPenalty(GatePenalty::Touch); });
    add(*menu, tr("Missed gate: &50 s"), {keys(Qt::Key_F)},
        [this] { m_window.setPenalty(GatePenalty::MissedGate); });
    add(*menu, tr("&Clean"), {keys(Qt::Key_0)}, [this] { m_window.setPenalty(GatePenalty::None); });
    menu->addSeparator();
    addGateActions(*menu, m_window.stage(), tr("&Next gate"), tr("&Previous gate"));
}

void TakingActions::makeCameraMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Cameras"));
    FilmDeck& deck = m_window.deck();
    m_ofRun.push_back(add(*menu, tr("&Add another camera of this run…"), {},
                          [this] { m_window.films().addCamera(); }));
    m_ofRun.push_back(
        add(*menu, tr("&Where are the films now?…"), {}, [this] { m_window.films().find(); }));
    m_ofRun.push_back(add(*menu, tr("Sl&it picture of the last camera"),
                          {keys(Qt::CTRL | Qt::SHIFT | Qt::Key_L)}, [this] { showSlit(); }));
    add(*menu, tr("Last camera one frame back"),
        {keys(Qt::ALT | Qt::Key_PageUp), keys(Qt::CTRL | Qt::ALT | Qt::Key_Left)}, [&deck] {
            if (deck.views() > 1)
                deck.stepAlone(deck.views() - 1, -1);
        });
    add(*menu, tr("Last camera one frame forward"),
        {keys(Qt::ALT | Qt::Key_PageDown), keys(Qt::CTRL | Qt::ALT | Qt::Key_Right)}, [&deck] {
            if (deck.views() > 1)
                deck.stepAlone(deck.views() - 1, 1);
        });
    add(*menu, tr("&Larger: without the table, the film alone, all again"), {keys(Qt::Key_F9)},
        [this] { m_window.makeFilmLarger(); });
    add(*menu, tr("The frames shown are &one moment"), {keys(Qt::CTRL | Qt::Key_L)},
        [&deck] { deck.alignCameras(); });
}

/// A fixed camera stands behind the run's own, so that the last one is meant.
void TakingActions::showSlit() {
    const FilmDeck& deck = m_window.deck();
    const QStringList films = deck.films() + deck.filmsBeside();
    if (films.isEmpty())
        m_window.stage().refuse(tr("There is no film here that has a slit picture."));
    else
        emit m_window.slitRequested(films.constLast());
}

void TakingActions::refresh() {
    const bool hasRun = m_window.document().runCount() > 0;
    for (QAction* action : m_ofRun)
        action->setEnabled(hasRun);
}

Commands TakingActions::athletes() const {
    Commands commands;
    for (int run = 0; run < m_window.document().runCount(); ++run) {
        const athletedata031& record = m_window.document().run(run);
        QStringList where{QString::fromStdString(record.cat), QString::fromStdString(record.phase)};
        where.removeAll(QString());
        commands.push_back({QString::fromStdString(crewText(record.names)), where.join(" · "),
                            QString(), [this, run] { m_window.selectRun(run); }});
    }
    return commands;
}

} // namespace kavela::desktop
