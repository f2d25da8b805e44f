#include "cli/commands.h"

#include "cli/painting.h"
#include "common/typed_number.h"

#include <memory>
#include <optional>
#include <string>

namespace kavela::cli {

namespace {

/// "X,Y,W,H", with points for decimal signs.
std::optional<TrackCall::Box> typedBox(const std::string& text) {
    TrackCall::Box box{};
    std::size_t from = 0;
    for (std::size_t i = 0; i < box.size(); ++i) {
        const std::size_t comma = text.find(',', from);
        if ((comma == std::string::npos) != (i + 1 == box.size()))
            return std::nullopt;
        const auto number = typedReal(text.substr(from, comma - from));
        if (!number)
            return std::nullopt;
        box[i] = *number;
        from = comma + 1;
    }
    return box;
}

std::string boxComplaint(const std::string& text) {
    return typedBox(text)
               ? ""
               : "\"" + text + "\" is no box; X,Y,WIDTH,HEIGHT in pixels, as 400,220,60,80";
}

std::string trackSecondsComplaint(const std::string& text) {
    return typedSeconds(text) ? ""
                              : "\"" + text + "\" is no time of the film, such as 12.5 or 1:02.5";
}

} // namespace

void addTrack(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<TrackCall>();
    Command command =
        program.command("track", "Follows a boat, gate or head through a film, as a table");
    command.option("FILM", call->film, "Film to look at").required();
    command
        .option(
            "--box",
            [call](const std::string& text) { call->box = typedBox(text).value_or(call->box); },
            "What is followed: X,Y,WIDTH,HEIGHT in pixels of the picture, from its upper left "
            "corner")
        .required()
        .check(&boxComplaint);
    command
        .option(
            "--at", [call](const std::string& text) { call->at = typedSeconds(text).value_or(0); },
            "Second of the film at which the box was drawn")
        .required()
        .check(&trackSecondsComplaint);
    command
        .option(
            "--to", [call](const std::string& text) { call->to = typedSeconds(text); },
            "Second at which following ends; otherwise where it is lost, or the film ends")
        .check(&trackSecondsComplaint);
    command.option("--plane", call->plane,
                   "Known points on the water (.json), for metres and speeds");
    command.option("-o,--output", call->output, "File to write (.csv)").required();
    command.footer("A line for each frame: where it is, the same without the camera's motion, and "
                   "with --plane metres and metres a second. Frames in which it was not seen have "
                   "their number alone: nothing is invented. A file that is there is replaced.");
    command.onRun([=, &status] { status = needed(painting).trackFilm(*call); });
}

} // namespace kavela::cli
