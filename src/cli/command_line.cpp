#include "cli/command_line.h"

#include "cli/call.h"
#include "cli/commands.h"
#include "cli/completion_text.h"
#include "cli/console.h"
#include "cli/other_program.h"
#include "cli/painting.h"
#include "cli/spoken_language.h"
#include "cli/start_desktop.h"
#include "common/text.h"

#include <exception>
#include <new>
#include <string>
#include <vector>

namespace kavela::cli {

namespace {

/// Parses the call and runs the subcommand it names.
int run(int argc, char** argv, const char* version, const Painting* painting) {
    Call call("kavela", KAVELA_TEXT("Kavela: splits, results and recordings of canoe slalom."),
              version);
    Command program = call.program();
    program.footer(
        "Without a command, the desktop program starts and opens the files in their tools.");
    std::vector<std::string> files;
    program.option("FILE", files, "Files to open in the desktop program");
    bool isNew = false;
    program.flag("--new", isNew, "Start another desktop program, also where one runs");
    std::string shell;
    program.option("--completion", shell, "Prints what a shell completes calls by")
        .oneOf({"bash", "zsh", "fish"})
        .hidden();
    bool isManual = false;
    program.flag("--manual", isManual, "Prints the page of the manual").hidden();
    std::string language; // heeded before the call is read: its helps are in that language
    program.option("--language", language, "Language of what is said: en or one that is built in");
    int status = Done;
    addInfo(program, status);
    addUpgrade(program, status);
    addShow(program, status, painting);
    addPerfect(program, status);
    addExport(program, status, painting);
    addImportResults(program, status);
    addCollect(program, status, painting);
    addTeam(program, status, painting);
    addSelection(program, status, painting);
    addPlanning(program, status);
    addGym(program, status);
    addConvert(program, status);
    addStrokes(program, status);
    addFind(program, status);
    addFacts(program, status);
    addLosses(program, status, painting);
    addPage(program, status, painting);
    addPenalties(program, status);
    addSeason(program, status, painting);
    addTable(program, status);
    addCompose(program, status, painting);
    addTrack(program, status, painting);
    addFetch(program, status, painting);
    addShare(program, status, painting);
    addSlit(program, status, painting);
    addDemo(program, status, painting);
    if (const auto ended = call.run(argc, argv))
        return *ended;
    if (isManual || !shell.empty()) // for packages, which take it along
        return print(isManual ? manualText(call.outline(), version)
                              : completionText(call.outline(), shell))
                   ? Done
                   : NotDone;
    return call.namesCommand() ? status : startDesktop(files, isNew);
}

int handOn(int argc, char** argv) {
    constexpr OtherProgram PaintingProgram{"kavela-paint", "KAVELA_PAINT"};
    const std::string program = become(PaintingProgram, {argv + 1, argv + argc});
    logLine(say(
        "This call needs the program that paints and makes films, which could not be started: {}",
        program));
    return NotDone;
}

} // namespace

int runCommandLine(int argc, char** argv, const char* version, const Painting* painting) {
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        return speakAsCalled(arguments) ? run(argc, argv, version, painting) : WrongCall;
    } catch (const NeedsPainting&) {
        return handOn(argc, argv);
    } catch (const std::bad_alloc&) {
        logLine("There is not enough memory for this file.");
    } catch (const std::exception& error) {
        logLine(error.what());
    }
    return NotDone;
}

} // namespace kavela::cli
