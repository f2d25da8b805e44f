#include "desktop/cross/cross_window.h"
#include "desktop/desktop.h"
#include "desktop/film/film_stage.h"
#include "desktop/race/race_view.h"
#include "desktop/race/race_window.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/window_place.h"
#include "desktop/splitfile/taking_files.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/run_timing.h"

#include <QDir>
#include <QEventLoopLocker>
#include <QFileDialog>
#include <QFileInfo>
#include <QMetaObject>

#include <algorithm>
#include <memory>
#include <utility>

/// The tools that edit a split file on its films: split taking and kayak cross.
namespace kavela::desktop {

namespace {

/// The split file that a path stands for: of a folder of films the one in it, or the one that will
/// be made there.
QString splitFileOf(const QString& path) {
    if (!QFileInfo(path).isDir())
        return canonicalPath(path);
    const QString folder = QDir(path).absolutePath();
    const QString file = splitFileIn(folder);
    return canonicalPath(file.isEmpty() ? folder + '/' + QFileInfo(folder).fileName() + ".kvx"
                                        : file);
}

/// What opens a document that may never have been saved: a new one stands for its folder.
QString openable(const QString& path) {
    const QString folder = QFileInfo(path).absolutePath();
    const bool isNew = !QFileInfo::exists(path) && isSameFile(splitFileOf(folder), path);
    return isNew ? folder : path;
}

/// The window among some that edits the split file; null when none does.
template <class Window>
Window* windowOf(const QList<Window*>& windows, const QString& path) {
    const QString file = splitFileOf(path);
    for (Window* const window : windows)
        if (isSameFile(window->document().path(), file))
            return window;
    return nullptr;
}

/// Where a run of the analyzer stands in split taking, which may have changed since it was saved;
/// -1 when it is gone. It is known by its first film and its crew, or by a film of its own.
int placeOf(const analyzerdata& run, const RaceSet& race, const TakingDocument& document) {
    const auto filmOf = [](const analyzerdata& of) {
        return of.videoname.empty() ? std::string() : of.videoname.front().filename().string();
    };
    const std::string film = filmOf(run);
    const auto hasFilm = [&](int place) {
        return entryOrZero(document.run(place).videoname, 0) == film;
    };
    const auto isIt = [&](int place) {
        return document.run(place).names == run.names && (film.empty() || hasFilm(place));
    };
    const int saved = static_cast<int>(run.athleteInt);
    if (saved < document.runCount() && isIt(saved))
        return saved;
    std::vector<int> ofFilm;
    for (int place = 0; place < document.runCount(); ++place) {
        if (isIt(place))
            return place;
        if (hasFilm(place))
            ofFilm.push_back(place);
    }
    const bool isItsOwn = !film.empty() && std::ranges::count(race.alldata, film, filmOf) == 1;
    return isItsOwn && ofFilm.size() == 1 ? ofFilm.front() : -1;
}

/// The race as an analyzer shows it; null when none does.
const RaceSet* shownRace(const QList<RaceWindow*>& windows, const QString& path) {
    for (const RaceWindow* const window : windows)
        for (const RaceView* const view : window->views())
            if (view->document().path() == path)
                return &view->document().wholeSet();
    return nullptr;
}

} // namespace

/// A film alone stands for the run that it shows, among the films of its folder.
void Desktop::openFilm(const QString& path) {
    TakingWindow* const window = openTaking(QFileInfo(path).absolutePath());
    if (!window)
        return;
    const std::string film = QFileInfo(path).fileName().toStdString();
    const TakingDocument& document = window->document();
    for (int run = 0; run < document.runCount(); ++run)
        if (std::ranges::count(document.run(run).videoname, film) > 0) {
            window->selectRun(run);
            return;
        }
}

TakingWindow* Desktop::openTaking(const QString& path) {
    if (TakingWindow* const open = windowOf(windowsOf<TakingWindow>(), path)) {
        bringToFront(*open);
        return open;
    }
    CrossWindow* const cross = windowOf(windowsOf<CrossWindow>(), path);
    if (!cross)
        return showTaking(path);
    const QEventLoopLocker running; // also between the two windows
    const QString left = cross->document().path();
    return givesWay(*cross, [this, path, left] { (void)showTakingInstead(path, left); })
               ? showTakingInstead(path, left)
               : nullptr;
}

TakingWindow* Desktop::showTakingInstead(const QString& path, const QString& left) {
    TakingWindow* const window = showTaking(openable(path));
    if (!window && !showCross(openable(left)))
        showHome();
    return window;
}

bool Desktop::givesWay(ToolWindow& window, std::function<void()> then) {
    if (window.close())
        return true;
    bringToFront(window);
    if (!window.isClosing())
        return false;
    auto* const wait = new QObject(&window);
    connect(&window, &ToolWindow::stayed, wait, &QObject::deleteLater);
    connect(&window, &ToolWindow::closed, wait,
            [this, then = std::move(then), running = std::make_shared<QEventLoopLocker>()] {
                QMetaObject::invokeMethod(
                    this,
                    [this, then, running] {
                        if (!m_quitting.isLeaving())
                            then();
                    },
                    Qt::QueuedConnection);
            });
    return false;
}

TakingWindow* Desktop::showTaking(const QString& path) {
    auto* window = new TakingWindow(m_workspace, m_autosave);
    if (!window->open(path)) {
        delete window;
        return nullptr;
    }
    connect(window, &TakingWindow::analysisRequested, this,
            [this, window] { showInAnalyzer(window->document()); });
    connect(window, &TakingWindow::crossRequested, this, &Desktop::openCross);
    connect(window, &TakingWindow::openRequested, this, [this](const QStringList& files) {
        for (const QString& file : files)
            (void)openTaking(file);
    });
    show(window);
    return window;
}

/// The race as it is being edited, saved or not, in the window that shows its file already.
void Desktop::showInAnalyzer(const TakingDocument& document) {
    RaceWindow* const shown = windowOfRace(document.path());
    RaceWindow* const window = shown ? shown : makeRaceWindow();
    const auto isIt = [&](const QString& path) { return isSameFile(path, document.path()); };
    const QStringList paths = window->paths();
    const auto known = std::ranges::find_if(paths, isIt);
    window->showRace(document.finished(), known == paths.end() ? document.path() : *known,
                     document.isDirty()
                         ? tr("As it is in split taking now. The file does not hold all of it yet.")
                         : QString());
    if (shown)
        rememberSession();
    else
        show(window);
    bringToFront(*window);
}

CrossWindow* Desktop::openCross(const QString& path) {
    if (CrossWindow* const open = windowOf(windowsOf<CrossWindow>(), path)) {
        bringToFront(*open);
        return open;
    }
    TakingWindow* const taking = windowOf(windowsOf<TakingWindow>(), path);
    if (!taking)
        return showCross(path);
    const QEventLoopLocker running; // also between the two windows
    const QString left = taking->document().path();
    return givesWay(*taking, [this, path, left] { (void)showCrossInstead(path, left); })
               ? showCrossInstead(path, left)
               : nullptr;
}

CrossWindow* Desktop::showCrossInstead(const QString& path, const QString& left) {
    CrossWindow* const window = showCross(openable(path));
    if (!window && !showTaking(openable(left)))
        showHome();
    return window;
}

CrossWindow* Desktop::showCross(const QString& path) {
    auto* window = new CrossWindow(m_workspace, m_autosave);
    if (!window->open(path)) {
        delete window;
        return nullptr;
    }
    connect(window, &CrossWindow::analysisRequested, this,
            [this, window] { showInAnalyzer(window->document()); });
    connect(window, &CrossWindow::takingRequested, this, &Desktop::openTaking);
    connect(window, &CrossWindow::openRequested, this, [this](const QStringList& paths) {
        for (const QString& file : paths) // split files and folders open as crosses
            QFileInfo(file).isDir() || QFileInfo(file).suffix() == "kvx" ? (void)openCross(file)
                                                                         : open(file);
    });
    show(window);
    return window;
}

/// The moment behind a time of the analyzer, in the film it was taken from.
void Desktop::showMoment(const QString& path, int run, std::size_t split) {
    TakingWindow* const window = openTaking(path);
    if (!window)
        return;
    const RaceSet* const race = shownRace(windowsOf<RaceWindow>(), path);
    const auto saved = static_cast<std::size_t>(run);
    if (race && saved < race->alldata.size()) {
        const analyzerdata& wanted = race->alldata[saved];
        run = placeOf(wanted, *race, window->document());
        if (run < 0) {
            m_workspace.showAlert(
                {"", tr("The run of %1 is not in split taking any more: it was removed there, or "
                        "has another crew and film.")
                         .arg(QString::fromStdString(wanted.name))
                         .toStdString()},
                window);
            return;
        }
    }
    window->selectRun(run);
    window->stage().goToMark(split);
}

} // namespace kavela::desktop
