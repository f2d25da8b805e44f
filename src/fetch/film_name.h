#pragma once

#include "fetch/address.h"
#include "fetch/fetch_run.h"

#include <string>
#include <string_view>

namespace kavela::fetch {

/// The longest name of a film in bytes, so that what is added on the way (".part" and more) fits.
inline constexpr std::size_t LongestFilmName = 180;

/// The name of a run's film by the pattern of film names, without an extension: {number} is that of
/// the run, or its bib where none is told, and {any} is nothing. The pattern has no fault. What
/// file systems forbid becomes a hyphen; a name that comes out empty is "bib 14".
[[nodiscard]] std::string filmName(std::string_view pattern, const FetchRun& run);

/// The extension of a film with its point, in small letters: that of the address where films have
/// such ones, else ".mp4".
[[nodiscard]] std::string filmExtension(const Address& address);

} // namespace kavela::fetch
