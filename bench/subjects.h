#pragma once

#include <cstddef>

/// Each function adds the benchmarks of one subject.
namespace kavela::bench {

void addSessionDecode();
void addSessionEncode();
void addUpgrade();
void addMemory();
void addSeason();
void addComparedSeason();
void addSplitTable();
void addSpreadsheet();
void addShowCommand();
void addLosses();
void addVideo();
void addMotionAnalysis();
/// Over so many split files, at least 20.
void addFacts(std::size_t files);
void addCompose();
void addFilmFolder();
void addRaceDay();
void addTracking();
void addSlit();

} // namespace kavela::bench
