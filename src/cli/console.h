#pragma once

#include "common/alerts.h"
#include "common/log.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

/// What the command line says, and where: results on standard output, log lines and messages on
/// standard error.
namespace kavela::cli {

/// Exit statuses of `kavela`.
enum ExitStatus { Done = 0, NotDone = 1, WrongCall = 2 };

/// Writes a line to standard error: the diagnostic log of the command line.
void logLine(std::string_view line);

/// A diagnostic log that nobody reads.
void logNothing(std::string_view line);

/// Alerts as lines on standard error.
class ConsoleAlerts : public Alerts {
public:
    void show(const Alert& alert) override;
};

/// Writes text to standard output; false when that failed (a full disk behind a redirection).
[[nodiscard]] bool print(std::string_view text);

/// A path as text for people and JSON, whatever bytes its name holds.
[[nodiscard]] std::string pathText(const std::filesystem::path& path);

/// A size as JSON and texts have numbers.
[[nodiscard]] constexpr std::int64_t whole(std::size_t size) {
    return static_cast<std::int64_t>(size);
}

/// "1 run", "60 runs".
[[nodiscard]] std::string counted(std::int64_t count, std::string_view singular,
                                  std::string_view plural);

/// How a stream takes text. Colours are wanted on a terminal, unless NO_COLOR is set.
struct Terminal {
    bool isTerminal = false;
    bool hasColours = false;
    int width = 0; ///< columns; 0 when unlimited
};

[[nodiscard]] Terminal standardOutput();
[[nodiscard]] Terminal standardError();

} // namespace kavela::cli
