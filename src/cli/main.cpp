#include "cli/call.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/start_desktop.h"

#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

using namespace kavela;

namespace {

/// Parses the call and runs the subcommand it names.
int run(int argc, char** argv) {
    cli::Call call("kavela", "Kavela: splits, results and recordings of canoe slalom.",
                   KAVELA_VERSION);
    cli::Command program = call.program();
    program.footer(
        "Without a command, the desktop program starts and opens the files in their tools.");
    std::vector<std::string> files;
    program.option("FILE", files, "Files to open in the desktop program");
    int status = cli::Done;
    cli::addInfo(program, status);
    cli::addUpgrade(program, status);
    cli::addShow(program, status);
    cli::addPerfect(program, status);
    cli::addExport(program, status);
    cli::addImportResults(program, status);
    cli::addCollect(program, status);
    cli::addTeam(program, status);
    cli::addSelection(program, status);
    cli::addPlanning(program, status);
    cli::addGym(program, status);
    cli::addConvert(program, status);
    cli::addStrokes(program, status);
    cli::addDemo(program, status);
    if (const auto ended = call.run(argc, argv))
        return *ended;
    return call.namesCommand() ? status : cli::startDesktop(files);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc&) {
        cli::logLine("There is not enough memory for this file.");
        return cli::NotDone;
    } catch (const std::exception& error) {
        cli::logLine(error.what());
        return cli::NotDone;
    }
}
