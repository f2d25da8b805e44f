#include "cli/commands.h"

#include "cli/console.h"
#include "cli/painting.h"

#include <memory>

namespace kavela::cli {

namespace {

constexpr const char* ShareHelp =
    "The address is that of a folder on a WebDAV server (https, or http on this computer). It is "
    "remembered with the folder, so that --to is needed once. What differs is printed first; on a "
    "terminal it is then asked for. What both sides changed is kept twice: \"NAME (from MACHINE, "
    "DATE)\" is the one of this computer. Nothing is deleted without --delete. The password of "
    "--user comes from the store of the desktop, or is asked for; it is kept in no file.";

} // namespace

void addShare(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<FolderShareCall>();
    Command command = program.command("share", "Shares a folder with a server, both ways");
    command.option("FOLDER", call->folder, "The folder on this computer").required();
    command.option("--to", call->to, "Address of the folder on the server");
    command.option("--user", call->user, "User name for the server");
    command.flag("--dry-run", call->showsOnly, "Only print what would be done");
    command.flag("--yes", call->isAgreed, "Do not ask before anything is done");
    command.flag("--delete", call->deletes,
                 "Delete on each side what was deleted on the other and not changed since");
    command.flag("--json", call->isJson, "Print JSON; nothing is asked");
    command.footer(ShareHelp);
    command.onRun([=, &status] { status = needed(painting).shareFolder(*call); });
}

} // namespace kavela::cli
