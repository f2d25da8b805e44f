#pragma once

#include "results/list_lines.h"
#include "results/selection_records.h"
#include "results/selection_takeover.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Athletes and results from lists. The help texts that show their layouts are in messages.h. Each
/// works on a text in UTF-8 (see readTextFile), whose first line holds titles.
namespace kavela {

/// A category that a list brought into the selection.
struct NewCategory {
    std::string label;
    std::int64_t line = 0; ///< the first that names it
    bool isKnown = false;  ///< whether it is one of the categories that boats are raced in

    friend bool operator==(const NewCategory&, const NewCategory&) = default;
};

/// What became of a list of athletes.
struct ListImport {
    std::int64_t imported = 0;
    std::int64_t present = 0; ///< of the lines skipped: athletes who are there already
    std::vector<RefusedLine> skipped;
    std::vector<NewCategory> added;
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

/// The results that a list of one race holds. A list of the first layout is one category's, which
/// must exist; the other names it in each line.
[[nodiscard]] FoundRuns foundInList(const selectionracesStruct_v3& document, std::size_t category,
                                    ResultLayout layout, std::string_view text);

} // namespace kavela
