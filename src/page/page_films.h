#pragma once

#include "page/athlete_page.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The films beside a page: they lie in a folder named as the page without its end, where a page
/// finds those that were cut for it, and whatever else the coach puts there.
namespace kavela::page {

/// A piece of film for one run.
struct ClipOrder {
    std::filesystem::path film;   ///< the first film of the run
    double from = 0;              ///< seconds of the film: a moment before the start
    double to = 0;                ///< a moment after the last mark
    std::filesystem::path target; ///< without an end, which follows the film; its picture beside it
};

/// The folder of a page.
[[nodiscard]] std::filesystem::path filmFolderOf(const std::filesystem::path& page);

/// What is to be cut so that the page shows the athlete's runs: those with a film and two marks on
/// it.
[[nodiscard]] std::vector<ClipOrder> clipOrders(const std::vector<RaceFile>& races,
                                                const PageChoice& choice,
                                                const std::filesystem::path& page);

/// The films that lie in the folder of a page now, those of runs told apart from the others by
/// their names; none where there is no such folder.
[[nodiscard]] std::vector<PageFilm> filmsBeside(const std::vector<RaceFile>& races,
                                                const std::filesystem::path& page);

} // namespace kavela::page
