#pragma once

#include "fetch/web_rules.h"

#include <QObject>

#include <functional>
#include <optional>

namespace kavela::fetch {

/// User names and passwords of servers in the store that the desktop locks with the user's session.
/// Where there is none, nothing is kept: what is typed then holds as long as the program runs.
class SecretStore : public QObject {
    Q_OBJECT

public:
    explicit SecretStore(QObject* parent = nullptr) : QObject(parent) {}

    using Found = std::function<void(const std::optional<WebLogin>& login)>;
    using Kept = std::function<void(bool isKept)>;

    /// `found` hears from the event loop what is kept for the origin of an address.
    virtual void find(const Address& address, const Found& found);
    virtual void keep(const Address& address, const WebLogin& login, const Kept& kept);
    virtual void forget(const Address& address);
};

} // namespace kavela::fetch
