#include "cli/start_desktop.h"

#include "cli/console.h"

#include <unistd.h>

#include <filesystem>

namespace kavela::cli {

namespace fs = std::filesystem;

int startDesktop(std::vector<std::string> files) {
    for (const std::string& file : files) {
        std::error_code ignored;
        if (!fs::exists(file, ignored)) {
            logLine("There is no file and no command " + file +
                    ". Run with --help for the commands.");
            return WrongCall;
        }
    }
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    std::string program = (self.parent_path() / "kavela-desktop").string();
    std::vector<char*> arguments{program.data()};
    for (std::string& file : files)
        arguments.push_back(file.data());
    arguments.push_back(nullptr);
    ::execv(program.c_str(), arguments.data());
    logLine("The desktop program could not be started: " + program);
    return NotDone;
}

} // namespace kavela::cli
