#pragma once

#include "fetch/fetch_plan.h"
#include "fetch/fetch_source.h"
#include "fetch/small_fetch.h"

#include <QNetworkAccessManager>

namespace kavela::fetch {

/// What would be fetched from a source, or why that is not known.
struct MadePlan {
    std::vector<PlannedFilm> films = {};
    std::string reason = {};    ///< a sentence; empty where there is a plan
    std::string otherSite = {}; ///< the server that would have to be ticked
    bool wantsLogin = false;
};

/// The rules of a source: its own server, and those that are ticked. The source has no fault.
[[nodiscard]] WebRules rulesOf(const filmsource001& source, std::optional<WebLogin> login);

/// Makes plans: an address with {bib} in it by itself, a list by reading it. No film is asked for.
class PlanMaker : public QObject {
    Q_OBJECT

public:
    explicit PlanMaker(QObject* parent = nullptr);
    ~PlanMaker() override;

    using Made = std::function<void(const MadePlan& plan)>;
    /// `made` is called once, from within this for an address with {bib} in it. Another plan that
    /// is being made is given up. The source has no fault.
    void make(const filmsource001& source, std::vector<FetchRun> runs, WebRules rules, Made made);
    /// The plan that is being made is not wanted any more.
    void forget();
    [[nodiscard]] bool isMaking() const { return m_fetch != nullptr; }

private:
    void askFolder();
    void askList();
    void read(const SmallAnswer& answer);
    void give(const MadePlan& plan);
    [[nodiscard]] PlanRules planRules() const;

    QNetworkAccessManager m_network;
    filmsource001 m_source;
    std::vector<FetchRun> m_runs;
    WebRules m_rules;
    Made m_made;
    SmallFetch* m_fetch = nullptr;
};

} // namespace kavela::fetch
