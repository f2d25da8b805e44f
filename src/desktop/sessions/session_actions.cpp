#include "desktop/sessions/session_actions.h"

#include "common/text.h"
#include "desktop/motion/mount_names.h"
#include "desktop/sessions/course_map.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_edits.h"
#include "desktop/sessions/session_exports.h"
#include "desktop/sessions/session_imports.h"
#include "desktop/sessions/session_marks.h"
#include "desktop/sessions/session_view.h"
#include "desktop/sessions/session_window.h"

#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <array>

namespace kavela::desktop {

namespace {

constexpr double MarkStep = 0.1; // s

QString tr(const char* text) {
    return SessionWindow::tr(text);
}

template <class Act>
QAction* add(QMenu& menu, SessionWindow& window, const QString& title, QKeyCombination keys,
             Act act) {
    return menu.addAction(title, QKeySequence(keys), &window, act);
}

template <class Act>
QAction* add(QMenu& menu, SessionWindow& window, const QString& title, Act act) {
    return menu.addAction(title, &window, act);
}

/// An action that can be done only while something is so.
template <class Condition>
void enableWhile(QMenu& menu, QAction* action, Condition condition) {
    QObject::connect(&menu, &QMenu::aboutToShow, action,
                     [action, condition] { action->setEnabled(condition()); });
    QObject::connect(&menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); });
}

void fillFileMenu(SessionWindow& window, QMenu& menu) {
    add(menu, window, tr("&Import .kvb file"), Qt::CTRL | Qt::Key_I,
        [&window] { window.askForRecording(); });
    add(menu, window, tr("Import .s&bm file"), Qt::CTRL | Qt::SHIFT | Qt::Key_I,
        [&window] { window.askForSession(); });
    add(menu, window, tr("Import from a &watch or logger…"),
        [&window] { window.imports().askForImports(); });
    enableWhile(menu,
                add(menu, window, tr("Move the trac&k of the watch in time…"),
                    [&window] { window.imports().moveTrack(); }),
                [&window] { return window.imports().hasTrack(); });
    add(menu, window, tr("Import &power-meter data…"),
        [&window] { window.imports().askForPowerMeter(); });
    QAction* const raw = add(menu, window, tr("Save the edited .&kvb file"),
                             [&window] { window.askAndSaveRecording(); });
    enableWhile(menu, raw, [&window] { return window.document().value().recording != nullptr; });
    menu.addSeparator();
    add(menu, window, tr("&Export the strokes…"), Qt::CTRL | Qt::Key_E,
        [&window] { window.exports().askAndExport(SessionTables::StrokePage); });
    add(menu, window, tr("Export the &turns…"), Qt::CTRL | Qt::SHIFT | Qt::Key_E,
        [&window] { window.exports().askAndExport(SessionTables::TurnPage); });
    add(menu, window, tr("Export the se&gments…"),
        [&window] { window.exports().askAndExport(SessionTables::SegmentPage); });
    add(menu, window, tr("Export the values per &distance…"),
        [&window] { window.exports().askAndExport(SessionTables::MetersPage); });
}

/// Which side of the phone points to the bow. Also offered where it is not known.
void addMounts(SessionWindow& window, QMenu& menu) {
    QMenu* const mounts = menu.addMenu(tr("Mount of the p&hone"));
    const QStringList names = mountNames();
    for (int i = -1; i < names.size(); ++i) {
        const auto mount = i < 0 ? std::nullopt : std::optional(static_cast<Mount>(i));
        QAction* const action = mounts->addAction(i < 0 ? tr("Found from the position") : names[i]);
        action->setCheckable(true);
        QObject::connect(mounts, &QMenu::aboutToShow, action, [action, &window, mount] {
            action->setChecked(window.document().value().mount == mount);
        });
        QObject::connect(action, &QAction::triggered, &window,
                         [&window, mount] { window.edits().nameMount(mount); });
    }
    enableWhile(menu, mounts->menuAction(),
                [&window] { return window.document().value().recording != nullptr; });
    window.view().setMountMenu(mounts);
}

void fillEditMenu(SessionWindow& window, QMenu& menu) {
    add(menu, window, tr("Session &information…"), Qt::CTRL | Qt::Key_D,
        [&window] { window.edits().editInformation(); });
    QAction* const again = add(menu, window, tr("&Analyse the recording again"), Qt::Key_F5,
                               [&window] { window.edits().analyseAgain(); });
    enableWhile(menu, again, [&window] { return window.document().value().recording != nullptr; });
    addMounts(window, menu);
    menu.addSeparator();
    const auto isSelected = [&window] { return window.view().selection().has_value(); };
    enableWhile(menu,
                add(menu, window, tr("&Keep the selected stretch"), Qt::CTRL | Qt::Key_T,
                    [&window] { window.edits().keepSelection(); }),
                isSelected);
    enableWhile(menu,
                add(menu, window, tr("Remove the selected &stretch"),
                    Qt::CTRL | Qt::SHIFT | Qt::Key_T,
                    [&window] { window.edits().removeSelection(); }),
                isSelected);
    add(menu, window, tr("Re&move the selected strokes, turns or mark"), Qt::Key_Delete,
        [&window] { window.removeCurrent(); });
    add(menu, window, tr("Select &nothing"), Qt::Key_Escape,
        [&window] { window.view().select(std::nullopt); });
}

