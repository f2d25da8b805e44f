#pragma once

#include "share/share_state.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What is to become of each file of a folder that is shared. No clock is asked: what counts is
/// what both sides were when they last agreed.
namespace kavela::share {

/// A file in the folder.
struct HereFile {
    std::int64_t size = 0;
    std::string sha256 = {};   ///< empty where it was not needed so far
    std::int64_t modified = 0; ///< nanoseconds, compared for being the same alone
};

/// A file on the server.
struct ThereFile {
    std::optional<std::int64_t> size = std::nullopt;
    std::string mark = {};   ///< of its state; empty where the server tells none
    bool isTag = false;      ///< the mark is an entity tag, by which a question can be bound to it
    std::string sha256 = {}; ///< empty where the server tells none
};

enum class Change {
    None,         ///< both are as they were
    Agree,        ///< the content is the same, which was not noted yet
    NewHere,      ///< goes to the server
    NewThere,     ///< comes from it
    ChangedHere,  ///< goes over what the server has
    ChangedThere, ///< comes over what is here
    BothSides,    ///< compared byte by byte; where they differ, both stay
    DeletedHere,  ///< may be deleted there
    DeletedThere, ///< may be deleted here
    Gone          ///< on neither side
};

/// Null stands for a file that is not there, or of which nothing is noted.
[[nodiscard]] Change changeOf(const HereFile* here, const ThereFile* there, const KnownFile* known);

/// Whether the content of a file here decides, so that its SHA-256 is needed. One of the size and
/// moment that were noted is as it was.
[[nodiscard]] bool needsHash(const HereFile& here, const ThereFile* there, const KnownFile* known);

/// Files by their paths within the folder, parts joined by slashes.
using HereFiles = std::map<std::string, HereFile>;
using ThereFiles = std::map<std::string, ThereFile>;

/// One file that is not the same on both sides.
struct ShareRow {
    std::string path;
    Change change = Change::None;
    std::int64_t size = 0; ///< bytes that would be moved; 0 where it is not known
    std::string note = {}; ///< what is to be known before it is done; empty for nothing

    [[nodiscard]] bool isDeletion() const {
        return change == Change::DeletedHere || change == Change::DeletedThere;
    }
};

/// All files that something is to be done about, by their paths. Gone and agreeing ones are left
/// out: only the state has to learn of them.
[[nodiscard]] std::vector<ShareRow> sharePlan(const HereFiles& here, const ThereFiles& there,
                                              const KnownFiles& known);

} // namespace kavela::share
