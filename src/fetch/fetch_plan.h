#pragma once

#include "fetch/fetch_run.h"
#include "fetch/listing.h"
#include "fetch/url_pattern.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// What would be fetched, before anything is.
namespace kavela::fetch {

/// No job brings more, whatever servers announce or send.
inline constexpr std::int64_t MostJobBytes = 20'000'000'000;

/// A film of a run that could be fetched, or why there is none.
struct PlannedFilm {
    enum class State {
        Wanted,       ///< is fetched
        Doubtful,     ///< is fetched where the coach says so: it may be of somebody else
        OtherSite,    ///< lies on a server that is not ticked
        AlreadyThere, ///< a film of this name is in the folder
        TooMuch,      ///< would be more than a job may bring
        NoFilm        ///< nothing was found for this run; the address is of no use
    };

    FetchRun run;
    Address address;
    std::string name; ///< of the file, with its extension; no other film of the plan has it
    std::optional<std::int64_t> size; ///< in bytes, where it is told
    bool isPlaylist = false;
    State state = State::Wanted;
    std::string note; ///< why it is not simply wanted; empty for nothing
};

/// What a plan is made by.
struct PlanRules {
    std::string names;                                    ///< pattern of film names
    std::string site;                                     ///< of the source itself
    std::set<std::string> sites;                          ///< other ones that are ticked
    std::function<bool(const std::string& name)> isThere; ///< in the folder
};

/// A film for each run, in their order. The pattern has no fault.
[[nodiscard]] std::vector<PlannedFilm>
planByPattern(const UrlPattern& pattern, const std::vector<FetchRun>& runs, const PlanRules& rules);

/// The films of a list by the bibs in their names. A run may have several, and a film that could be
/// of several of the bibs is doubtful. Of runs with the same bib, those whose phase or category
/// stands in the name come first.
[[nodiscard]] std::vector<PlannedFilm> planByListing(const std::vector<ListedFilm>& films,
                                                     const std::vector<FetchRun>& runs,
                                                     const PlanRules& rules);

/// Servers of the plan beside that of the source, each once.
[[nodiscard]] std::vector<std::string> otherSites(const std::vector<PlannedFilm>& plan,
                                                  std::string_view site);

} // namespace kavela::fetch
