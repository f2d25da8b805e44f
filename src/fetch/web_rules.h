#pragma once

#include "fetch/address.h"

#include <QString>

#include <optional>
#include <set>
#include <string>

namespace kavela::fetch {

/// A user name and password as they are sent; never written, never logged.
struct WebLogin {
    QString user;
    QString password;
};

/// How long is waited.
struct WebPace {
    int silenceMilliseconds = 30'000; ///< without any byte, after which an exchange has failed
    int secondMilliseconds = 1'000;   ///< what a second of waiting between tries lasts
};

/// What holds for everything that one source is asked.
struct WebRules {
    Address source;
    std::set<std::string> sites;                  ///< that are ticked beside the source's own
    std::optional<WebLogin> login = std::nullopt; ///< shown to the origin of the source alone
    WebPace pace = {};

    [[nodiscard]] bool isAllowed(const std::string& site) const {
        return site == source.site() || sites.contains(site);
    }
};

} // namespace kavela::fetch
