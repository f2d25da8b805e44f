#pragma once

#include "splittaking/race_day/race_day.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace kavela {

/// A file name for the film of a start by a pattern for the names of films, which filmFacts() reads
/// back: "Ann Lee Heats.MP4" by "{name} {phase}". The crew of a double is written with "+", as a
/// name of a file has no "/". {number} is the place in the list, counted from 1; {any} stands for
/// nothing. The extension is that of the present name. Empty where pattern and start tell nothing.
[[nodiscard]] std::string filmNameOf(const DayStart& start, std::size_t number,
                                     std::string_view pattern, std::string_view presentName);

/// A name with a number as systems put it behind the names of copies: "a (2).MP4"; without for 1.
[[nodiscard]] std::string numberedFilmName(const std::string& name, int number);

/// The name itself where it is free in a folder, else with the first number that is, as in
/// "Ann Lee Heats (2).MP4". The present name counts as free; empty for none.
[[nodiscard]] std::string freeFilmName(const std::filesystem::path& folder, const std::string& name,
                                       const std::string& presentName = {});

} // namespace kavela
