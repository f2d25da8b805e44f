#pragma once

#include "common/alerts.h"

/// What the team and selection tools say, word for word.
namespace kavela::messages {

inline constexpr const char* Careful = "Careful!";
inline constexpr const char* AddARaceFirst = "Add a race first.";
inline constexpr const char* SelectionNotSaved = "Failed to save selection race file";

inline constexpr const char* ImportHelpTitle = "Hello there!";
inline constexpr const char* ImportHelp =
    "You can drag a .csv file to the table to import athletes, instead of adding them one on one. "
    "The .csv file must follow the following structure:\n\nCat;Name;Surname;year;club\n(keep first "
    "row for titles)";
inline constexpr const char* ComaModeHelp =
    "Coma mode results\nPos;SURNAME Name;Totaltime;Totalpen";
inline constexpr const char* TacenHelp = "Tacen results\ncat;SURNAME NAME;Club;Time(.);P;Tot";

} // namespace kavela::messages
