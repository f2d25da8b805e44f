#include "ratios.h"
#include "subjects.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace {

/// The files that seasons are asked over: the number behind --files=, which is taken out of the
/// words; 300 without it, which takes seconds where the 5,000 of a federation take minutes.
std::size_t filesIn(int& count, char** words) {
    constexpr std::string_view Option = "--files=";
    constexpr std::size_t Fewest = 20;
    std::size_t files = 300;
    char** const end = std::remove_if(words + 1, words + count, [&](std::string_view word) {
        if (!word.starts_with(Option))
            return false;
        std::from_chars(word.data() + Option.size(), word.data() + word.size(), files);
        return true;
    });
    count = static_cast<int>(end - words);
    return std::max(files, Fewest);
}

} // namespace

/// Runs the benchmarks, all or those that --benchmark_filter names, and ends with the table of
/// ratios. The exit status is 1 when a target was missed.
int main(int count, char** words) {
    using namespace kavela::bench;
    const std::size_t files = filesIn(count, words);
    benchmark::Initialize(&count, words);
    if (benchmark::ReportUnrecognizedArguments(count, words))
        return 2;
    addSessionDecode();
    addSessionEncode();
    addUpgrade();
    addMemory();
    addSeason();
    addComparedSeason();
    addSplitTable();
    addSpreadsheet();
    addShowCommand();
    addLosses();
    addVideo();
    addMotionAnalysis();
    addFacts(files);
    addCompose();
    addFilmFolder();
    addRaceDay();
    addTracking();
    addSlit();
    ValueReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return printRatios(reporter.values()) > 0 ? 1 : 0;
}
