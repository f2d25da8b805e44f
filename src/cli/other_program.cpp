#include "cli/other_program.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace kavela::cli {

namespace fs = std::filesystem;

std::string become(const OtherProgram& other, std::vector<std::string> arguments) {
    const char* const named = std::getenv(other.variable);
    const bool isNamed = named && *named;
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    std::string program = isNamed ? named : (self.parent_path() / other.name).string();

    std::vector<char*> pointers{program.data()};
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    ::execv(program.c_str(), pointers.data());
    if (!isNamed)
        ::execvp(other.name, pointers.data());
    return program;
}

} // namespace kavela::cli
