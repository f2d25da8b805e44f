#include "planning/planning_file.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/kept_file.h"
#include "common/record_convert.h"
#include "common/safe_file.h"
#include "planning/history/planning_history.h"
#include "planning/messages.h"
#include "splitdata/loader.h"

#include <array>

namespace kavela {

namespace fs = std::filesystem;

namespace {

bool readCurrent(simdjson::dom::element root, planningdatac_v6& document, Fault& fault) {
    return tryDecode(root, document, fault);
}

template <class Old>
bool readOld(simdjson::dom::element root, planningdatac_v6& document, Fault& fault) {
    Old old;
    if (!tryDecode(root, old, fault))
        return false;
    document = converted<planningdatac_v6>(std::move(old));
    return true;
}

constexpr std::array Versions{
    PlanningVersion{"planningdatac_v6", "6", readCurrent},
    PlanningVersion{"planningdatac_v5", "5", readOld<history::planningdatac_v5>},
    PlanningVersion{"planningdatac_v4", "4", readOld<history::planningdatac_v4>},
    PlanningVersion{"planningdatac_v3", "3", readOld<history::planningdatac_v3>},
    PlanningVersion{"planningdatac_v2", "2", readOld<history::planningdatac_v2>},
    PlanningVersion{"planningdatac_v1", "1", readOld<history::planningdatac_v1>},
};

RecognisedPlanning unreadable(const Fault& fault) {
    RecognisedPlanning found;
    for (const PlanningVersion& version : Versions)
        found.failures.push_back({version.record, fault});
    return found;
}

} // namespace

std::span<const PlanningVersion> planningVersions() {
    return Versions;
}

RecognisedPlanning recognisePlanningDocument(const JsonDocument& json, const DiagnosticLog& log) {
    RecognisedPlanning found;
    for (const PlanningVersion& version : Versions) {
        Fault fault;
        if (version.read(json.root(), found.document, fault)) {
            found.version = &version;
            if (!found.isCurrent())
                log(planning_messages::TryConvert);
            return found;
        }
        found.failures.push_back({version.record, std::move(fault)});
    }
    found.document = {};
    return found;
}

RecognisedPlanning recognisePlanningFile(const fs::path& path, const DiagnosticLog& log) {
    RecognisedPlanning found;
    try {
        found = recognisePlanningDocument(JsonDocument::fromFile(path), log);
    } catch (const DecodeError& error) {
        found = unreadable(error.fault());
    } catch (const FileError& error) {
        found = unreadable({{}, error.reason()});
    }
    found.path = path;
    return found;
}

std::size_t variabilityWithoutPlace(const RecognisedPlanning& planning) {
    std::size_t count = 0;
    if (planning.version && !planning.isCurrent())
        for (const athletesplanning_v6& athlete : planning.document.athletes)
            for (const yearsplannings_v6& season : athlete.year)
                count += season.heartdata.variability.size();
    return count;
}

std::optional<planningdatac_v6> openPlanningFile(const fs::path& path, const DiagnosticLog& log,
                                                 Alerts& alerts) {
    RecognisedPlanning planning = recognisePlanningFile(path, log);
    if (planning.version)
        return std::move(planning.document);
    reportIncompatible(planning, log, alerts);
    return std::nullopt;
}

void reportIncompatible(const RecognisedPlanning& planning, const DiagnosticLog& log,
                        Alerts& alerts) {
    for (const FailedAttempt& failure : planning.failures)
        log(std::string(failure.record) + ": " + failure.fault.message());
    alerts.show({"", incompatibleText(planning.path, planning.failures)});
}

bool savePlanningFile(const planningdatac_v6& document, const fs::path& path,
                      const DiagnosticLog& log) {
    std::string reason;
    try {
        writeFileSafely(path, encode(document));
        return true;
    } catch (const FileError& error) {
        reason = error.reason();
    } catch (const EncodeError& error) {
        reason = error.what();
    }
    log(planning_messages::NotSaved);
    log("The file " + path.string() + " could not be written: " + reason);
    return false;
}

bool rewritePlanningFile(const RecognisedPlanning& planning, const fs::path& path,
                         const DiagnosticLog& log) {
    return !keepPreviousFile(path, path.extension().string(), planning_messages::NotSaved, log)
                .empty() &&
           savePlanningFile(planning.document, path, log);
}

} // namespace kavela
