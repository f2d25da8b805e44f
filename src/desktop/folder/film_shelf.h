#pragma once

#include "desktop/shell/background_work.h"
#include "splittaking/folder/film_list.h"
#include "splittaking/folder/film_renaming.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>

#include <exception>
#include <functional>
#include <vector>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// What was done to the films of a folder at once: they were renamed, or the tags of one changed.
struct ShelfStep {
    FilmRenames names = {};
    QString film = {}; ///< the path it had then; later renamings are undone before this step is
    std::vector<FilmTag> off = {};
    std::vector<FilmTag> on = {};
};

/// The films of one folder: read beside the window, renamed and tagged in steps that can be undone,
/// and noted as watched.
class FilmShelf : public QObject {
    Q_OBJECT

public:
    /// Questions and work that locks a window are shown over this one.
    FilmShelf(Workspace& workspace, QWidget& over);
    ~FilmShelf() override;

    /// Reads a folder; the steps in another one are forgotten.
    void openFolder(const QString& folder);
    void readAgain();
    [[nodiscard]] const QString& folder() const { return m_folder; }
    [[nodiscard]] bool isReading() const { return m_isReading; }
    [[nodiscard]] const std::vector<ListedFilm>& films() const { return m_films.films; }
    /// Null for none.
    [[nodiscard]] const ListedFilm* film(const QString& path) const;
    /// What beside the films could not be read.
    [[nodiscard]] const std::vector<std::string>& faults() const { return m_films.faults; }

    /// The pattern by which names of films are read and given.
    [[nodiscard]] QString pattern() const;
    void setPattern(const QString& pattern);

    [[nodiscard]] bool isWatched(const QString& path) const;
    void setWatched(const QStringList& paths, bool isWatched);

    /// Films with other names, in one step; a fault is told, and nothing is renamed then.
    void rename(const FilmRenames& names);

    // Each is one step, and there at once; what cannot be written is told and taken back. A tag of
    // a split file is edited by split taking: that is told.
    void addTag(const QString& path, const FilmTag& tag);
    void removeTag(const QString& path, const FilmTag& tag);
    void moveTag(const QString& path, const FilmTag& tag, const CMTime& moment);

    [[nodiscard]] bool canUndo() const { return !m_done.empty(); }
    [[nodiscard]] bool canRedo() const { return !m_undone.empty(); }
    void undo();
    void redo();

signals:
    void changed(); ///< the films, or what is known of them
    void readingChanged();
    void watchedChanged();
    /// Films have other names now; told before changed().
    void renamed(const kavela::FilmRenames& names);
    void stepsChanged(); ///< what can be undone
    void failed(const QString& message);

private:
    void read();
    void readMore();
    void endReading();
    void askAboutInterrupted();
    void finishInterrupted(const FilmRenames& names, bool isUndone);
    void startRenaming(const FilmRenames& names, const std::function<void()>& done);
    void carryOutRenaming(const FilmRenames& names, const std::function<void()>& done);
    void takeNames(const FilmRenames& names);
    void takeWatched();
    void carryOut(const ShelfStep& step, const std::function<void()>& done);
    void take(ShelfStep step);
    void changeTags(const ShelfStep& step);
    void writeTags(const std::function<void()>& write);
    [[nodiscard]] OtherEnds tellingFault();
    [[nodiscard]] ListedFilm* listed(const QString& path);

    Workspace& m_workspace;
    QPointer<QWidget> m_over;
    QString m_folder;
    FilmFolder m_films;
    QSet<QString> m_watched;
    bool m_isReading = false;
    bool m_isAsked = false; ///< about a renaming that was cut off, in this folder
    std::vector<ShelfStep> m_done;
    std::vector<ShelfStep> m_undone;
    BackgroundWork m_reading;
    BackgroundWork m_renaming;
};

} // namespace kavela::desktop
