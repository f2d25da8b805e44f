#include "desktop/team/takeover/team_labels.h"

#include "results/team_records.h"
#include "splitdata/athlete_keys.h"

#include <array>
#include <utility>

namespace kavela::desktop {

namespace {

using Written = std::pair<std::string_view, const char*>;

} // namespace

std::string teamCategory(std::string_view written) {
    const std::string key = categoryKey(written);
    for (const char* category : team::Categories)
        if (categoryKey(category) == key)
            return category;
    return {};
}

std::string teamEvent(std::string_view written) {
    static constexpr std::array Words{Written{"worldchampionship", "WCH"},
                                      Written{"worldcup1", "WC1"},
                                      Written{"worldcup2", "WC2"},
                                      Written{"worldcup3", "WC3"},
                                      Written{"worldcup4", "WC4"},
                                      Written{"worldcup5", "WC5"},
                                      Written{"europeanchampionship", "EUROS"},
                                      Written{"europeancup", "ECACup"},
                                      Written{"selection", "Selection Race"},
                                      Written{"nationalcup", "National Cup"}};
    const std::string key = bareKey(written);
    for (const char* event : team::Events)
        if (bareKey(event) == key)
            return event;
    for (const auto& [words, event] : Words)
        if (key.find(words) != std::string::npos)
            return event;
    return {};
}

} // namespace kavela::desktop