void makeSegmentsMenu(SessionWindow& window) {
    QMenu& menu = *window.menuBar()->addMenu(tr("&Segments"));
    add(menu, window, tr("&Mark here"), Qt::Key_M, [&window] { window.marks().mark(); });
    add(menu, window, tr("Mo&ve the nearest mark here"), Qt::SHIFT | Qt::Key_M,
        [&window] { window.marks().moveNearestHere(); });
    add(menu, window, tr("Nearest mark &earlier"), Qt::ALT | Qt::Key_Left,
        [&window] { window.marks().moveNearest(-MarkStep); });
    add(menu, window, tr("Nearest mark &later"), Qt::ALT | Qt::Key_Right,
        [&window] { window.marks().moveNearest(MarkStep); });
    add(menu, window, tr("&Remove the nearest mark"), Qt::SHIFT | Qt::Key_Delete,
        [&window] { window.marks().removeNearest(); });
    add(menu, window, tr("Remove &all marks"), [&window] { window.marks().removeAll(); });
    menu.addSeparator();
    add(menu, window, tr("&Previous mark"), Qt::CTRL | Qt::Key_Left,
        [&window] { window.marks().goTo(-1); });
    add(menu, window, tr("&Next mark"), Qt::CTRL | Qt::Key_Right,
        [&window] { window.marks().goTo(1); });
    menu.addSeparator();
    add(menu, window, tr("&Save the segments"), Qt::CTRL | Qt::Key_M,
        [&window] { window.saveSegments(); });
}

void makeReplayMenu(SessionWindow& window) {
    QMenu& menu = *window.menuBar()->addMenu(tr("&Replay"));
    Replay* const replay = &window.replay();
    const auto jump = [&](const char* title, QKeyCombination keys, double seconds) {
        add(menu, window, tr(title), keys,
            [replay, seconds] { replay->setMoment(replay->moment() + seconds); });
    };
    add(menu, window, tr("&Play, pause"), Qt::Key_Space,
        [replay] { replay->setPlaying(!replay->isPlaying()); });
    add(menu, window, tr("&Slower"), Qt::Key_BracketLeft, [replay] { replay->changeSpeed(-1); });
    add(menu, window, tr("&Faster"), Qt::Key_BracketRight, [replay] { replay->changeSpeed(1); });
    add(menu, window, tr("&Real time"), Qt::Key_Backspace, [replay] { replay->setSpeed(1); });
    menu.addSeparator();
    add(menu, window, tr("P&revious stroke"), Qt::Key_Left,
        [&window] { window.view().goToStroke(-1); });
    add(menu, window, tr("&Next stroke"), Qt::Key_Right,
        [&window] { window.view().goToStroke(1); });
    jump("One second back", Qt::SHIFT | Qt::Key_Left, -1);
    jump("One second forward", Qt::SHIFT | Qt::Key_Right, 1);
    jump("Ten seconds back", Qt::Key_PageUp, -10);
    jump("Ten seconds forward", Qt::Key_PageDown, 10);
    add(menu, window, tr("&Start"), Qt::Key_Home, [replay] { replay->setMoment(replay->from()); });
    add(menu, window, tr("&End"), Qt::Key_End, [replay] { replay->setMoment(replay->to()); });
}

void addMeasures(SessionWindow& window, QMenu& menu) {
    constexpr std::array Measures{
        SessionMeasure::StrokeRate, SessionMeasure::Force, SessionMeasure::Impulse,
        SessionMeasure::Power,      SessionMeasure::Speed, SessionMeasure::HeartRate,
        SessionMeasure::Phases,     SessionMeasure::Roll,  SessionMeasure::Pitch};
    QMenu* const charts = menu.addMenu(tr("&Charts"));
    for (const SessionMeasure measure : Measures) {
        QAction* const action = charts->addAction(SessionCharts::nameOf(measure));
        action->setCheckable(true);
        QObject::connect(charts, &QMenu::aboutToShow, action, [action, &window, measure] {
            action->setChecked(std::ranges::count(window.view().charts().measures(), measure) > 0);
        });
        QObject::connect(action, &QAction::triggered, &window, [&window, measure](bool on) {
            std::vector<SessionMeasure> measures = window.view().charts().measures();
            std::erase(measures, measure);
            if (on)
                measures.push_back(measure);
            window.view().chooseMeasures(measures);
        });
    }
}

void makeViewMenu(SessionWindow& window) {
    QMenu& menu = *window.menuBar()->addMenu(tr("&View"));
    addMeasures(window, menu);
    add(menu, window, tr("&Zoom to the selected stretch"), Qt::Key_Z,
        [&window] { window.view().zoomToSelection(); });
    add(menu, window, tr("&Fit"), Qt::CTRL | Qt::Key_0, [&window] {
        window.view().charts().fit();
        window.view().map().fit();
    });
    menu.addSeparator();
    constexpr std::array Pages{"&Strokes", "&Turns", KAVELA_TEXT("Se&gments"), "&Distance",
                               KAVELA_TEXT("&Left and right")};
    for (std::size_t page = 0; page < Pages.size(); ++page)
        add(menu, window, tr(Pages[page]), QKeyCombination(Qt::CTRL, Qt::Key(Qt::Key_1 + page)),
            [&window, page] { window.view().tables().setCurrentIndex(static_cast<int>(page)); });
}

} // namespace

void makeSessionMenus(SessionWindow& window, QMenu& file, QMenu& edit) {
    fillFileMenu(window, file);
    fillEditMenu(window, edit);
    makeSegmentsMenu(window);
    makeReplayMenu(window);
    makeViewMenu(window);
}

} // namespace kavela::desktop
