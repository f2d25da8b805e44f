#pragma once

#include "fetch/secret_store.h"
#include "fetch/web_rules.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace kavela::desktop {

class LoginDialog;

/// The password for a server that a window has to do with: asked of the store once, typed by the
/// coach, kept and forgotten. It is given to no other server.
class ServerLogins : public QObject {
    Q_OBJECT

public:
    /// Questions are shown over a window.
    ServerLogins(std::unique_ptr<fetch::SecretStore> store, QWidget& over);
    ~ServerLogins() override;

    /// The password for a server; nothing where none is known for it.
    [[nodiscard]] std::optional<fetch::WebLogin> loginFor(const fetch::Address& server) const;
    /// Calls `found` at once where the store was asked for this server already, and what was typed
    /// since stands; later otherwise.
    void find(const fetch::Address& server, const std::function<void()>& found);
    /// Whether the store has yet to answer.
    [[nodiscard]] bool isFinding() const { return m_isFinding; }
    /// An answer of the store is of no use any more.
    void giveUp();

    /// Asks the coach, unless that is being done.
    void ask(const fetch::Address& server);
    [[nodiscard]] bool isAsking() const;
    void forget(const fetch::Address& server);

signals:
    void signedIn();
    /// There is no store that could keep it.
    void notKept();

private:
    void take(const LoginDialog& dialog, const fetch::Address& server);

    QWidget& m_over;
    std::unique_ptr<fetch::SecretStore> m_store;
    std::optional<fetch::WebLogin> m_login; ///< for m_server
    std::optional<fetch::Address> m_server;
    bool m_isFinding = false;
    int m_asked = 0; ///< counts the questions to the store: what comes later than another is unused
};

} // namespace kavela::desktop
