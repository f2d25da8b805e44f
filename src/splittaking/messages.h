#pragma once

/// What split taking says, word for word. "autovased" is the program's own spelling.
namespace kavela::messages {

inline constexpr const char* BeCareful = "Be careful!";
inline constexpr const char* SplitLimitReached =
    "You have already reached the limited split number. Please, press Save or choose more splits";
inline constexpr const char* ResetButton = "Reset";

inline constexpr const char* NothingToSave = "There is no data to be saved.";
inline constexpr const char* NothingToExport = "There is no data to be exported.";
inline constexpr const char* GatesNoNumber = "Gates must be a number, check it";
inline constexpr const char* RealTimeNoNumber =
    "Real time must be a number \n (Use dot as a decimal point)";

inline constexpr const char* AlsoAsCsv = "Save also as .csv file (Excel compatible)";
inline constexpr const char* AlsoAsPdf = "Save also as PDF file";
inline constexpr const char* AskToOverwrite =
    "This folder already contains a .kvx file. Are you sure you would like to overwrite it?";

inline constexpr const char* AskToCollect =
    "You have written an athlete's name. Do you want to create a .kvx file having all the videos "
    "with that name?";
inline constexpr const char* Saved = "Saved";

inline constexpr const char* OlderVersion =
    "It looks like this .kvx file corresponds to a previous version. Automatic conversion is "
    "available opening the file with Main Analyzer or Session list";
inline constexpr const char* AutosaveFound = "there is autosaved file"; ///< for the log
inline constexpr const char* AskToLoadAutosave =
    "It looks like there is autovased data. Do you want to load it?";
inline constexpr const char* AskToDeleteAll = "You are about to delete all data. Are you sure?";

inline constexpr const char* NoVideo = "Video has not been added";
inline constexpr const char* NoUpstreams =
    "There are not any upstreams defined!\n\nGo to Splits and define them first.";
inline constexpr const char* NoSections =
    "Sections have not been defined.\n\nGo to Splits and define them first.";
inline constexpr const char* NoAthleteSelected = "An athlete must be selected to enter tag mode.";
inline constexpr const char* NotReadyYet =
    "This feature is not ready yet.\n\nIt will come with a future update.";

} // namespace kavela::messages
