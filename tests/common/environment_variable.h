#pragma once

#include <QByteArray>

#include <optional>

namespace kavela::test {

/// A variable of the environment for the life of a test.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const QByteArray& value) : m_name(name) {
        if (qEnvironmentVariableIsSet(name))
            m_before = qgetenv(name);
        qputenv(name, value);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() {
        if (m_before)
            qputenv(m_name, *m_before);
        else
            qunsetenv(m_name);
    }

private:
    const char* m_name;
    std::optional<QByteArray> m_before;
};

} // namespace kavela::test
