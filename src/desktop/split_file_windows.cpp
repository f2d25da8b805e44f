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
#include <QPointer>

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

template <class Window>
void SplitFileWindows::read(Window& window, const QString& path, const Shown<Window>& shown) {
    const QString file = splitFileOf(path);
    m_program.readInto(window, file, {window.kind(), path},
                       [this, &window, file, shown](bool isOpen) {
                           QList<std::function<void()>> asked = m_askedLater.values(file);
                           m_askedLater.remove(file);
                           shown(isOpen ? &window : nullptr);
                           std::ranges::reverse(asked); // the first one comes last there
                           for (const auto& ask : asked)
                               if (isOpen)
                                   ask();
                       });
}

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
    if (isAskedLater(path, [this, path, then] { (void)openTaking(path, then); }))
        return nullptr;
    const auto there = std::make_shared<QPointer<TakingWindow>>();
    const auto shown = [there, then](TakingWindow* window) {
        *there = window;
        if (window && then)
            then(*window);
    };
    CrossWindow* const cross = windowOf(m_program.windowsOf<CrossWindow>(), path);
    if (TakingWindow* const open = windowOf(m_program.windowsOf<TakingWindow>(), path)) {
        bringToFront(*open);
        shown(open);
    } else if (!cross) {
        showTaking(path, shown);
    } else {
        const QEventLoopLocker running; // also between the two windows
        const auto instead = [this, path, left = cross->document().path(), shown] {
            showTakingInstead(path, left, shown);
        };
        if (givesWay(*cross, instead))
            instead();
    }
    return *there;
}

/// It may have been asked for twice while the other window was saving.
void SplitFileWindows::showTakingInstead(const QString& path, const QString& left,
                                         const Shown<TakingWindow>& shown) {
    if (isAskedLater(path, [this, path, left, shown] { showTakingInstead(path, left, shown); }))
        return;
    if (TakingWindow* const open = windowOf(m_program.windowsOf<TakingWindow>(), path)) {
        shown(open);
        return;
    }
    showTaking(openable(path), [this, left, shown](TakingWindow* window) {
        if (!window)
            showCross(openable(left), [this](CrossWindow* back) {
                if (!back)
                    m_program.showHome();
            });
        shown(window);
    });
}

bool SplitFileWindows::isAskedLater(const QString& path, std::function<void()> ask) {
    const QString file = splitFileOf(path);
    if (!m_program.isReading(file))
        return false;
    m_askedLater.insert(file, std::move(ask));
    return true;
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

void SplitFileWindows::showTaking(const QString& path, const Shown<TakingWindow>& shown) {
    auto* window = new TakingWindow(m_workspace, m_autosave);
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
    read(*window, path, shown);
}

CrossWindow* SplitFileWindows::openCross(const QString& path) {
    if (isAskedLater(path, [this, path] { (void)openCross(path); }))
        return nullptr;
    if (CrossWindow* const open = windowOf(m_program.windowsOf<CrossWindow>(), path)) {
        bringToFront(*open);
        return open;
    }
    // The path may be that of a window that goes meanwhile.
    const auto there = std::make_shared<QPointer<CrossWindow>>();
    const auto shown = [there](CrossWindow* window) { *there = window; };
    TakingWindow* const taking = windowOf(m_program.windowsOf<TakingWindow>(), path);
    if (taking) {
        const QEventLoopLocker running; // also between the two windows
        const auto instead = [this, path, left = taking->document().path(), shown] {
            showCrossInstead(path, left, shown);
        };
        if (givesWay(*taking, instead))
            instead();
    } else {
        showCross(path, shown);
    }
    return *there;
}

void SplitFileWindows::showCrossInstead(const QString& path, const QString& left,
                                        const Shown<CrossWindow>& shown) {
    if (isAskedLater(path, [this, path, left, shown] { showCrossInstead(path, left, shown); }))
        return;
    if (CrossWindow* const open = windowOf(m_program.windowsOf<CrossWindow>(), path)) {
        shown(open);
        return;
    }
    showCross(openable(path), [this, left, shown](CrossWindow* window) {
        if (!window)
            showTaking(openable(left), [this](TakingWindow* back) {
                if (!back)
                    m_program.showHome();
            });
        shown(window);
    });
}

void SplitFileWindows::showCross(const QString& path, const Shown<CrossWindow>& shown) {
    auto* window = new CrossWindow(m_workspace, m_autosave);
    QObject::connect(window, &CrossWindow::analysisRequested, &m_program,
                     [this, window] { m_analysis.showEdited(window->document()); });
    QObject::connect(window, &CrossWindow::takingRequested, &m_program, &Desktop::openTaking);
    QObject::connect(
        window, &CrossWindow::openRequested, &m_program, [this](const QStringList& paths) {
            for (const QString& file : paths) // these open as crosses
                QFileInfo(file).isDir() || QFileInfo(file).suffix() == "kvx" ? (void)openCross(file)
                                                                             : m_program.open(file);
        });
    read(*window, path, shown);
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
