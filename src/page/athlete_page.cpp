#include "page/athlete_page.h"

#include "common/reference_date.h"
#include "common/text.h"
#include "page/cell_classes.h"
#include "page/html_text.h"
#include "page/page_style.h"
#include "page/race_part.h"
#include "page/run_part.h"
#include "page/season_part.h"

#include <algorithm>
#include <utility>

namespace kavela::page {

namespace {

/// Nothing is fetched but films and their pictures, and nothing is ever run, whatever a text of the
/// files should get past its being escaped.
constexpr std::string_view PageHead =
    "<head><meta charset=utf-8>"
    "<meta name=viewport content=\"width=device-width,initial-scale=1\">"
    "<meta http-equiv=Content-Security-Policy content=\"default-src 'none';style-src "
    "'unsafe-inline';img-src 'self' file: content: data:;media-src 'self' file: content:;base-uri "
    "'none';form-action 'none'\"><meta name=referrer content=no-referrer>"
    "<meta name=color-scheme content=\"light dark\"><meta name=format-detection "
    "content=\"telephone=no\"><link rel=icon href=\"data:,\">";

/// The races that have runs of the athlete, the earliest first.
std::vector<RaceOnPage> racesOf(std::vector<RaceFile>& files, const PageChoice& choice) {
    std::vector<RaceOnPage> races;
    races.reserve(files.size());
    for (std::size_t number = 0; number < files.size(); ++number)
        if (hasRunsOf(files[number].document, choice))
            races.emplace_back(std::move(files[number]), number, choice);
    std::ranges::stable_sort(races, {}, [](const RaceOnPage& race) { return race.file().date; });
    return races;
}

const FactStore& factsOf(const RaceOnPage& race) {
    return race.facts();
}

std::string crewOf(const RaceOnPage& race) {
    const std::string name(factsOf(race).text(race.factsOf(race.own().front()).crew));
    return name.empty() ? std::string(translated("Athlete")) : name;
}

std::string categoriesOfRuns(const std::vector<RaceOnPage>& races) {
    std::vector<std::string> known;
    std::string made;
    for (const RaceOnPage& race : races)
        for (const std::size_t row : race.own()) {
            const std::string category(factsOf(race).text(race.factsOf(row).category));
            if (category.empty() || std::ranges::find(known, category) != known.end())
                continue;
            known.push_back(category);
            made += (made.empty() ? "" : ", ") + escaped(category);
        }
    return made;
}

std::string headerText(const std::vector<RaceOnPage>& races) {
    std::string line = categoriesOfRuns(races);
    const auto add = [&line](const std::string& text) {
        line += (line.empty() ? "" : " · ") + text;
    };
    if (races.size() == 1) {
        add(isolated(races.front().title()));
    } else {
        add(sayCount(static_cast<std::int64_t>(races.size()), "{} race", "{} races"));
        add(say("{} to {}", escaped(dayText({races.front().file().date})),
                escaped(dayText({races.back().file().date}))));
    }
    return "<header><h1>" + isolated(crewOf(races.front())) + "</h1><p class=h>" + line +
           "</p></header>\n";
}

std::string linksTo(const std::vector<RaceOnPage>& races) {
    if (races.size() < 2)
        return {};
    std::string made = "<nav aria-label=\"" + said("Races") + "\"><ul>";
    for (const RaceOnPage& race : races)
        made += "<li><a href=#f" + std::to_string(race.number()) + ">" + isolated(race.title()) +
                "</a>";
    return made + "</ul></nav>\n";
}

/// Films of no single run, such as comparisons.
std::string filmsOfAll(const std::vector<PageFilm>& films) {
    std::string made;
    for (const PageFilm& film : films)
        if (!film.run)
            made += filmPart(film);
    return made.empty() ? made : "<section><h2>" + said("Films") + "</h2>" + made + "</section>\n";
}

} // namespace

std::optional<std::string> athletePage(std::vector<RaceFile> races, const PageChoice& choice,
                                       const std::vector<PageFilm>& films) {
    const std::vector<RaceOnPage> shown = racesOf(races, choice);
    if (shown.empty())
        return std::nullopt;
    const bool isOfSeason = shown.size() > 1;
    std::string made = "<!DOCTYPE html>\n<html lang=\"" + escaped(choice.language) + "\">";
    made += PageHead;
    made += "<title>" + escaped(crewOf(shown.front())) + " · " +
            (isOfSeason ? said("Season") : escaped(shown.front().title())) + "</title>\n<style>";
    made += pageStyle();
    made += cellStyle(choice.scale) + "</style></head>\n<body>" + headerText(shown) +
            linksTo(shown) + "<main>\n" + overviewPart(shown) + progressPart(shown) +
            seasonLossPart(shown, choice) + filmsOfAll(films);
    for (const RaceOnPage& race : shown)
        made += racePart(race, isOfSeason, films);
    return made + "</main><footer>" + said("Times in seconds. Made with Kavela.") +
           "</footer></body></html>\n";
}

std::string complaintAboutPageName(const std::filesystem::path& path) {
    std::string ending = path.extension().string();
    for (char& letter : ending)
        letter = 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    return ending == ".html" || ending == ".htm"
               ? ""
               : say("The name of a page ends in .html, and its films lie in the folder named the "
                     "same without that.");
}

} // namespace kavela::page
