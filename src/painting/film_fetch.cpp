#include "painting/film_fetch.h"

#include "cli/console.h"
#include "cli/progress_bar.h"
#include "common/display_text.h"
#include "fetch/bib_list.h"
#include "fetch/fetch_job.h"
#include "fetch/plan_maker.h"
#include "painting/console_login.h"

#include <QEventLoop>
#include <QTimer>

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>

namespace kavela::painting {

namespace {

using fetch::FilmResult;
using fetch::PlannedFilm;

fetch::MadePlan madePlan(const fetch::filmsource001& source, std::vector<fetch::FetchRun> runs,
                         const fetch::WebRules& rules) {
    fetch::PlanMaker maker;
    fetch::MadePlan made;
    QEventLoop loop;
    // Some plans are made at once: the loop is running by then.
    QTimer::singleShot(0, &maker, [&] {
        maker.make(source, std::move(runs), rules, [&](const fetch::MadePlan& plan) {
            made = plan;
            loop.quit();
        });
    });
    loop.exec();
    return made;
}

std::string planLine(const PlannedFilm& film) {
    std::string crew;
    for (const std::string& name : film.run.names)
        crew += (crew.empty() ? "" : ", ") + name;
    const bool isWanted = film.state == PlannedFilm::State::Wanted;
    const std::string size =
        film.size ? fmt::format("{:.1f} MB", static_cast<double>(*film.size) / 1e6) : "";
    return validUtf8(fmt::format("{} {:>5}  {:<24}  {:<36}  {:>10}  {}\n", isWanted ? '+' : ' ',
                                 film.run.bib, crew, film.name, size,
                                 isWanted ? film.address.site() : film.note));
}

bool isPlanPrinted(const std::vector<PlannedFilm>& plan) {
    std::string text;
    for (const PlannedFilm& film : plan)
        text += planLine(film);
    return cli::print(text);
}

/// Fetches what is wanted; false where a film was not.
bool areFetched(const std::vector<PlannedFilm>& films, const std::string& folder,
                const fetch::WebRules& rules) {
    fetch::FetchJob job;
    cli::ProgressBar progress(films.size());
    QEventLoop loop;
    std::vector<std::string> faults;
    QObject::connect(&job, &fetch::FetchJob::filmEnded, &job,
                     [&](std::size_t place, const FilmResult& result) {
                         progress.step();
                         if (result.kind != FilmResult::Kind::Fetched)
                             faults.push_back("Bib " + std::to_string(films[place].run.bib) + ", " +
                                              films[place].name + ": " + result.reason);
                     });
    QObject::connect(&job, &fetch::FetchJob::ended, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    job.start(films, folder, rules);
    loop.exec();
    for (const std::string& fault : faults)
        cli::logLine(fault);
    const auto fetched = static_cast<std::int64_t>(films.size() - faults.size());
    return cli::print("Fetched " + cli::counted(fetched, "film", "films") + " into " +
                      cli::pathText(folder) + ".\n") &&
           faults.empty();
}

int fetchPlanned(const cli::FilmFetchCall& call, const fetch::filmsource001& source,
                 const fetch::WebRules& rules) {
    const fetch::BibList bibs = fetch::bibsIn(source.bibs);
    for (const fetch::NoBib& line : bibs.skipped)
        cli::logLine("Line " + std::to_string(line.line) + ": " + line.reason);
    const fetch::MadePlan plan = madePlan(source, bibs.runs, rules);
    if (!plan.reason.empty()) {
        cli::logLine(plan.reason);
        return cli::NotDone;
    }
    if (!isPlanPrinted(plan.films))
        return cli::NotDone;
    std::vector<PlannedFilm> wanted;
    std::ranges::copy_if(plan.films, std::back_inserter(wanted), [](const PlannedFilm& film) {
        return film.state == PlannedFilm::State::Wanted;
    });
    if (call.showsOnly)
        return cli::Done;
    if (wanted.empty()) {
        cli::logLine("There is nothing to fetch.");
        return cli::Done;
    }
    if (!call.isAgreed && ::isatty(STDIN_FILENO) == 1 && !isTypedYes("Fetch these?"))
        return cli::Done;
    std::filesystem::create_directories(source.folder);
    return areFetched(wanted, source.folder, rules) ? cli::Done : cli::NotDone;
}

} // namespace

int fetchFilms(const cli::FilmFetchCall& call) {
    const ConsoleApplication application;
    try {
        const fetch::filmsource001 source = fetch::readSource(call.source);
        if (const auto fault = fetch::faultOfSource(source)) {
            cli::logLine(*fault);
            return cli::NotDone;
        }
        fetch::WebRules rules = fetch::rulesOf(source, std::nullopt);
        if (!call.user.empty())
            rules.login = loginOf(call.user, rules.source);
        return fetchPlanned(call, source, rules);
    } catch (const DecodeError& error) {
        cli::logLine("The source cannot be read: " + std::string(error.what()));
    } catch (const std::runtime_error& error) {
        cli::logLine(error.what());
    }
    return cli::NotDone;
}

} // namespace kavela::painting
