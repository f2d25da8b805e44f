#pragma once

#include "share/folder_files.h"
#include "share/share_plan.h"
#include "share/web_folder.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela::share {

/// A folder here, and the one on a server that it is shared to.
struct ShareRequest {
    std::filesystem::path folder;
    std::string address; ///< of a folder, without a fault
    std::optional<fetch::WebLogin> login = std::nullopt;
    std::filesystem::path caches; ///< where states are kept; empty to keep none
    std::string machine;          ///< how files of this computer are called where two differ
    fetch::WebPace pace = {};
};

/// What is heard while it runs, on the thread that it runs on.
struct ShareSteps {
    std::stop_token stop = {};
    /// How much is done of all; an `all` of 0 is not known.
    std::function<void(const std::string& what, std::int64_t done, std::int64_t all)> progress = {};

    void tell(const std::string& what, std::int64_t done, std::int64_t all) const {
        if (progress)
            progress(what, done, all);
    }
};

/// What both sides have.
struct ShareSurvey {
    HereFiles here;
    ThereFiles there;
    KnownFiles known;
    std::vector<ShareRow> rows; ///< what is to be done, by paths
    std::vector<LeftOut> leftOut;
    std::set<std::string> foldersThere; ///< by their paths, "" for the folder itself
    bool canLock = false;               ///< the server locks files
    int asked = 0;                      ///< questions to the server
};

/// The rules by which the server of a share is asked.
[[nodiscard]] fetch::WebRules rulesOf(const ShareRequest& request);
/// Both sides as the state file names them; the folder without links. Throws FileError.
[[nodiscard]] SharedPlace placeOf(const ShareRequest& request);

/// Looks at both sides: one question for each folder of the server, and one more. Nothing is
/// changed but the notes of what is the same. Throws ShareError, FileError and ShareStopped. It
/// waits for the server: not for the thread of windows.
[[nodiscard]] ShareSurvey compareFolder(const ShareRequest& request, const ShareSteps& steps = {});

/// Small hexadecimal digits. Throws FileError and ShareStopped.
[[nodiscard]] std::string sha256OfFile(const std::filesystem::path& path,
                                       const std::stop_token& stop);

/// Notes what is known; without it nothing is lost, so that a full disk is no fault.
void keepState(const ShareRequest& request, const KnownFiles& known);

} // namespace kavela::share
