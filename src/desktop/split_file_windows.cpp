#include "desktop/split_file_windows.h"

#include "desktop/analysis_windows.h"
#include "desktop/cross/cross_window.h"
#include "desktop/desktop.h"
#include "desktop/film/film_stage.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_files.h"
#include "desktop/taking/official_dialog.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/run_timing.h"

#include <QDir>
#include <QEventLoopLocker>
#include <QFileInfo>
#include <QMetaObject>

#include <algorithm>
#include <memory>
#include <utility>

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

} // namespace

SplitFileWindows::SplitFileWindows(Desktop& program, Workspace& workspace, const Autosave& autosave,
                                   AnalysisWindows& analysis)
    : m_program(program), m_workspace(workspace), m_autosave(autosave), m_analysis(analysis) {}

/// A film alone stands for the run that it shows: in the split file that has it, else among the
/// films of its folder.
void SplitFileWindows::openFilm(const QString& path, const QString& splitFile) {
    (void)openTaking(splitFile.isEmpty() ? QFileInfo(path).absolutePath() : splitFile,
                     [path](TakingWindow& window) {
                         const std::string film = QFileInfo(path).fileName().toStdString();
                         const TakingDocument& document = window.document();
                         for (int run = 0; run < document.runCount(); ++run)
                             if (std::ranges::count(document.run(run).videoname, film) > 0) {
                                 window.selectRun(run);
                                 return;
                             }
                     });
}

TakingWindow* SplitFileWindows::openTaking(const QString& path, const Then& then) {
    TakingWindow* const open = windowOf(m_program.windowsOf<TakingWindow>(), path);
    CrossWindow* const cross = windowOf(m_program.windowsOf<CrossWindow>(), path);
    if (open)
        bringToFront(*open);
    if (open || !cross)
        return done(open ? open : showTaking(path), then);
    const QEventLoopLocker running; // also between the two windows
    const auto instead = [this, path, left = cross->document().path(), then] {
        return done(showTakingInstead(path, left), then);
    };
    return givesWay(*cross, [instead] { (void)instead(); }) ? instead() : nullptr;
}

TakingWindow* SplitFileWindows::done(TakingWindow* window, const Then& then) {
    if (window && then)
        then(*window);
    return window;
}

/// It may have been asked for twice while the other window was saving.
TakingWindow* SplitFileWindows::showTakingInstead(const QString& path, const QString& left) {
    if (TakingWindow* const open = windowOf(m_program.windowsOf<TakingWindow>(), path))
        return open;
    TakingWindow* const window = showTaking(openable(path));
    if (!window && !showCross(openable(left)))
        m_program.showHome();
    return window;
}

bool SplitFileWindows::givesWay(ToolWindow& window, std::function<void()> then) {
    if (window.close())
        return true;
    bringToFront(window);
    if (!window.isClosing())
        return false;
    auto* const wait = new QObject(&window);
    QObject::connect(&window, &ToolWindow::stayed, wait, &QObject::deleteLater);
    QObject::connect(
        &window, &ToolWindow::closed, wait,
        [this, then = std::move(then), running = std::make_shared<QEventLoopLocker>()] {
            QMetaObject::invokeMethod(
                &m_program,
                [this, then, running] {
                    if (!m_program.isBeingLeft())
                        then();
                },
                Qt::QueuedConnection);
        });
    return false;
}

TakingWindow* SplitFileWindows::showTaking(const QString& path) {
    auto* window = new TakingWindow(m_workspace, m_autosave);
    if (!window->open(path)) {
        delete window;
        return nullptr;
    }
    QObject::connect(window, &TakingWindow::analysisRequested, &m_program,
                     [this, window] { m_analysis.showEdited(window->document()); });
    QObject::connect(window, &TakingWindow::crossRequested, &m_program, &Desktop::openCross);
    QObject::connect(window, &TakingWindow::slitRequested, &m_program,
                     [this, window](const QString& film) { m_program.openSlit(film, window); });
    QObject::connect(window, &TakingWindow::openRequested, &m_program,
                     [this](const QStringList& files) {
                         for (const QString& file : files)
                             (void)openTaking(file);
                     });
    m_program.show(window);
    return window;
}

