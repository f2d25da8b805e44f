#include "cli/commands.h"
#include "cli/console.h"
#include "cli/start_desktop.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <new>

using namespace kavela;

namespace {

/// Parses the call and runs the subcommand it names.
int run(int argc, char** argv) {
    CLI::App app{"Kavela: splits, results and recordings of canoe slalom.", "kavela"};
    app.set_version_flag("--version", KAVELA_VERSION);
    app.require_subcommand(0, 1);
    app.footer("Without a command, the desktop program starts and opens the files in their tools.");
    std::vector<std::string> files;
    app.add_option("FILE", files, "Files to open in the desktop program");
    app.get_formatter()->column_width(34);
    int status = cli::Done;
    cli::addInfo(app, status);
    cli::addUpgrade(app, status);
    cli::addShow(app, status);
    cli::addPerfect(app, status);
    cli::addExport(app, status);
    cli::addImportResults(app, status);
    cli::addCollect(app, status);
    cli::addTeam(app, status);
    cli::addSelection(app, status);
    cli::addPlanning(app, status);
    cli::addGym(app, status);
    cli::addConvert(app, status);
    cli::addStrokes(app, status);
    cli::addDemo(app, status);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::Done : cli::WrongCall;
    }
    return app.get_subcommands().empty() ? cli::startDesktop(files) : status;
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
