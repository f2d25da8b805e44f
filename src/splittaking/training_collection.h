#pragma once

#include "splitdata/document.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A training file out of the films of one athlete.
namespace kavela {

/// The name that a training file has in its folder.
inline constexpr const char* TrainingFileName = "treining.kvx";

/// Whether a text can be looked for in the names of films: it is UTF-8 and has letters or digits.
[[nodiscard]] bool isAthleteName(std::string_view text);

/// Whether a film's name carries an athlete's name: all its words one after another, without regard
/// to case and accents, the surname first or last. "Lee" is in "LEE_Ann 2.MOV" and in
/// "AnnLee.mp4", not in "Ashlee.MOV".
[[nodiscard]] bool carriesName(std::string_view fileName, std::string_view athlete);

/// What a collected document starts from.
struct TrainingPlan {
    std::string athlete; ///< one person, or a crew as crewIn() reads it
    std::int64_t totalsplits = 7;
    ReferenceDate now;
};

struct TrainingCollection {
    splittakerdata031 document;
    std::vector<std::string> unusable; ///< films left out: their names are no UTF-8 text
};

/// A document of the session "Training" with one run for each film of the folder whose name carries
/// the athlete's, in the natural order of their names. Category and phase are read from the film's
/// name; a run whose phase it does not tell is "Run n", n being its place. Throws FileError when
/// the folder cannot be listed.
[[nodiscard]] TrainingCollection collectTraining(const std::filesystem::path& folder,
                                                 const TrainingPlan& plan);

} // namespace kavela
