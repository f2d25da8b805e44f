#pragma once

#include "performance/season_data.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace kavela {

/// The races of a season in which one athlete starts at all: in whichever phase, and however that
/// ended. Phases of a race are at one place and few days apart, be they in one file or in several.
class SeasonStarts {
public:
    /// Looks for the starts of the choice's starter in its category, both in the team and in the
    /// split files of races.
    SeasonStarts(const myTeamToSaveStruct& team, const FactStore& facts,
                 const SeasonChoice& choice);

    /// The starter as first written; nothing where no start is known.
    [[nodiscard]] const std::optional<std::string>& name() const { return m_name; }
    /// Whether a race has a start, as a split file has it and as the team has it.
    [[nodiscard]] bool has(const FactStore& facts, const FileRow& file) const;
    [[nodiscard]] bool has(const RaceResult& race) const;

private:
    struct Start {
        std::int64_t year = 0;
        std::optional<double> day; ///< none where only the year is known
    };

    void addTeam(const myTeamToSaveStruct& team, const SeasonChoice& choice);
    void addFiles(const FactStore& facts, const SeasonChoice& choice);
    void add(const std::string& place, const Start& start);
    [[nodiscard]] bool has(const std::string& place, const Start& asked) const;

    std::string m_key;
    std::optional<std::string> m_name;
    std::unordered_map<std::string, std::vector<Start>> m_starts; ///< by place
};

} // namespace kavela
