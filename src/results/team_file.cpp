#include "results/team_file.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"

namespace kavela {

RecognisedTeam recogniseTeamDocument(const JsonDocument& json) {
    myTeamToSaveStruct team;
    Fault fault;
    if (tryDecode(json.root(), team, fault))
        return {std::move(team), {}};
    return {{}, FailedAttempt{TeamRecord, std::move(fault)}};
}

myTeamToSaveStruct readTeamFile(const std::filesystem::path& path) {
    return decode<myTeamToSaveStruct>(JsonDocument::fromFile(path));
}

void saveTeamFile(const myTeamToSaveStruct& team, const std::filesystem::path& path) {
    writeFileSafely(path, encode(team));
}

} // namespace kavela
