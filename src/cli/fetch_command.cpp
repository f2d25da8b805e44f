#include "cli/commands.h"

#include "cli/console.h"
#include "cli/painting.h"

#include <memory>

namespace kavela::cli {

namespace {

constexpr const char* FetchHelp =
    "SOURCE.json is written by the window \"Fetch films\", or by hand:\n"
    "    {\"address\": \"https://films.example.org/troja/{bib:3}.mp4\", \"bibs\": "
    "\"startlist.csv\",\n"
    "     \"folder\": \"films\", \"names\": \"{name} {phase}\", \"hosts\": []}\n"
    "An address without {bib}, {category}, {phase} or {run} is that of a list: a page, JSON, M3U8 "
    "or a WebDAV folder, whose films are known by the bibs in their names. What would be fetched "
    "is "
    "printed first; on a terminal it is then asked for. Films come from the server of the address "
    "and those in \"hosts\" alone. A call that was stopped goes on where it was when it is "
    "repeated; "
    "no file is ever overwritten. The password of --user comes from the store of the desktop, or "
    "is "
    "asked for; it is kept in no file.";

} // namespace

void addFetch(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<FilmFetchCall>();
    Command command = program.command("fetch", "Fetches the films of a race by their bibs");
    command.option("SOURCE", call->source, "Where the films come from (.json)").required();
    command.flag("--show", call->showsOnly, "Only print what would be fetched");
    command.flag("--yes", call->isAgreed, "Do not ask before anything is fetched");
    command.option("--user", call->user, "User name for the server of the address");
    command.footer(FetchHelp);
    command.onRun([=, &status] { status = needed(painting).fetchFilms(*call); });
}

} // namespace kavela::cli
