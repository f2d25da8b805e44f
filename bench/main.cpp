#include "ratios.h"
#include "subjects.h"

/// Runs the benchmarks, all or those that --benchmark_filter names, and ends with the table of
/// ratios. The exit status is 1 when a target was missed.
int main(int count, char** words) {
    using namespace kavela::bench;
    benchmark::Initialize(&count, words);
    if (benchmark::ReportUnrecognizedArguments(count, words))
        return 2;
    addSessionDecode();
    addSessionEncode();
    addUpgrade();
    addMemory();
    addSeason();
    addSplitTable();
    addShowCommand();
    addLosses();
    addVideo();
    addMotionAnalysis();
    addFacts();
    addCompose();
    ValueReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return printRatios(reporter.values()) > 0 ? 1 : 0;
}
