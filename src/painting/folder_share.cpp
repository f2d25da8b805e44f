#include "painting/folder_share.h"

#include "cli/console.h"
#include "cli/progress_bar.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "facts/fact_cache.h"
#include "painting/console_login.h"
#include "preferences/preferences.h"
#include "share/folder_exchange.h"
#include "share/shared_folders.h"
#include "share/web_place.h"

#include <QSysInfo>

#include <boost/describe.hpp>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <optional>

namespace kavela::painting {

/// What is printed of one file, also as JSON.
struct sharedrow {
    std::string path;
    std::string change;
    std::int64_t size = 0;
    std::string note;
    std::optional<std::string> result; ///< null for what was not begun
    std::string text;
};
BOOST_DESCRIBE_STRUCT(sharedrow, (), (path, change, size, note, result, text))

struct sharedleftout {
    std::string path;
    std::string reason;
};
BOOST_DESCRIBE_STRUCT(sharedleftout, (), (path, reason))

struct sharedoutcome {
    std::string folder;
    std::string address;
    std::vector<sharedrow> rows;
    std::vector<sharedleftout> leftOut;
};
BOOST_DESCRIBE_STRUCT(sharedoutcome, (), (folder, address, rows, leftOut))

namespace {

using share::Change;
using share::ShareResult;

std::string changeText(Change change) {
    switch (change) {
    case Change::NewHere:
        return "new here";
    case Change::NewThere:
        return "new there";
    case Change::ChangedHere:
        return "changed here";
    case Change::ChangedThere:
        return "changed there";
    case Change::BothSides:
        return "on both sides";
    case Change::DeletedHere:
        return "deleted here";
    case Change::DeletedThere:
        return "deleted there";
    case Change::None:
    case Change::Agree:
    case Change::Gone:
        break;
    }
    return "same";
}

std::string resultText(ShareResult::Kind kind) {
    switch (kind) {
    case ShareResult::Kind::Done:
        return "done";
    case ShareResult::Kind::Same:
        return "same";
    case ShareResult::Kind::BothKept:
        return "both kept";
    case ShareResult::Kind::Failed:
        return "failed";
    case ShareResult::Kind::Cancelled:
        break;
    }
    return "cancelled";
}

sharedoutcome outcomeOf(const share::SharedPlace& place, const share::ShareSurvey& survey) {
    sharedoutcome outcome{validUtf8(place.folder), place.address, {}, {}};
    for (const share::ShareRow& row : survey.rows)
        outcome.rows.push_back(
            {row.path, changeText(row.change), row.size, row.note, std::nullopt, {}});
    for (const share::LeftOut& left : survey.leftOut)
        outcome.leftOut.push_back({left.path, left.reason});
    return outcome;
}

bool isListPrinted(const sharedoutcome& outcome) {
    std::string text;
    for (const sharedrow& row : outcome.rows)
        text += fmt::format(
            "{:<14}  {:<48}  {:>10}  {}\n", row.change, row.path,
            row.size > 0 ? fmt::format("{:.1f} MB", static_cast<double>(row.size) / 1e6) : "",
            row.note);
    return cli::print(text);
}

/// Whether the coach wants it: what would be moved, and apart from it what would be deleted.
bool isWanted(const cli::FolderShareCall& call, std::int64_t moved, std::int64_t deleted) {
    if (call.isAgreed || call.isJson || ::isatty(STDIN_FILENO) != 1)
        return true;
    std::string question = "Share " + cli::counted(moved, "file", "files");
    if (deleted > 0)
        question += " and delete " + cli::counted(deleted, "file", "files");
    return isTypedYes(question + "?");
}

/// False where a file was not shared.
bool isCarriedOut(const share::ShareRequest& request, share::ShareSurvey& survey,
                  const cli::FolderShareCall& call, sharedoutcome& outcome) {
    share::FolderExchange exchange(request, survey, {});
    cli::ProgressBar progress(survey.rows.size());
    bool isAll = true;
    const std::vector<share::ShareRow> rows = survey.rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        progress.step();
        if (rows[i].isDeletion() && !call.deletes)
            continue;
        const ShareResult result = exchange.carryOut(rows[i]);
        outcome.rows[i].result = resultText(result.kind);
        outcome.rows[i].text = result.text;
        isAll = isAll && result.kind != ShareResult::Kind::Failed;
    }
    return isAll;
}

bool isOutcomePrinted(const sharedoutcome& outcome) {
    std::int64_t done = 0;
    for (const sharedrow& row : outcome.rows) {
        if (row.result && *row.result != "failed")
            ++done;
        if (!row.text.empty())
            cli::logLine(row.path + ": " + row.text);
    }
    return cli::print("Shared " + cli::counted(done, "file", "files") + ".\n");
}

/// The address of the call, else the one that is remembered; the former is remembered from now on.
std::string addressFor(const cli::FolderShareCall& call, const std::string& folder) {
    Preferences preferences;
    const std::vector<std::string> kept = preferences.rawList(share::SharedFoldersKey);
    if (call.to.empty()) {
        const auto known = share::addressOfFolder(kept, folder);
        if (!known)
            throw share::ShareError("This folder was not shared yet: --to tells where to.");
        return *known;
    }
    if (const auto fault = share::faultOfPlace(call.to))
        throw share::ShareError(*fault);
    preferences.set(share::SharedFoldersKey, share::keptWith(kept, {folder, call.to}));
    return call.to;
}

share::ShareRequest requestOf(const cli::FolderShareCall& call) {
    std::error_code fault;
    const std::filesystem::path folder = std::filesystem::canonical(call.folder, fault);
    if (fault)
        throw FileError(call.folder, fault.message());
    const std::filesystem::path caches = userCacheFolder();
    share::ShareRequest request{.folder = folder,
                                .address = addressFor(call, folder.string()),
                                .login = std::nullopt,
                                .caches = caches.empty() ? caches : caches.parent_path() / "share",
                                .machine = QSysInfo::machineHostName().toStdString()};
    if (!call.user.empty())
        request.login = loginOf(call.user, share::folderAt(request.address));
    return request;
}

int shareCompared(const cli::FolderShareCall& call, const share::ShareRequest& request) {
    share::ShareSurvey survey = share::compareFolder(request);
    sharedoutcome outcome = outcomeOf(share::placeOf(request), survey);
    for (const sharedleftout& left : outcome.leftOut)
        cli::logLine(left.path + ": " + left.reason);
    if (!call.isJson && !isListPrinted(outcome))
        return cli::NotDone;
    const std::int64_t deleted =
        std::ranges::count_if(survey.rows, [](const auto& row) { return row.isDeletion(); });
    const std::int64_t moved = cli::whole(survey.rows.size()) - deleted;
    if (deleted > 0 && !call.deletes)
        cli::logLine("What was deleted on one side stays on the other: --delete deletes it there.");
    const std::int64_t toDelete = call.deletes ? deleted : 0;
    const bool isDone = !call.showsOnly && moved + toDelete > 0 && isWanted(call, moved, toDelete);
    const bool isAll = !isDone || isCarriedOut(request, survey, call, outcome);
    const bool isPrinted = call.isJson            ? cli::print(encode(outcome) + '\n')
                           : isDone               ? isOutcomePrinted(outcome)
                           : moved + deleted == 0 ? cli::print("Both sides are the same.\n")
                                                  : true;
    return isAll && isPrinted ? cli::Done : cli::NotDone;
}

} // namespace

int shareFolder(const cli::FolderShareCall& call) {
    const ConsoleApplication application;
    try {
        return shareCompared(call, requestOf(call));
    } catch (const share::ShareError& error) {
        cli::logLine(error.what());
        if (error.wantsLogin() && call.user.empty())
            cli::logLine("The server wants a user name: --user tells it.");
    } catch (const std::runtime_error& error) {
        cli::logLine(error.what());
    }
    return cli::NotDone;
}

} // namespace kavela::painting
