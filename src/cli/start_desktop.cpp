#include "cli/start_desktop.h"

#include "cli/console.h"
#include "cli/other_program.h"
#include "common/text.h"

#include <filesystem>
#include <utility>

namespace kavela::cli {

namespace fs = std::filesystem;

int startDesktop(const std::vector<std::string>& files, bool isNew) {
    for (const std::string& file : files) {
        std::error_code ignored;
        if (!fs::exists(file, ignored)) {
            logLine(
                say("There is no file and no command {}. Run with --help for the commands.", file));
            return WrongCall;
        }
    }
    constexpr OtherProgram Desktop{"kavela-desktop", "KAVELA_DESKTOP"};
    std::vector<std::string> arguments;
    if (isNew)
        arguments.emplace_back("--new");
    arguments.insert(arguments.end(), files.begin(), files.end());
    const std::string program = become(Desktop, std::move(arguments));
    logLine(say("The desktop program could not be started: {}", program));
    return NotDone;
}

} // namespace kavela::cli
