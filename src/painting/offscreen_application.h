#pragma once

#include <QGuiApplication>

#include <array>
#include <string>

namespace kavela::painting {

/// The application object that fonts ask for. It stays off the screen: a server has none, and one
/// that cannot be reached would end the program.
class OffscreenApplication {
public:
    OffscreenApplication();

private:
    std::array<std::string, 3> m_arguments{"kavela", "-platform", "offscreen"};
    std::array<char*, 4> m_pointers{m_arguments[0].data(), m_arguments[1].data(),
                                    m_arguments[2].data(), nullptr};
    int m_count = 3;
    QGuiApplication m_application;
};

} // namespace kavela::painting
