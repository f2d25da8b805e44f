#pragma once

#include "common/json_document.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace kavela::desktop {

/// What a file or folder is opened as.
enum class OpensAs {
    Race, ///< also what cannot be read: its reader says what is wrong
    FolderOfRaces,
    FolderOfFilms,
    Film,
    Cross,
    Selection,
    Team,
    Planning,
    Tests,
    Recording,
    Session,
    TestSession,
    Import,      ///< of a watch or a phone: taken into a session
    PowerList,   ///< of a power meter: taken into the session that is open
    Find,        ///< the search, which opens no file of its own
    Losses,      ///< split files and folders, where the coach asks for it: none is known by content
    ResultsList, ///< any list of results, as text or a spreadsheet, or what was made of one
    Films,       ///< a folder, where the coach asks for it: by content it is to be timed
    Penalties,   ///< split files and folders, where the coach asks for it: none is known by content
    Season,      ///< a team with its races, where the coach asks for it
    Fetch,       ///< films that are fetched, which opens sources and lists of its own
    Share,       ///< a folder, where the coach asks for it: by content it is to be timed
    Comparison,  ///< of films
    Tracking,    ///< the path of something on a film
    SlitPicture, ///< a film, where the coach asks for it: by content it is to be timed
    Course,      ///< of a split file, where the coach asks for it: by content it is a race
    NotReady
};

/// What was found out about a file. As long as its document is held, nobody reads the file again.
struct Opening {
    OpensAs as = OpensAs::NotReady;
    std::optional<JsonDocument> document = {};
    QStringList races = {}; ///< of a folder of races: its split files, in the order of their names
};

/// What was parsed to see what files are, until their windows have read them: not more of it than a
/// small machine bears.
class HeldDocuments {
public:
    void hold(const QString& path, std::optional<JsonDocument> document);

private:
    std::vector<JsonDocument> m_documents;
    qint64 m_bytes = 0;
};

/// Decides by what a file holds; its name only helps where content cannot tell. For any thread.
[[nodiscard]] Opening opensAs(const QString& path);

} // namespace kavela::desktop
