#pragma once

#include "common/log.h"
#include "preferences/preferences.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kavela {

/// What start-up read besides creating what was missing.
struct StartUp {
    std::vector<std::string> mtPoI; ///< the team tool's points of interest; empty when never stored
};

/// Creates every missing preference with its default, logging "Creating " and the key; then deletes
/// the settings files of earlier releases below `libraryFolder`. A failed delete goes to the log
/// and start-up goes on.
StartUp startUp(Preferences& preferences, const std::filesystem::path& libraryFolder,
                const DiagnosticLog& log);

/// The folder in which the platform keeps a user's program data.
[[nodiscard]] std::filesystem::path userLibraryFolder();

} // namespace kavela
