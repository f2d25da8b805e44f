#include "app/file_facts.h"

#include "boatmotion/session_files.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "splitdata/loader.h"

namespace kavela {

BOOST_DESCRIBE_STRUCT(AttemptFact, (), (record, fault))
BOOST_DESCRIBE_STRUCT(FileFacts, (), (path, kind, record, label, current, counts, error, attempts))

namespace {

namespace fs = std::filesystem;

std::map<std::string, std::int64_t> countsOf(const splittakerdata031& document) {
    const auto size = [](const auto& list) { return static_cast<std::int64_t>(list.size()); };
    std::int64_t samples = 0;
    for (const athletedata031& run : document.athletes)
        samples += size(run.bm) + size(run.watchmotion);
    return {{"runs", size(document.athletes)},
            {"gates", document.info.gates},
            {"splits", document.info.totalsplits},
            {"officialResults", size(document.info.resultsCSVdata)},
            {"crossTimeTrials", size(document.crossracedata.timetrials)},
            {"crossHeats", size(document.crossracedata.eliphase)},
            {"motionSamples", samples}};
}

/// Takes over what a family of types found; false when none of it decoded.
bool tryAsSplitFile(const JsonDocument& json, FileFacts& facts) {
    const RecognisedSplitFile found = recogniseSplitDocument(
        json, facts.path, [](std::string_view) {}, systemNow);
    for (const FailedAttempt& failure : found.failures)
        facts.attempts.push_back({std::string(failure.record), failure.fault.message()});
    if (!found.version)
        return false;
    facts.kind = "split file";
    facts.record = found.version->record;
    facts.label = found.version->label;
    facts.current = found.isCurrent();
    facts.counts = countsOf(found.document);
    return true;
}

bool tryAsSession(const JsonDocument& json, FileFacts& facts) {
    const SessionRecognition found = recogniseSession(json);
    for (const FailedAttempt& failure : found.failures)
        facts.attempts.push_back({std::string(failure.record), failure.fault.message()});
    if (!found.version)
        return false;
    facts.kind = found.version->kind;
    facts.record = found.version->record;
    facts.label = found.version->label;
    facts.current = found.version->current;
    for (const SessionCount& count : found.counts)
        facts.counts[std::string(count.array)] = static_cast<std::int64_t>(count.count);
    return true;
}

bool isSessionName(const fs::path& path) {
    const fs::path extension = path.extension();
    return extension == ".kvb" || extension == ".sbm" || extension == ".bms";
}

/// The kinds in the order in which a file of this name is tried.
bool tryEverything(const JsonDocument& json, const fs::path& path, FileFacts& facts) {
    const bool sessionFirst = isSessionName(path);
    if (sessionFirst ? tryAsSession(json, facts) : tryAsSplitFile(json, facts))
        return true;
    FileFacts other;
    other.path = facts.path;
    if (!(sessionFirst ? tryAsSplitFile(json, other) : tryAsSession(json, other))) {
        facts.attempts.insert(facts.attempts.end(), other.attempts.begin(), other.attempts.end());
        return false;
    }
    facts = std::move(other); // what its extension promised is beside the point then
    return true;
}

/// A file without a readable document fails every attempt for the same reason.
void failEverything(const fs::path& path, const std::string& reason, FileFacts& facts) {
    const auto fail = [&](const auto& versions) {
        for (const auto& version : versions)
            facts.attempts.push_back({std::string(version.record), validUtf8(reason)});
    };
    facts.error = IncompatibleFileText;
    if (isSessionName(path))
        fail(sessionVersions());
    fail(documentVersions());
    if (!isSessionName(path))
        fail(sessionVersions());
}

} // namespace

FileFacts factsOf(const fs::path& path) {
    FileFacts facts;
    facts.path = validUtf8(path.string());
    try {
        const JsonDocument json = JsonDocument::fromFile(path);
        if (!tryEverything(json, path, facts))
            facts.error = IncompatibleFileText;
    } catch (const DecodeError& error) {
        failEverything(path, error.what(), facts);
    } catch (const FileError& error) {
        failEverything(path, error.reason(), facts);
    }
    return facts;
}

std::string factsJson(const std::vector<FileFacts>& facts) {
    return encode(facts) + '\n';
}

} // namespace kavela
