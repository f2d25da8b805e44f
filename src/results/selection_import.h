#pragma once

#include "results/list_lines.h"
#include "results/selection_records.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Athletes and results from lists. The help texts that show their layouts are in messages.h. Each
/// works on a text in UTF-8 (see readTextFile), whose first line holds titles.
namespace kavela {

/// What became of a list.
struct ListImport {
    std::int64_t imported = 0;
    std::vector<RefusedLine> skipped;
    bool needsRace = false; ///< nothing was added: there is no race yet (messages::AddARaceFirst)
};

/// Adds athletes from lines "Cat;Name;Surname;year;club" as "SURNAME Name", without results, in
/// categories that are added where they are missing. An athlete who is there already is skipped.
[[nodiscard]] ListImport importAthletes(selectionracesStruct_v3& document, std::string_view text);

/// The layouts of result lists.
enum class ResultLayout {
    ComaMode, ///< Pos;SURNAME Name;Totaltime;Totalpen, numbers with a decimal comma or point
    Tacen,    ///< cat;SURNAME NAME;Club;Time(.);P;Tot
};

/// Enters the results of one race: time and penalty of athletes who are in the selection, places
/// by total; other athletes keep what they have. A list of the first layout is one category's; the
/// other names it in each line. Lines without an athlete of the selection are skipped, and told.
/// Recompute afterwards.
[[nodiscard]] ListImport importResultList(selectionracesStruct_v3& document, std::size_t race,
                                          std::size_t category, ResultLayout layout,
                                          std::string_view text);

} // namespace kavela
