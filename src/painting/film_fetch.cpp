#include "painting/film_fetch.h"

#include "cli/console.h"
#include "cli/progress_bar.h"
#include "common/display_text.h"
#include "fetch/bib_list.h"
#include "fetch/fetch_job.h"
#include "fetch/plan_maker.h"
#include "fetch/secret_store.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <fmt/format.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <iterator>

namespace kavela::painting {

namespace {

using fetch::FilmResult;
using fetch::PlannedFilm;

/// The application object that the event loop asks for; without windows.
class ConsoleApplication {
public:
    ConsoleApplication() : m_application(m_count, m_pointers.data()) {}

private:
    std::string m_name = "kavela";
    std::array<char*, 2> m_pointers{m_name.data(), nullptr};
    int m_count = 1;
    QCoreApplication m_application;
};

/// A line from the terminal that does not show what is typed, whatever ends the typing.
std::string typedSecret(const std::string& question) {
    std::cerr << question << std::flush;
    termios shown{};
    const bool isTerminal = ::tcgetattr(STDIN_FILENO, &shown) == 0;
    termios hidden = shown;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    if (isTerminal)
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::string line;
    std::getline(std::cin, line);
    if (isTerminal)
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown);
    std::cerr << '\n';
    return line;
}

bool isTypedYes(const std::string& question) {
    std::cerr << question << " [y/N] " << std::flush;
    std::string line;
    std::getline(std::cin, line);
    return line == "y" || line == "Y" || line == "yes";
}

/// The login of a user: what the store keeps of them, else what is typed.
fetch::WebLogin loginOf(const std::string& user, const fetch::Address& source) {
    std::optional<fetch::WebLogin> kept;
    fetch::SecretStore store;
    QEventLoop loop;
    store.find(source, [&](const std::optional<fetch::WebLogin>& found) {
        kept = found;
        loop.quit();
    });
    loop.exec();
    if (kept && kept->user.toStdString() == user)
        return *kept;
    const std::string password = typedSecret("Password of " + user + " on " + source.site() + ": ");
    return {QString::fromStdString(user), QString::fromStdString(password)};
}

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
