#include "planning/planning_access.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "splitdata/run_timing.h"

namespace kavela {

namespace fs = std::filesystem;

RecognisedAccess recognisePlanningAccess(const JsonDocument& json) {
    planninginfo_v1 access;
    Fault fault;
    if (tryDecode(json.root(), access, fault))
        return {std::move(access), {}};
    return {{}, FailedAttempt{PlanningAccessRecord, std::move(fault)}};
}

planninginfo_v1 readPlanningAccess(const fs::path& path) {
    return decode<planninginfo_v1>(JsonDocument::fromFile(path));
}

void savePlanningAccess(const planninginfo_v1& access, const fs::path& path) {
    const bool isNew = !fs::exists(path);
    writeFileSafely(path, encode(access));
    std::error_code error;
    if (isNew) // a disk without permissions has no other readers to keep out
        fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write, error);
}

std::vector<PersonWithAccess> peopleOf(const planninginfo_v1& access) {
    std::vector<PersonWithAccess> people;
    for (std::size_t i = 0; i < access.people.size(); ++i)
        people.push_back({access.people[i], entryOrZero(access.permissions, i)});
    return people;
}

} // namespace kavela
