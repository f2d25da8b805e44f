#pragma once

#include "cli/call.h"

/// The subcommands of `kavela`. Each adds itself to the call's parser; when the call names it, it
/// does its work and leaves the exit status. `painting` is null in a program that has none.
namespace kavela::cli {

class Painting;

void addInfo(Command program, int& status);
void addUpgrade(Command program, int& status);
void addShow(Command program, int& status, const Painting* painting);
void addPerfect(Command program, int& status);
void addExport(Command program, int& status, const Painting* painting);
void addImportResults(Command program, int& status);
void addCollect(Command program, int& status, const Painting* painting);
void addTeam(Command program, int& status, const Painting* painting);
void addSelection(Command program, int& status, const Painting* painting);
void addPlanning(Command program, int& status);
void addGym(Command program, int& status);
void addConvert(Command program, int& status);
void addStrokes(Command program, int& status);
void addFind(Command program, int& status);
void addFacts(Command program, int& status);
void addLosses(Command program, int& status, const Painting* painting);
void addPage(Command program, int& status, const Painting* painting);
void addPenalties(Command program, int& status);
void addSeason(Command program, int& status, const Painting* painting);
void addTable(Command program, int& status);
void addCompose(Command program, int& status, const Painting* painting);
void addTrack(Command program, int& status, const Painting* painting);
void addFetch(Command program, int& status, const Painting* painting);
void addShare(Command program, int& status, const Painting* painting);
void addSlit(Command program, int& status, const Painting* painting);
void addDemo(Command program, int& status, const Painting* painting);

} // namespace kavela::cli
