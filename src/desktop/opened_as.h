#pragma once

#include <QString>

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
    ResultsList, ///< official results: taken into a race
    NotReady
};

/// Decides by what a file holds; its name only helps where content cannot tell.
[[nodiscard]] OpensAs opensAs(const QString& path);

} // namespace kavela::desktop
