#include "splittaking/results_match.h"

#include "common/folded_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace kavela {

namespace {

/// The words of a name in an order of their own.
std::string keyOf(std::string_view name) {
    const std::string text = folded(name);
    std::vector<std::string> words;
    std::string word;
    for (const char letter : text + ' ') {
        const bool isPart = static_cast<unsigned char>(letter) >= 128 ||
                            (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
        if (isPart)
            word += letter;
        else if (!word.empty())
            words.push_back(std::exchange(word, {}));
    }
    std::ranges::sort(words);
    std::string key;
    for (const std::string& each : words)
        key += each + ' ';
    return key;
}

} // namespace

std::vector<ResultOfRun> matchedResults(const std::vector<athletedata031>& runs,
                                        const std::vector<allresultsdata030>& lines) {
    std::map<std::string, std::size_t> byName;
    for (std::size_t line = 0; line < lines.size(); ++line)
        byName.try_emplace(keyOf(lines[line].name), line);
    byName.erase(std::string());
    std::vector<ResultOfRun> matched;
    for (std::size_t run = 0; run < runs.size(); ++run) {
        const auto found = byName.find(keyOf(crewText(runs[run].names)));
        matched.push_back(
            {run, found == byName.end() ? std::nullopt : std::optional(found->second)});
    }
    return matched;
}

void takeResult(athletedata031& run, const allresultsdata030& line) {
    run.sectioninfo.realtime = line.time;
    run.sectioninfo.realpen = line.pen;
}

} // namespace kavela
