#pragma once

#include "fetch/web_rules.h"

#include <QCoreApplication>

#include <array>
#include <string>

namespace kavela::painting {

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

/// Asks on the terminal; anything but a yes is a no.
[[nodiscard]] bool isTypedYes(const std::string& question);

/// The login of a user: what the password store keeps of them, else what is typed, which is not
/// shown. Needs an application.
[[nodiscard]] fetch::WebLogin loginOf(const std::string& user, const fetch::Address& source);

} // namespace kavela::painting
