#pragma once

#include "results/team_records.h"
#include "tables/row_crew.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

/// Whose the rows of a table are.
namespace kavela {

/// Somebody we know.
struct KnownAthlete {
    std::string name;                    ///< of the crew
    std::vector<std::string> categories; ///< that the crew races in; empty when not known
};

[[nodiscard]] std::vector<KnownAthlete> knownAthletes(const myTeamToSaveStruct& team);

enum class JoinCertainty {
    Certain, ///< the crew and the category agree, with one athlete only
    Unsure,  ///< to be asked: the name is alike, the category another, or two have the name
    None,
};

struct JoinedRow {
    std::size_t row = 0;
    JoinCertainty certainty = JoinCertainty::None;
    std::vector<std::size_t> athletes; ///< who may be meant, the likest first; none where None
};

/// For each row who it is about, by crew and, where table and athlete tell it, by category. Throws
/// TableError for a table without a column of names.
[[nodiscard]] std::vector<JoinedRow> joinedRows(const ListTable& table,
                                                std::span<const KnownAthlete> athletes);

} // namespace kavela
