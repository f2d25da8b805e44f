#pragma once

#include <CLI/App.hpp>

/// The subcommands of `kavela`. Each adds itself to the call's parser; when the call names it, it
/// does its work and leaves the exit status.
namespace kavela::cli {

void addInfo(CLI::App& app, int& status);
void addUpgrade(CLI::App& app, int& status);
void addShow(CLI::App& app, int& status);
void addPerfect(CLI::App& app, int& status);
void addExport(CLI::App& app, int& status);
void addImportResults(CLI::App& app, int& status);
void addCollect(CLI::App& app, int& status);
void addTeam(CLI::App& app, int& status);
void addSelection(CLI::App& app, int& status);
void addPlanning(CLI::App& app, int& status);
void addGym(CLI::App& app, int& status);
void addConvert(CLI::App& app, int& status);
void addStrokes(CLI::App& app, int& status);
void addDemo(CLI::App& app, int& status);

} // namespace kavela::cli
