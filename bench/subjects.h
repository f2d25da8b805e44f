#pragma once

/// Each function adds the benchmarks of one subject.
namespace kavela::bench {

void addSessionDecode();
void addSessionEncode();
void addUpgrade();
void addMemory();
void addSeason();
void addSplitTable();
void addShowCommand();
void addLosses();
void addVideo();
void addMotionAnalysis();
void addFacts();
void addCompose();

} // namespace kavela::bench
