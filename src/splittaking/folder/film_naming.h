#pragma once

#include "splittaking/folder/film_list.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// New names for films, by the pattern that such names are read by.
namespace kavela {

/// What becomes of a film's name.
struct PlannedName {
    std::string from;
    std::string to;    ///< the same where it stays
    std::string fault; ///< why it has to stay, for the coach; empty otherwise

    [[nodiscard]] bool isOther() const { return fault.empty() && from != to; }
};

/// What is wrong with a pattern that films are to be named by; nothing when it can be used.
/// {any} says nothing and cannot be used.
[[nodiscard]] std::optional<std::string> faultOfNaming(std::string_view pattern);

/// Names films of one folder by a pattern that has no fault; the extension stays. `taken` are all
/// names of the folder: a name is never given twice, whatever the case of its letters, nor one that
/// stands there now; the next one gets " 2". What tells at its end which camera filmed stays there.
/// A film that lacks what the pattern asks for stays.
[[nodiscard]] std::vector<PlannedName> planNames(std::span<const ListedFilm> films,
                                                 std::string_view pattern,
                                                 std::span<const std::string> taken);

} // namespace kavela
