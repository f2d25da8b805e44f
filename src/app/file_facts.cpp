#include "app/file_facts.h"

#include "boatmotion/session_files.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "planning/planning_access.h"
#include "planning/planning_file.h"
#include "planning/water_test_file.h"
#include "results/selection_file.h"
#include "results/team_file.h"
#include "splitdata/loader.h"

#include <algorithm>
#include <array>

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

std::map<std::string, std::int64_t> countsOf(const selectionracesStruct_v3& document) {
    std::int64_t athletes = 0;
    for (const srCategoryStruct_v3& category : document.categories)
        athletes += static_cast<std::int64_t>(category.athletes.size());
    return {{"races", static_cast<std::int64_t>(document.races.size())},
            {"categories", static_cast<std::int64_t>(document.categories.size())},
            {"athletes", athletes}};
}

bool tryAsSelection(const JsonDocument& json, FileFacts& facts) {
    const RecognisedSelectionFile found = recogniseSelectionDocument(json);
    for (const FailedAttempt& failure : found.failures)
        facts.attempts.push_back({std::string(failure.record), failure.fault.message()});
    if (!found.version)
        return false;
    facts.kind = "selection races";
    facts.record = found.version->record;
    facts.label = found.version->label;
    facts.current = found.isCurrent();
    facts.counts = countsOf(found.document);
    return true;
}

std::map<std::string, std::int64_t> countsOf(const myTeamToSaveStruct& document) {
    std::int64_t seasons = 0;
    std::int64_t races = 0;
    for (const myTeamStruct& athlete : document.realMyTeam) {
        for (const mtCatsStruct& category : athlete.cats) {
            seasons += static_cast<std::int64_t>(category.seasons.size());
            for (const mtSeasonStruct& season : category.seasons)
                races += static_cast<std::int64_t>(season.races.size());
        }
    }
    return {{"athletes", static_cast<std::int64_t>(document.realMyTeam.size())},
            {"seasons", seasons},
            {"races", races}};
}

bool tryAsTeam(const JsonDocument& json, FileFacts& facts) {
    const RecognisedTeam found = recogniseTeamDocument(json);
    if (found.failure)
        facts.attempts.push_back({TeamRecord, found.failure->fault.message()});
    if (!found.team)
        return false;
    facts.kind = "team";
    facts.record = TeamRecord;
    facts.label = "1";
    facts.current = true;
    facts.counts = countsOf(*found.team);
    return true;
}

std::map<std::string, std::int64_t> countsOf(const planningdatac_v6& document) {
    const auto size = [](const auto& list) { return static_cast<std::int64_t>(list.size()); };
    std::int64_t seasons = 0;
    std::int64_t weeks = 0;
    std::int64_t sessions = 0;
    for (const athletesplanning_v6& athlete : document.athletes) {
        seasons += size(athlete.year);
        for (const yearsplannings_v6& season : athlete.year) {
            weeks += size(season.micros);
            for (const microsplanning_v5& week : season.micros)
                sessions += size(week.sessions);
        }
    }
    return {{"athletes", size(document.athletes)},
            {"seasons", seasons},
            {"weeks", weeks},
            {"sessions", sessions},
            {"favourites", size(document.favintses)}};
}

bool tryAsPlanning(const JsonDocument& json, FileFacts& facts) {
    const RecognisedPlanning found = recognisePlanningDocument(json, [](std::string_view) {});
    for (const FailedAttempt& failure : found.failures)
        facts.attempts.push_back({std::string(failure.record), failure.fault.message()});
    if (!found.version)
        return false;
    facts.kind = "planning";
    facts.record = found.version->record;
    facts.label = found.version->label;
    facts.current = found.isCurrent();
    facts.counts = countsOf(found.document);
    return true;
}

bool tryAsPlanningAccess(const JsonDocument& json, FileFacts& facts) {
    const RecognisedAccess found = recognisePlanningAccess(json);
    if (found.failure) {
        facts.attempts.push_back(
            {std::string(found.failure->record), found.failure->fault.message()});
        return false;
    }
    facts.kind = "planning access";
    facts.record = PlanningAccessRecord;
    facts.label = "1";
    facts.current = true;
    facts.counts = {{"people", static_cast<std::int64_t>(found.access.people.size())}};
    return true;
}

