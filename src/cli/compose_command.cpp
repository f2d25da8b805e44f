#include "cli/commands.h"

#include "cli/painting.h"

#include <memory>

namespace kavela::cli {

namespace {

struct ComposeCall {
    std::string job;
    std::string output;
};

} // namespace

void addCompose(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<ComposeCall>();
    Command command = program.command("compose", "Composes a film of several runs");
    command.option("JOB", call->job, "What is to be composed (.json)").required();
    command.option("-o,--output", call->output, "File to write, in place of the job's own");
    command.footer("The job names two to four films or runs of split files, how they stand and how "
                   "they are held together; names of files are relative to it. A file that is "
                   "there already stays: the new one is named \"NAME 2\". A call that is stopped "
                   "leaves nothing.");
    command.onRun([=, &status] { status = needed(painting).composeFilm(call->job, call->output); });
}

} // namespace kavela::cli
