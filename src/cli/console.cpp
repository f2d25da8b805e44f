#include "cli/console.h"

#include "common/display_text.h"
#include "common/text.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace kavela::cli {

namespace {

Terminal describe(int descriptor) {
    Terminal terminal;
    terminal.isTerminal = ::isatty(descriptor) == 1;
    const char* const noColor = std::getenv("NO_COLOR");
    terminal.hasColours = terminal.isTerminal && (!noColor || *noColor == '\0');
    struct ::winsize size {};
    if (terminal.isTerminal && ::ioctl(descriptor, TIOCGWINSZ, &size) == 0)
        terminal.width = size.ws_col;
    return terminal;
}

} // namespace

void logLine(std::string_view line) {
    // Names inside a document must not steer the terminal; to a file they go as they are.
    const std::string said(translated(line));
    const std::string text = standardError().isTerminal ? printable(said) : said;
    std::fprintf(stderr, "%s\n", text.c_str());
}

void logNothing(std::string_view) {}

void ConsoleAlerts::show(const Alert& alert) {
    if (!alert.title.empty())
        logLine(alert.title);
    logLine(alert.text);
}

bool print(std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() &&
           std::fflush(stdout) == 0;
}

std::string pathText(const std::filesystem::path& path) {
    return validUtf8(path.string());
}

std::string counted(std::int64_t count, std::string_view singular, std::string_view plural) {
    return countedWords(count, singular, plural);
}

Terminal standardOutput() {
    return describe(STDOUT_FILENO);
}

Terminal standardError() {
    return describe(STDERR_FILENO);
}

} // namespace kavela::cli
