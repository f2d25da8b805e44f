#pragma once

/// What the planning says, word for word.
namespace kavela::planning_messages {

inline constexpr const char* TryConvert = "try convertPlanningtoNewVersion";
inline constexpr const char* NotSaved = "Failed to create file";

inline constexpr const char* ImportTitle = "Import a planning file (.planning)";
inline constexpr const char* SaveCurrent = "Save the current planning";
inline constexpr const char* Careful = "Careful!";
inline constexpr const char* SaveAnyway = "Save anyway";
inline constexpr const char* Cancel = "Cancel";
inline constexpr const char* Importing = "Importing planning file(s)...";
inline constexpr const char* ImportingOnline = "Importing online planning file(s)...";
inline constexpr const char* OnlineSaveFailed =
    "There was a problem saving the planning file online. Check the internet connection and try "
    "again :)";

} // namespace kavela::planning_messages
