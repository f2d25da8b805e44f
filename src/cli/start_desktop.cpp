#include "cli/start_desktop.h"

#include "cli/console.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace kavela::cli {

namespace fs = std::filesystem;

namespace {

// A checkout builds the desktop when it is first started: it names a program that does.
std::string desktopProgram() {
    if (const char* named = std::getenv("KAVELA_DESKTOP"); named && *named)
        return named;
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    return (self.parent_path() / "kavela-desktop").string();
}

} // namespace

int startDesktop(std::vector<std::string> files) {
    for (const std::string& file : files) {
        std::error_code ignored;
        if (!fs::exists(file, ignored)) {
            logLine("There is no file and no command " + file +
                    ". Run with --help for the commands.");
            return WrongCall;
        }
    }
    std::string program = desktopProgram();
    std::vector<char*> arguments{program.data()};
    for (std::string& file : files)
        arguments.push_back(file.data());
    arguments.push_back(nullptr);
    ::execv(program.c_str(), arguments.data());
    logLine("The desktop program could not be started: " + program);
    return NotDone;
}

} // namespace kavela::cli