std::map<std::string, std::int64_t> countsOf(const onWaterTests& document) {
    const auto laps = std::ranges::count(document.tests, water_test::Lap, &onWaterTest::kind);
    const auto size = [](const auto& list) { return static_cast<std::int64_t>(list.size()); };
    return {{"lapTests", laps},
            {"sprints", size(document.tests) - laps},
            {"eightTests", size(document.eights)}};
}

bool tryAsTests(const JsonDocument& json, FileFacts& facts) {
    const RecognisedTests found = recogniseTests(json);
    if (found.failure)
        facts.attempts.push_back({TestsRecord, found.failure->fault.message()});
    if (!found.tests)
        return false;
    facts.kind = "test results";
    facts.record = TestsRecord;
    facts.label = "1";
    facts.current = true;
    facts.counts = countsOf(*found.tests);
    return true;
}

template <class Versions>
std::vector<std::string> recordsOf(const Versions& versions) {
    std::vector<std::string> records;
    for (const auto& version : versions)
        records.emplace_back(version.record);
    return records;
}

/// A family of document types that is tried as a whole.
struct Family {
    std::array<std::string_view, 3> extensions; ///< that promise it
    bool (*tryAs)(const JsonDocument& json, FileFacts& facts);
    std::vector<std::string> (*records)();
};

constexpr std::array Families{
    Family{{".kvx"}, tryAsSplitFile, [] { return recordsOf(documentVersions()); }},
    Family{{".kvb", ".sbm", ".bms"}, tryAsSession, [] { return recordsOf(sessionVersions()); }},
    Family{{".kvsr"}, tryAsSelection, [] { return recordsOf(selectionVersions()); }},
    Family{{PlanningExtension}, tryAsPlanning, [] { return recordsOf(planningVersions()); }},
    Family{{PlanningAccessExtension},
           tryAsPlanningAccess,
           [] { return std::vector<std::string>{std::string(PlanningAccessRecord)}; }},
    Family{{".kvteam"}, tryAsTeam, [] { return std::vector<std::string>{TeamRecord}; }},
    Family{{TestsExtension}, tryAsTests, [] { return std::vector<std::string>{TestsRecord}; }},
};

/// The families in the order in which a file of this name is tried: first what it promises.
std::vector<const Family*> familiesFor(const fs::path& path) {
    std::vector<const Family*> families;
    for (const Family& family : Families)
        families.push_back(&family);
    const std::string extension = path.extension().string();
    std::stable_partition(families.begin(), families.end(), [&](const Family* family) {
        return !extension.empty() && std::ranges::count(family->extensions, extension) > 0;
    });
    return families;
}

/// What its extension promised is beside the point for a file that turns out to be something else.
bool tryEverything(const JsonDocument& json, const fs::path& path, FileFacts& facts) {
    std::vector<AttemptFact> attempts;
    for (const Family* family : familiesFor(path)) {
        FileFacts tried;
        tried.path = facts.path;
        if (family->tryAs(json, tried)) {
            facts = std::move(tried);
            return true;
        }
        std::ranges::move(tried.attempts, std::back_inserter(attempts));
    }
    facts.attempts = std::move(attempts);
    return false;
}

/// A file without a readable document fails every attempt for the same reason.
void failEverything(const fs::path& path, const std::string& reason, FileFacts& facts) {
    facts.error = IncompatibleFileText;
    for (const Family* family : familiesFor(path))
        for (std::string& record : family->records())
            facts.attempts.push_back({std::move(record), validUtf8(reason)});
}

/// The system says of a link that leads nowhere what it says of a file that is not there, although
/// its name stands in the folder.
std::string readingFault(const fs::path& path, const FileError& error) {
    std::error_code code;
    if (fs::is_symlink(path, code) && !fs::exists(path, code) && !code)
        return "this is a link to " + fs::read_symlink(path, code).string() + ", which is missing";
    return error.reason();
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
        const std::string reason = readingFault(path, error);
        failEverything(path, reason, facts);
        facts.unread = validUtf8(reason);
    }
    return facts;
}

std::string factsJson(const std::vector<FileFacts>& facts) {
    return encode(facts) + '\n';
}

} // namespace kavela
