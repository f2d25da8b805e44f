#pragma once

#include "common/temp_folder.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <map>

namespace kavela::test {

/// What is said of a file that is none of ours.
inline constexpr const char* Incompatible =
    "The imported file is not compatible. Be sure you have the latest KV version.";

/// How a call of the program ended.
struct Ending {
    int status = -1; ///< -1 when it did not end by itself
    std::string output;
    std::string errors;
};

/// The built program, called in a folder of its own, with preferences of its own.
class Program {
public:
    explicit Program(std::string program = KAVELA_PROGRAM) : m_program(std::move(program)) {}

    [[nodiscard]] const TempFolder& folder() const { return m_work; }

    /// Calls it with the work folder as the current one and a file as its input.
    Ending call(const std::vector<std::string>& arguments,
                const std::string& input = "/dev/null") const {
        const std::string output = (m_home.path() / "output").string();
        const std::string errors = (m_home.path() / "errors").string();
        const pid_t child = ::fork();
        if (child == 0)
            become(arguments, input, output, errors);
        int status = 0;
        ::waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(output), contentOf(errors)};
    }

    /// Writes the user's preferences, lines of "key=value".
    void prefer(const std::string& lines) const {
        std::filesystem::create_directories(m_home.path() / "config" / "Kavela");
        (void)m_home.add("config/Kavela/Kavela.conf", "[General]\n" + lines);
    }

    /// Everything in the work folder by name: contents of files, "folder" for a folder.
    [[nodiscard]] std::map<std::string, std::string> everything() const {
        std::map<std::string, std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_work.path()))
            found[std::filesystem::relative(entry.path(), m_work.path()).string()] =
                entry.is_regular_file() && entry.file_size() < (1U << 20) ? contentOf(entry.path())
                : entry.is_directory()                                    ? "folder"
                                                                          : "large or no file";
        return found;
    }

    /// Where it keeps what it read.
    [[nodiscard]] std::filesystem::path cache() const {
        return m_home.path() / ".cache" / "Kavela" / "facts";
    }

    [[nodiscard]] bool hasPreferences() const {
        return std::filesystem::exists(m_home.path() / "config");
    }

private:
    [[noreturn]] void become(std::vector<std::string> arguments, const std::string& input,
                             const std::string& output, const std::string& errors) const {
        ::setenv("HOME", m_home.path().c_str(), 1);
        ::unsetenv("XDG_CACHE_HOME");
        ::setenv("XDG_CONFIG_HOME", (m_home.path() / "config").c_str(), 1);
        arguments.insert(arguments.begin(), m_program);
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        const bool isReady =
            ::chdir(m_work.path().c_str()) == 0 && std::freopen(input.c_str(), "r", stdin) &&
            std::freopen(output.c_str(), "w", stdout) && std::freopen(errors.c_str(), "w", stderr);
        if (isReady)
            ::execv(m_program.c_str(), pointers.data());
        ::_exit(127);
    }

    std::string m_program;
    TempFolder m_work;
    TempFolder m_home;
};

} // namespace kavela::test
