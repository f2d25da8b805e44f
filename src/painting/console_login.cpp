#include "painting/console_login.h"

#include "fetch/secret_store.h"

#include <QEventLoop>

#include <termios.h>
#include <unistd.h>

#include <iostream>
#include <optional>

namespace kavela::painting {

namespace {

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

} // namespace

bool isTypedYes(const std::string& question) {
    std::cerr << question << " [y/N] " << std::flush;
    std::string line;
    std::getline(std::cin, line);
    return line == "y" || line == "Y" || line == "yes";
}

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

} // namespace kavela::painting
