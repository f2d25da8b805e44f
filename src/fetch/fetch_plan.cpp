#include "fetch/fetch_plan.h"

#include "common/folded_text.h"
#include "common/text.h"
#include "fetch/film_name.h"

#include <algorithm>

namespace kavela::fetch {

namespace {

using State = PlannedFilm::State;

/// Gives films their names and tells of each whether it may simply be fetched.
class FilmPlanner {
public:
    explicit FilmPlanner(const PlanRules& rules) : m_rules(rules) {}

    void add(PlannedFilm film) {
        if (film.state != State::NoFilm)
            judge(film);
        plan.push_back(std::move(film));
    }

    std::vector<PlannedFilm> plan;

private:
    /// What stands in the way of more than a doubt is told first.
    void judge(PlannedFilm& film) {
        const std::string stem = filmName(m_rules.names, film.run);
        const std::string extension = film.isPlaylist ? ".mp4" : filmExtension(film.address);
        film.name = stem + extension;
        // Case apart: a disk of another system takes both for one.
        for (int copy = 2; !m_names.insert(folded(film.name)).second; ++copy)
            film.name = stem + ' ' + std::to_string(copy) + extension;
        if (m_rules.isThere(film.name))
            set(film, State::AlreadyThere, say("Is in the folder."));
        else if (film.address.site() != m_rules.site &&
                 !m_rules.sites.contains(film.address.site()))
            set(film, State::OtherSite,
                say("Lies on {}, which is not ticked.", film.address.site()));
        else if (film.state == State::Wanted)
            count(film);
    }

    void count(PlannedFilm& film) {
        const std::int64_t size = std::max<std::int64_t>(film.size.value_or(0), 0);
        if (size > MostJobBytes - m_bytes)
            set(film, State::TooMuch, say("Would be more than 20 GB in one go."));
        else
            m_bytes += size;
    }

    static void set(PlannedFilm& film, State state, std::string note) {
        film.state = state;
        film.note = std::move(note);
    }

    const PlanRules& m_rules;
    std::set<std::string> m_names;
    std::int64_t m_bytes = 0;
};

PlannedFilm withoutFilm(const FetchRun& run, std::string note) {
    PlannedFilm film;
    film.run = run;
    film.state = State::NoFilm;
    film.note = std::move(note);
    return film;
}

/// How much of what else is told of a run stands in a name.
int likenessToRun(const std::string& foldedName, const FetchRun& run) {
    int likeness = 0;
    for (const std::string* const told : {&run.phase, &run.category})
        if (!told->empty() && foldedName.find(folded(*told)) != std::string::npos)
            ++likeness;
    return likeness;
}

/// The runs that a film may be of: with its bib, and those that its name is likest to.
std::vector<std::size_t> runsOfFilm(const ListedFilm& film, const std::vector<FetchRun>& runs) {
    const std::string name = folded(film.name);
    std::vector<std::size_t> found;
    int best = 0;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (!hasBib(film.name, runs[i].bib))
            continue;
        const int likeness = likenessToRun(name, runs[i]);
        if (likeness > best)
            found.clear();
        best = std::max(best, likeness);
        if (likeness == best)
            found.push_back(i);
    }
    return found;
}

std::string doubtText(const std::vector<std::size_t>& all, const std::vector<FetchRun>& runs,
                      std::size_t own) {
    std::string text;
    for (const std::size_t other : all) {
        if (other == own)
            continue;
        const FetchRun& run = runs[other];
        text += (text.empty() ? "" : ", ") + std::to_string(run.bib) +
                (run.phase.empty() ? "" : ' ' + run.phase);
    }
    return say("May also be bib {}.", text);
}

} // namespace

std::vector<PlannedFilm> planByPattern(const UrlPattern& pattern, const std::vector<FetchRun>& runs,
                                       const PlanRules& rules) {
    FilmPlanner planner(rules);
    for (const FetchRun& run : runs) {
        const std::optional<Address> address = pattern.address(run);
        if (!address) {
            const std::string lack = pattern.lackOf(run);
            planner.add(withoutFilm(
                run, lack.empty() ? say("The address makes none for this run.")
                                  : say("The list tells no {} of this run.", translated(lack))));
            continue;
        }
        PlannedFilm film;
        film.run = run;
        film.address = *address;
        film.isPlaylist = folded(address->lastName()).ends_with(".m3u8");
        planner.add(std::move(film));
    }
    return std::move(planner.plan);
}

std::vector<PlannedFilm> planByListing(const std::vector<ListedFilm>& films,
                                       const std::vector<FetchRun>& runs, const PlanRules& rules) {
    std::vector<std::vector<PlannedFilm>> found(runs.size());
    for (const ListedFilm& listed : films) {
        const std::vector<std::size_t> candidates = runsOfFilm(listed, runs);
        for (const std::size_t run : candidates) {
            PlannedFilm film{runs[run],         listed.address, {}, listed.size,
                             listed.isPlaylist, State::Wanted,  {}};
            if (candidates.size() > 1) {
                film.state = State::Doubtful;
                film.note = doubtText(candidates, runs, run);
            }
            found[run].push_back(std::move(film));
        }
    }
    FilmPlanner planner(rules);
    for (std::size_t run = 0; run < runs.size(); ++run) {
        if (found[run].empty())
            planner.add(withoutFilm(runs[run], say("The list has no film with this bib.")));
        for (PlannedFilm& film : found[run])
            planner.add(std::move(film));
    }
    return std::move(planner.plan);
}

std::vector<std::string> otherSites(const std::vector<PlannedFilm>& plan, std::string_view site) {
    std::set<std::string> sites;
    for (const PlannedFilm& film : plan)
        if (film.state != State::NoFilm && film.address.site() != site)
            sites.insert(film.address.site());
    return {sites.begin(), sites.end()};
}

} // namespace kavela::fetch
