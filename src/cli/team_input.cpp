#include "cli/team_input.h"

#include "cli/console.h"
#include "common/text.h"
#include "results/team_file.h"
#include "splitdata/loader.h"

namespace kavela::cli {

std::optional<myTeamToSaveStruct> teamOfFile(const std::string& path) {
    std::string reason;
    try {
        return readTeamFile(path);
    } catch (const DecodeError& error) {
        reason = error.what();
    } catch (const FileError& error) {
        reason = error.reason();
    }
    logLine(say("The file could not be read: {}", reason));
    ConsoleAlerts().show({"", IncompatibleFileText});
    return std::nullopt;
}

} // namespace kavela::cli
