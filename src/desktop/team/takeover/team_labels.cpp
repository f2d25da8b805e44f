#include "desktop/team/takeover/team_labels.h"

#include "common/folded_text.h"
#include "results/athlete_keys.h"
#include "results/team_records.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kavela::desktop {

namespace {

using Written = std::pair<std::string_view, const char*>;

/// The text in small letters without blanks and marks.
std::string bare(std::string_view written) {
    constexpr std::string_view Marks = " -_./";
    std::string text = folded(written);
    std::erase_if(text, [&](char c) { return Marks.find(c) != std::string_view::npos; });
    return text;
}

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
    const std::string key = bare(written);
    for (const char* event : team::Events)
        if (bare(event) == key)
            return event;
    for (const auto& [words, event] : Words)
        if (key.find(words) != std::string::npos)
            return event;
    return {};
}

std::string teamPhase(std::string_view written) {
    static constexpr std::array Words{
        Written{"heat", "Heats 1"},         Written{"heats", "Heats 1"},
        Written{"heat1", "Heats 1"},        Written{"heats1", "Heats 1"},
        Written{"run1", "Heats 1"},         Written{"1strun", "Heats 1"},
        Written{"heat2", "Heats 2"},        Written{"heats2", "Heats 2"},
        Written{"run2", "Heats 2"},         Written{"2ndrun", "Heats 2"},
        Written{"semi", "Semifinal"},       Written{"semifinal", "Semifinal"},
        Written{"semifinals", "Semifinal"}, Written{"final", "Final"},
        Written{"finals", "Final"}};
    const std::string key = bare(written);
    const auto found = std::ranges::find(Words, key, &Written::first);
    return found == Words.end() ? std::string() : found->second;
}

} // namespace kavela::desktop
