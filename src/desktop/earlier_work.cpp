#include "desktop/earlier_work.h"

#include "desktop/desktop.h"
#include "desktop/open_session.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/earlier_work_dialog.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/tool_window.h"
#include "desktop/shell/workspace.h"
#include "desktop/tools.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QPointer>

#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

/// What a window of losses, or of a season, showed.
struct LossesThen {
    QStringList paths;
    QString view;

    void add(const OpenFile& file) {
        paths.append(file.path);
        view = file.view;
    }
};

/// By what they hold these would come back to be timed: a folder, and a film whose path was never
/// saved.
bool isKnownByTool(const OpenFile& file) {
    return file.kind == "share" || file.kind == "tracking";
}

} // namespace

/// The last window's closing leaves the program: what it showed is what the next start shows.
void EarlierWork::rememberWindows() const {
    QList<OpenFile> files = m_program.filesBetweenWindows();
    for (const ToolWindow* const window : m_program.windows())
        files += filesOf(*window, static_cast<int>(files.size()) + 1);
    if (!files.isEmpty() || m_program.isHomeShown())
        rememberSession(m_workspace, files);
}

/// All are read first: what is opened is remembered at once in their place.
bool EarlierWork::restoreWindows() const {
    QStringList races;
    QStringList penalties;
    QList<OpenFile> tables;
    QMap<int, LossesThen> losses; ///< by window
    QMap<int, LossesThen> seasons;
    QList<OpenFile> ofTools;
    QStringList others;
    QStringList searched;
    QStringList slits;
    for (const OpenFile& file : rememberedSession(m_workspace))
        if (file.kind == "race")
            races.append(file.path);
        else if (file.kind == "losses")
            losses[file.window].add(file);
        else if (file.kind == "season")
            seasons[file.window].add(file);
        else if (file.kind == "taking")
            (void)m_program.openTaking(file.path);
        else if (file.kind == "cross")
            (void)m_program.openCross(file.path);
        else if (file.kind == "films")
            m_program.openFilms(file.path);
        else if (file.kind == "fetch")
            m_program.openFetch(); // its source is remembered by the window
        else if (file.kind == "slit")
            slits.append(file.path);
        else if (file.kind == "find")
            searched.append(file.path);
        else if (file.kind == "penalties")
            penalties.append(file.path);
        else if (file.kind == "tables")
            tables.append(file);
        else if (isKnownByTool(file))
            ofTools.append(file);
        else
            others.append(file.path);
    if (!races.isEmpty())
        m_program.openRaces(races);
    m_program.openPenalties(penalties);
    for (const OpenFile& table : tables)
        m_program.openTables({table.path}, table.view);
    for (const LossesThen& window : losses)
        m_program.showLossesAgain(window.paths, window.view);
    for (const LossesThen& window : seasons)
        m_program.showSeasonAgain(window.paths, window.view);
    for (const QString& film : slits) // after split taking, which has their races
        m_program.openSlit(film);
    for (const OpenFile& file : ofTools)
        if (const ToolKind* const tool = toolOfKind(file.kind))
            (void)m_program.openIn(*tool, file.path);
    if (!others.isEmpty())
        m_program.openAll(others);
    if (!searched.isEmpty())
        m_program.openFind(searched);
    return m_program.hasWindows();
}

/// What is asked for while windows come back is not there any more afterwards.
void EarlierWork::offerUnsaved() const {
    m_autosave.listAll(m_program, [this](const std::vector<Autosave::Found>& works) {
        if (works.empty())
            return;
        if (!m_program.hasWindows())
            (void)restoreWindows();
        m_autosave.listAll(m_program, [this](const std::vector<Autosave::Found>& left) {
            for (const Autosave::Found& found : left)
                recover(found.label);
        });
    });
}

void EarlierWork::chooseToBringBack(QWidget* over) const {
    m_autosave.listEarlier(
        m_program, [this, window = QPointer(over)](const std::vector<Autosave::Found>& works) {
            EarlierWorkDialog dialog(works, window);
            if (dialog.exec() == QDialog::Accepted && dialog.chosen())
                bringBack(*dialog.chosen());
        });
}

void EarlierWork::listPutOff(QObject& context, Autosave::Listed listed) const {
    m_autosave.listEarlier(
        context, [listed = std::move(listed)](std::vector<Autosave::Found> works) {
            std::erase_if(works, [](const Autosave::Found& work) { return work.isGivenUp; });
            listed(works);
        });
}

void EarlierWork::bringBack(const Autosave::Found& earlier) const {
    for (ToolWindow* const window : m_program.windows())
        if (window->file() && isSameFile(window->file()->path(), earlier.label.path)) {
            bringToFront(*window);
            window->takeBack(earlier.content);
            return;
        }
    m_workspace.setPutOff(earlier.label.path, false);
    m_autosave.bringBack(earlier);
    recover(earlier.label);
}

/// Work of an earlier release does not say with which tool it was edited; that of a folder that is
/// gone stays kept.
void EarlierWork::recover(const Autosave::Label& found) const {
    const QFileInfo file(found.path);
    const bool isSplitFile = file.suffix() == "kvx";
    const ToolKind* tool = toolOfKind(found.tool);
    if (!tool && isSplitFile)
        tool = toolFor(OpensAs::FolderOfFilms);
    if (isSplitFile) {
        if (file.exists() || file.dir().exists())
            (void)m_program.openIn(*tool, file.exists() ? found.path : file.path());
    } else if (file.exists() || !tool) {
        m_program.openAll({found.path});
    } else if (!m_program.raiseEditorOf(found.path)) {
        m_program.openNew(*tool, found.path);
        closeWherePutOff(found.path);
    }
}

/// What was never saved has no file to show: without the work its window would stand there empty.
/// On a slow disk the answer comes after the window.
void EarlierWork::closeWherePutOff(const QString& path) const {
    for (ToolWindow* const window : m_program.windows()) {
        EditedFile* const file = window->file();
        if (!file || !isSameFile(file->path(), path))
            continue;
        const auto close = [this, window, file, path] {
            if (!m_workspace.isPutOff(path) || file->isDirty())
                return;
            // Home lists it, and the last window's closing would leave the program.
            if (m_program.windows().size() == 1)
                m_program.showHome();
            window->close();
        };
        QObject::connect(file, &EditedFile::changed, window, close);
        close();
        return;
    }
}

} // namespace kavela::desktop
