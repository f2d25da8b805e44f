#include "desktop/shell/server_logins.h"

#include "desktop/shell/login_dialog.h"
#include "desktop/shell/qt_text.h"

#include <QWidget>

#include <utility>

namespace kavela::desktop {

ServerLogins::ServerLogins(std::unique_ptr<fetch::SecretStore> store, QWidget& over)
    : m_over(over), m_store(std::move(store)) {}

ServerLogins::~ServerLogins() = default;

std::optional<fetch::WebLogin> ServerLogins::loginFor(const fetch::Address& server) const {
    return m_server && m_server->isSameOrigin(server) ? m_login : std::nullopt;
}

void ServerLogins::find(const fetch::Address& server, const std::function<void()>& found) {
    if (m_server && m_server->isSameOrigin(server)) {
        found();
        return;
    }
    m_isFinding = true;
    m_store->find(server, [this, server, found,
                           asked = ++m_asked](const std::optional<fetch::WebLogin>& login) {
        if (asked != m_asked)
            return;
        m_isFinding = false;
        m_login = login;
        m_server = server;
        found();
    });
}

void ServerLogins::giveUp() {
    ++m_asked;
    m_isFinding = false;
}

bool ServerLogins::isAsking() const {
    return m_over.findChild<LoginDialog*>() != nullptr;
}

void ServerLogins::ask(const fetch::Address& server) {
    if (isAsking())
        return;
    auto* const dialog = new LoginDialog(qtText(server.site()), m_login, &m_over);
    connect(dialog, &QDialog::accepted, this, [this, dialog, server] { take(*dialog, server); });
    dialog->open();
}

void ServerLogins::take(const LoginDialog& dialog, const fetch::Address& server) {
    m_login = dialog.login();
    m_server = server;
    if (dialog.isToKeep())
        m_store->keep(server, *m_login, [this](bool isKept) {
            if (!isKept)
                emit notKept();
        });
    emit signedIn();
}

void ServerLogins::forget(const fetch::Address& server) {
    m_login.reset();
    m_server = server;
    m_store->forget(server);
}

} // namespace kavela::desktop
