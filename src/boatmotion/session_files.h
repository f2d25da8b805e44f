#pragma once

#include "boatmotion/sessions.h"
#include "common/error.h"
#include "common/json_document.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

/// The session files: raw recordings (.kvb), processed sessions (.sbm, .bms) and test sessions.
/// No member of a file tells its kind or version: a file is what it decodes as.
namespace kavela {

/// One kind and version of session file.
struct SessionVersion {
    std::string_view record; ///< "bmrawdata_v5"
    std::string_view kind;   ///< "raw session", "smart session" or "test session"
    std::string_view label;  ///< number of the version: "5"
    bool current = false;    ///< whether its kind's reader takes it as it is
};

/// The length of one of the main arrays of a session.
struct SessionCount {
    std::string_view array;
    std::size_t count = 0;
};

/// What a document turned out to be.
struct SessionRecognition {
    std::optional<SessionVersion> version; ///< nothing when no record decoded
    std::vector<SessionCount> counts;      ///< in the order of the record
    std::vector<FailedAttempt> failures;   ///< the records tried before, in that order
};

/// Every session record, in the order in which they are tried.
[[nodiscard]] std::vector<SessionVersion> sessionVersions();

/// Tries every session record on a document: the raw ones newest first, then the processed ones,
/// the one that is written first, then the test session.
[[nodiscard]] SessionRecognition recogniseSession(const JsonDocument& document);

/// A recording of version 4, which is not read as it is: see older_recording.h.
class OlderRecording : public DecodeError {
public:
    using DecodeError::DecodeError;
};

/// The readers. Each reads one record and no other: a session of another kind or version is refused
/// as a whole, with a text that says what it is. They throw FileError and DecodeError, of which an
/// OlderRecording is one.
[[nodiscard]] bmrawdata_v5 readRawSession(const std::filesystem::path& path);
[[nodiscard]] smartAlldata_v4 readSmartSession(const std::filesystem::path& path);
[[nodiscard]] varoTestAlldata readTestSession(const std::filesystem::path& path);

/// The writers replace a file safely. They throw FileError, or EncodeError when the session holds
/// what JSON cannot; the old file is then untouched.
void saveRawSession(const bmrawdata_v5& session, const std::filesystem::path& path);
void saveSmartSession(const smartAlldata_v4& session, const std::filesystem::path& path);

/// A recording of version 4 in the current version. What version 4 did not know (discipline, boat,
/// athletes in the boat, kind of the part of a session) is empty.
[[nodiscard]] bmrawdata_v5 upgradedRawSession(bmrawdata_v4 session);

/// Where the current version of a recording of version 4 goes: run.kvb gives run_v5.kvb beside it.
[[nodiscard]] std::filesystem::path upgradedSessionPath(const std::filesystem::path& recording);

/// Where the processed session of a recording goes: run.kvb gives run_postv5.bms beside it.
[[nodiscard]] std::filesystem::path convertedSessionPath(const std::filesystem::path& recording);

} // namespace kavela