CrossWindow* SplitFileWindows::openCross(const QString& path) {
    if (CrossWindow* const open = windowOf(m_program.windowsOf<CrossWindow>(), path)) {
        bringToFront(*open);
        return open;
    }
    TakingWindow* const taking = windowOf(m_program.windowsOf<TakingWindow>(), path);
    if (!taking)
        return showCross(path);
    const QEventLoopLocker running; // also between the two windows
    const QString left = taking->document().path();
    return givesWay(*taking, [this, path, left] { (void)showCrossInstead(path, left); })
               ? showCrossInstead(path, left)
               : nullptr;
}

CrossWindow* SplitFileWindows::showCrossInstead(const QString& path, const QString& left) {
    if (CrossWindow* const open = windowOf(m_program.windowsOf<CrossWindow>(), path))
        return open;
    CrossWindow* const window = showCross(openable(path));
    if (!window && !showTaking(openable(left)))
        m_program.showHome();
    return window;
}

CrossWindow* SplitFileWindows::showCross(const QString& path) {
    auto* window = new CrossWindow(m_workspace, m_autosave);
    if (!window->open(path)) {
        delete window;
        return nullptr;
    }
    QObject::connect(window, &CrossWindow::analysisRequested, &m_program,
                     [this, window] { m_analysis.showEdited(window->document()); });
    QObject::connect(window, &CrossWindow::takingRequested, &m_program, &Desktop::openTaking);
    QObject::connect(
        window, &CrossWindow::openRequested, &m_program, [this](const QStringList& paths) {
            for (const QString& file : paths) // these open as crosses
                QFileInfo(file).isDir() || QFileInfo(file).suffix() == "kvx" ? (void)openCross(file)
                                                                             : m_program.open(file);
        });
    m_program.show(window);
    return window;
}

void SplitFileWindows::showRun(const QString& path, std::size_t run, const Then& then) {
    (void)openTaking(path, [this, path, run, then](TakingWindow& window) {
        if (selectRun(window, path, run))
            then(window);
    });
}

bool SplitFileWindows::selectRun(TakingWindow& window, const QString& path, std::size_t run) {
    const RaceSet* const race = m_analysis.shownRace(path);
    int place = static_cast<int>(run);
    QString gone = Desktop::tr("Run %1").arg(run);
    if (race && run < race->alldata.size()) {
        const analyzerdata& wanted = race->alldata[run];
        place = placeOf(wanted, *race, window.document());
        gone = Desktop::tr("The run of %1").arg(QString::fromStdString(wanted.name));
    }
    if (place >= 0 && place < window.document().runCount()) {
        window.selectRun(place);
        return true;
    }
    m_workspace.showAlert(
        {"", Desktop::tr("%1 is not in split taking any more: it was removed there, or has another "
                         "crew and film.")
                 .arg(gone)
                 .toStdString()},
        &window);
    return false;
}

void SplitFileWindows::showMoment(const QString& path, int run, std::size_t split) {
    showRun(path, static_cast<std::size_t>(run),
            [split](TakingWindow& window) { window.stage().goToMark(split); });
}

void SplitFileWindows::openOfficialDifferences(const QString& path) {
    (void)openTaking(
        path, [this](TakingWindow& window) { showOfficialDifferences(window, m_workspace); });
}

void SplitFileWindows::openCourse(const QString& path) {
    (void)openTaking(path, [](TakingWindow& window) { window.exchange().drawCourse(); });
}

void SplitFileWindows::showPlace(const Place& place) {
    showRun(QString::fromStdString(place.file.string()), place.run, [place](TakingWindow& window) {
        if (place.moment)
            window.deck().seek(*place.moment);
        if (place.split) // where the mark was moved since, it is what is meant
            window.stage().goToMark(*place.split);
    });
}

} // namespace kavela::desktop
