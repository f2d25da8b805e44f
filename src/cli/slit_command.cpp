#include "cli/commands.h"

#include "cli/console.h"
#include "cli/painting.h"

#include <array>
#include <charconv>
#include <cmath>
#include <memory>
#include <optional>
#include <string_view>

namespace kavela::cli {

namespace {

constexpr const char* SlitHelp =
    "The line goes from its first end, which is the upper edge of the picture, to its second one, "
    "in pixels of the upright film. Every frame is a column; below stands the time in seconds of "
    "the film. With --json the frame and the exact stamp of each column are printed. With "
    "--proposals boats are looked for that cross the line: they come from --side of who looks "
    "along it, and --boat is a box round one of them. Proposals are places to look at, not times.";

/// Four numbers set apart by commas; nothing for any other text.
std::optional<std::array<double, 4>> fourNumbers(std::string_view text) {
    std::array<double, 4> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto [end, fault] =
            std::from_chars(text.data(), text.data() + text.size(), numbers[i]);
        const auto used = static_cast<std::size_t>(end - text.data());
        if (fault != std::errc() || !std::isfinite(numbers[i]))
            return std::nullopt;
        text.remove_prefix(used);
        if (i + 1 == numbers.size())
            break;
        if (text.empty() || text.front() != ',')
            return std::nullopt;
        text.remove_prefix(1);
    }
    return text.empty() ? std::optional(numbers) : std::nullopt;
}

Complaint fourNumbersIn(const char* what) {
    return [what](const std::string& text) {
        return fourNumbers(text) ? std::string() : '"' + text + "\" is not " + what;
    };
}

/// The optional outlives the call.
void addSeconds(Command& command, const char* name, std::optional<double>& seconds,
                const char* help) {
    const auto read = [](const std::string& text) -> std::optional<double> {
        double value = 0;
        const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
        const bool isWhole = fault == std::errc() && end == text.data() + text.size();
        return isWhole && std::isfinite(value) ? std::optional(value) : std::nullopt;
    };
    command
        .option(
            name, [&seconds, read](const std::string& text) { seconds = read(text); }, help)
        .check([read](const std::string& text) {
            return read(text) ? std::string() : '"' + text + "\" is not a number of seconds";
        });
}

} // namespace

void addSlit(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<SlitCall>();
    const auto line = std::make_shared<std::string>();
    const auto boat = std::make_shared<std::string>();
    const auto side = std::make_shared<std::string>("left");
    Command command =
        program.command("slit", "Shows what stood on a line of a film over time, as a picture");
    command.option("FILM", call->film, "Film of a camera that stands still").required();
    command.option("--line", *line, "X1,Y1,X2,Y2: the ends of the line in pixels")
        .required()
        .check(fourNumbersIn("four numbers X1,Y1,X2,Y2"));
    addSeconds(command, "--from", call->from, "From this second of the film on");
    addSeconds(command, "--to", call->to, "Up to this second");
    command.option("-o,--output", call->output, "Picture to write (.png)");
    command.flag("--json", call->isJson, "Print the frame and stamp of every column as JSON");
    command.flag("--proposals", call->hasProposals, "Look for boats that cross the line");
    command.option("--boat", *boat, "X,Y,WIDTH,HEIGHT: a box round one boat, for --proposals")
        .check(fourNumbersIn("four numbers X,Y,WIDTH,HEIGHT"));
    command.option("--side", *side, "Where boats come from: left or right of the line")
        .oneOf({"left", "right"});
    command.footer(SlitHelp);
    command.onRun([=, &status] {
        call->line = *fourNumbers(*line);
        if (!boat->empty())
            call->boat = *fourNumbers(*boat);
        call->isFromLeft = *side == "left";
        if (call->output.empty() && !call->isJson && !call->hasProposals) {
            logLine("Nothing to do: name a picture with -o, or ask for --json or --proposals.");
            status = WrongCall;
            return;
        }
        if (call->hasProposals && boat->empty()) {
            logLine("--proposals needs a box round one boat: --boat X,Y,WIDTH,HEIGHT.");
            status = WrongCall;
            return;
        }
        status = needed(painting).writeSlit(*call);
    });
}

} // namespace kavela::cli
