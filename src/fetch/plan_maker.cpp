#include "fetch/plan_maker.h"

#include "common/safe_file.h"
#include "common/text.h"
#include "fetch/listing.h"

#include <utility>

namespace kavela::fetch {

namespace {

constexpr std::size_t MostListBytes = 33'554'432;

/// Name, address and size are all that is asked of the files in a folder.
constexpr const char* FolderQuestion =
    R"(<?xml version="1.0" encoding="utf-8"?>)"
    R"(<propfind xmlns="DAV:"><prop><getcontentlength/><resourcetype/></prop></propfind>)";

} // namespace

WebRules rulesOf(const filmsource001& source, std::optional<WebLogin> login) {
    const std::string address = source.address.substr(0, source.address.find('{'));
    return {.source = parsedAddress(address).value_or(Address()),
            .sites = {source.hosts.begin(), source.hosts.end()},
            .login = std::move(login)};
}

PlanMaker::PlanMaker(QObject* parent) : QObject(parent) {}

/// What is asked uses the network, which would be gone before the children of this are.
PlanMaker::~PlanMaker() {
    qDeleteAll(findChildren<SmallFetch*>(Qt::FindDirectChildrenOnly));
}

void PlanMaker::make(const filmsource001& source, std::vector<FetchRun> runs, WebRules rules,
                     Made made) {
    forget();
    m_source = source;
    m_runs = std::move(runs);
    m_rules = std::move(rules);
    m_made = std::move(made);
    if (UrlPattern::isPattern(source.address))
        give({.films = planByPattern(UrlPattern(source.address), m_runs, planRules())});
    else if (m_rules.source.path.ends_with('/'))
        askFolder();
    else
        askList();
}

void PlanMaker::forget() {
    if (m_fetch) {
        m_fetch->deleteLater();
        m_fetch = nullptr;
    }
    m_made = {};
}

PlanRules PlanMaker::planRules() const {
    return {m_source.names, m_rules.source.site(), m_rules.sites,
            [folder = std::filesystem::path(m_source.folder)](const std::string& name) {
                return isTaken(folder / name);
            }};
}

/// A server that knows no such question gives the page of the folder to the plain one.
void PlanMaker::askFolder() {
    m_fetch = new SmallFetch(m_network, m_rules, MostListBytes, this);
    m_fetch->start({.address = m_rules.source,
                    .verb = "PROPFIND",
                    .body = FolderQuestion,
                    .headers = {{"Depth", "1"}, {"Content-Type", "application/xml"}}},
                   [this, fetch = m_fetch](const SmallAnswer& answer) {
                       if (fetch != m_fetch)
                           return;
                       if (answer.isThere || answer.wantsLogin || !answer.otherSite.empty())
                           read(answer);
                       else
                           askList();
                   });
}

void PlanMaker::askList() {
    if (m_fetch)
        m_fetch->deleteLater();
    m_fetch = new SmallFetch(m_network, m_rules, MostListBytes, this);
    m_fetch->start({.address = m_rules.source}, [this, fetch = m_fetch](const SmallAnswer& answer) {
        if (fetch == m_fetch)
            read(answer);
    });
}

void PlanMaker::read(const SmallAnswer& answer) {
    m_fetch->deleteLater();
    m_fetch = nullptr;
    if (!answer.isThere) {
        give({.reason = answer.isNotThere ? say("The server has no such list.") : answer.reason,
              .otherSite = answer.otherSite,
              .wantsLogin = answer.wantsLogin});
        return;
    }
    try {
        const std::vector<ListedFilm> films =
            filmsInListing(listingKind(answer.contentType, answer.body), answer.body, answer.from);
        if (films.empty())
            give({.reason = say("The address is there and names no film.")});
        else
            give({.films = planByListing(films, m_runs, planRules())});
    } catch (const ListingError& error) {
        give({.reason = error.what()});
    }
}

void PlanMaker::give(const MadePlan& plan) {
    const Made made = std::exchange(m_made, {});
    if (made)
        made(plan);
}

} // namespace kavela::fetch
