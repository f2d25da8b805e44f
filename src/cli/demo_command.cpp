#include "cli/commands.h"

#include "cli/console.h"
#include "cli/painting.h"
#include "common/error.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <fstream>
#include <iterator>
#include <memory>

namespace kavela::cli {

namespace {

namespace fs = std::filesystem;

/// Whether a sample file would replace something of the user's own.
bool wouldReplace(const fs::path& target, const SampleFile& file) {
    std::ifstream present(target, std::ios::binary);
    if (!present)
        return fs::exists(target);
    const std::string content{std::istreambuf_iterator<char>(present), {}};
    return content != file.content;
}

int writeSeason(const fs::path& folder, const std::vector<SampleFile>& season) {
    for (const SampleFile& file : season) {
        if (wouldReplace(folder / file.name, file)) {
            logLine(say("The file {} exists and is not the sample's. Choose another folder.",
                        pathText(folder / file.name)));
            return NotDone;
        }
    }
    for (const SampleFile& file : season) {
        const fs::path target = folder / file.name;
        std::error_code error;
        fs::create_directories(target.parent_path(), error);
        if (error)
            throw FileError(target.parent_path(), error.message());
        writeFileSafely(target, file.content);
    }
    const std::string count = counted(static_cast<std::int64_t>(season.size()), "file", "files");
    return print("The sample season stands in " + pathText(folder) + ": " + count + ".\n")
               ? Done
               : NotDone;
}

int demo(const fs::path& folder, bool withFilms, const Painting& painting) {
    try {
        const int status = writeSeason(folder, painting.sampleFiles());
        return status == Done && withFilms ? painting.writeSeasonFilms(folder) : status;
    } catch (const FileError& error) {
        logLine("Failed to create file");
        logLine(
            say("The file {} could not be written: {}", pathText(error.path()), error.reason()));
        return NotDone;
    }
}

} // namespace

void addDemo(Command program, int& status, const Painting* painting) {
    const auto folder = std::make_shared<std::string>();
    Command command = program.command("demo", "Writes a sample season to try Kavela with");
    command.option("FOLDER", *folder, "Folder to write to; made where it is missing").required();
    const auto withFilms = std::make_shared<bool>(false);
    command.flag("--videos", *withFilms, "Makes short films of runs as well");
    command.footer("The films show the final of races/riverside_cup.kvx and all runs of "
                   "races/harbour_night.kvx and training/form_test.kvx from above and one camera's "
                   "film of all sprints of "
                   "camera/sprint.kvx, and stand beside these files: 64 films, 86 MB in all, made "
                   "in about a minute. A film that is there already "
                   "stays as it is, so that a call that was stopped can be repeated.");
    command.onRun([=, &status] { status = demo(*folder, *withFilms, needed(painting)); });
}

} // namespace kavela::cli
