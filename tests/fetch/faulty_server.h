#pragma once

#include <QByteArray>
#include <QTcpServer>

#include <functional>
#include <map>
#include <vector>

class QTcpSocket;

namespace kavela::test {

/// What a server was asked.
struct Asked {
    QByteArray verb;
    QByteArray path;                          ///< with the query
    std::map<QByteArray, QByteArray> headers; ///< by names in small letters
};

/// A server on this computer that answers as it is told to, and remembers what it was asked.
class FaultyServer : public QTcpServer {
public:
    /// The bytes to send before the connection is closed; null for silence.
    using Reply = std::function<QByteArray(const Asked& asked)>;

    FaultyServer();

    /// Each question for a path takes the next of its replies, the last one again and again.
    void add(const QByteArray& path, std::vector<Reply> replies);
    /// Questions for a path, in their order.
    [[nodiscard]] std::vector<Asked> askedFor(const QByteArray& path) const;
    [[nodiscard]] std::string address(const std::string& path,
                                      const std::string& host = "127.0.0.1") const;

    std::vector<Asked> asked; ///< all of them

private:
    void take(QTcpSocket& socket);

    std::map<QByteArray, std::vector<Reply>> m_replies;
    std::map<QTcpSocket*, QByteArray> m_requests;
};

/// An answer with a status line such as "200 OK", further headers each with its line end, and a
/// body, whose length it tells.
[[nodiscard]] QByteArray answer(const QByteArray& status, const QByteArray& headers = {},
                                const QByteArray& body = {});

/// The whole body, or the rest that was asked for where it is of this state.
[[nodiscard]] FaultyServer::Reply served(const QByteArray& body, const QByteArray& tag);
/// The same, broken off after so many percent of the body.
[[nodiscard]] FaultyServer::Reply cut(const QByteArray& body, const QByteArray& tag, int percent);
[[nodiscard]] FaultyServer::Reply always(const QByteArray& bytes);
[[nodiscard]] FaultyServer::Reply silence();

} // namespace kavela::test
