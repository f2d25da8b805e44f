#include "desktop/film_windows.h"

#include "desktop/barrier/slit_window.h"
#include "desktop/compose/compare_window.h"
#include "desktop/desktop.h"
#include "desktop/fetch/fetch_window.h"
#include "desktop/folder/films_window.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/file_names.h"
#include "desktop/split_file_windows.h"
#include "desktop/taking/taking_window.h"

#include <QFileInfo>

namespace kavela::desktop {

void FilmWindows::openFilms(const QString& path) {
    const QString folder =
        QFileInfo(path).isDir() ? path : QFileInfo(path).absolutePath(); // of a film
    for (FilmsWindow* const window : m_program.windowsOf<FilmsWindow>())
        if (isSameFile(window->shelf().folder(), folder)) {
            (void)window->open(path); // shows the film
            bringToFront(*window);
            return;
        }
    auto* const window = new FilmsWindow(m_workspace);
    QObject::connect(window, &FilmsWindow::pathsChanged, &m_program, &Desktop::rememberSession);
    if (window->open(path))
        m_program.show(window);
    else
        delete window;
}

void FilmWindows::openFetch() {
    FetchWindow* window = m_program.windowsOf<FetchWindow>().value(0);
    if (!window) {
        window = new FetchWindow(m_workspace);
        m_program.show(window);
    }
    bringToFront(*window);
}

void FilmWindows::openSlit(const QString& film, TakingWindow* race) {
    SlitWindow* window = nullptr;
    for (SlitWindow* const each : m_program.windowsOf<SlitWindow>())
        if (isSameFile(each->film(), film))
            window = each;
    if (!window) {
        window = new SlitWindow(m_workspace);
        if (!window->open(film)) {
            delete window;
            return;
        }
        QObject::connect(window, &SlitWindow::pathsChanged, &m_program, &Desktop::rememberSession);
        QObject::connect(
            window, &SlitWindow::raceRequested, &m_program,
            [this, window = QPointer(window)](const QString& path) { openRace(path, window); });
        m_program.show(window);
    }
    for (TakingWindow* const taking : m_program.windowsOf<TakingWindow>())
        if (!race && isSameFile(taking->document().folder(), QFileInfo(film).absolutePath()))
            race = taking;
    if (race && window->race().document() != &race->document())
        window->setRace(race->document(), *race);
    bringToFront(*window);
}

/// Into whose race the marks of a slit picture go.
void FilmWindows::openRace(const QString& path, const QPointer<SlitWindow>& slit) {
    (void)m_splitFiles.openTaking(path, [slit](TakingWindow& taking) {
        if (!slit)
            return;
        slit->setRace(taking.document(), taking);
        bringToFront(*slit);
    });
}

void FilmWindows::openCompare(const CompareRequest& request) {
    auto* const window = new CompareWindow(m_workspace, m_autosave);
    window->startWith(request);
    m_program.show(window);
    bringToFront(*window);
}

} // namespace kavela::desktop
