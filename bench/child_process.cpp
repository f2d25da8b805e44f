#include "child_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace kavela::bench {

namespace {

pid_t start(const std::vector<std::string>& command, int output) {
    std::vector<char*> arguments;
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t child = 0;
    const int code =
        ::posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (code != 0)
        throw std::runtime_error("cannot start " + command[0]);
    return child;
}

std::string readToEnd(int input) {
    std::string text;
    std::array<char, 1 << 16> chunk{};
    for (ssize_t got = 0; (got = ::read(input, chunk.data(), chunk.size())) > 0;)
        text.append(chunk.data(), static_cast<std::size_t>(got));
    return text;
}

} // namespace

std::string outputOf(const std::vector<std::string>& command) {
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("cannot make a pipe");
    const pid_t child = start(command, pipe[1]);
    ::close(pipe[1]);
    std::string output = readToEnd(pipe[0]);
    ::close(pipe[0]);
    int status = 0;
    if (::waitpid(child, &status, 0) != child || status != 0)
        throw std::runtime_error(command[0] + " failed");
    return output;
}

} // namespace kavela::bench
