#pragma once

#include <QByteArray>
#include <QTcpServer>

#include <string>

namespace kavela::test {

/// A server with a certificate, which everything in this program trusts as long as it lives. It
/// gives every question the same answer.
class SecureServer : public QTcpServer {
public:
    SecureServer();
    ~SecureServer() override;

    [[nodiscard]] std::string address(const std::string& path) const;

    QByteArray reply; ///< head and body

protected:
    void incomingConnection(qintptr handle) override;
};

} // namespace kavela::test
