#include "results/selection_edit.h"
#include "results/selection_import.h"
#include "splittaking/course_setup.h"
#include "splittaking/results_import.h"
#include "splittaking/video_names.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Texts that people and spreadsheets write: result lists, lists of athletes, gate numbers, names
/// of films. Whatever comes, nothing taken over is out of its range.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    for (const SkippedLine& line : parseResults(text).skipped)
        if (line.line < 2)
            std::abort(); // the header is never reported
    for (const auto gate : parseGateList(text, 25).gates)
        if (gate < 1 || gate > 25)
            std::abort();
    const std::string_view pattern = text.substr(0, text.find('\n'));
    (void)filmFacts(text, faultOfVideoPattern(pattern) ? DefaultVideoPattern : pattern);

    selectionracesStruct_v3 selection;
    addRace(selection, "Riverside");
    (void)importAthletes(selection, text);
    for (const ResultLayout layout : {ResultLayout::ComaMode, ResultLayout::Tacen})
        if (!selection.categories.empty())
            (void)enterRuns(selection, 0, foundInList(selection, 0, layout, text));
    for (const srCategoryStruct_v3& category : selection.categories)
        for (const srAthleteStruct_v3& athlete : category.athletes)
            if (athlete.racedata.size() != 1)
                std::abort();
    return 0;
}
