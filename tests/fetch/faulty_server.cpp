#include "fetch/faulty_server.h"

#include <QTcpSocket>

#include <algorithm>
#include <iterator>
#include <utility>

namespace kavela::test {

namespace {

Asked readRequest(const QByteArray& head) {
    const QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> words = lines.front().split(' ');
    Asked asked{words.value(0), words.value(1), {}};
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            asked.headers[line.left(colon).toLower()] = line.mid(colon + 1).trimmed();
    }
    return asked;
}

QByteArray lengthOf(const QByteArray& body) {
    return QByteArray::number(body.size());
}

} // namespace

FaultyServer::FaultyServer() {
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* const socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { take(*socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_requests.erase(socket);
                socket->deleteLater();
            });
        }
    });
}

void FaultyServer::add(const QByteArray& path, std::vector<Reply> replies) {
    std::ranges::reverse(replies);
    m_replies[path] = std::move(replies);
}

std::vector<Asked> FaultyServer::askedFor(const QByteArray& path) const {
    std::vector<Asked> found;
    std::ranges::copy_if(asked, std::back_inserter(found),
                         [&](const Asked& one) { return one.path == path; });
    return found;
}

std::string FaultyServer::address(const std::string& path, const std::string& host) const {
    return "http://" + host + ':' + std::to_string(serverPort()) + path;
}

/// The body of a question is waited for: a connection closed before it came takes the answer along.
void FaultyServer::take(QTcpSocket& socket) {
    QByteArray& request = m_requests[&socket];
    request += socket.readAll();
    const qsizetype end = request.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    Asked question = readRequest(request.left(end));
    if (request.size() < end + 4 + question.headers["content-length"].toLongLong())
        return;
    asked.push_back(std::move(question));
    m_requests.erase(&socket);
    const auto known = m_replies.find(asked.back().path);
    if (known == m_replies.end()) {
        socket.write(answer("404 Not Found"));
        socket.disconnectFromHost();
        return;
    }
    const Reply reply = known->second.back();
    if (known->second.size() > 1)
        known->second.pop_back();
    const QByteArray bytes = reply(asked.back());
    if (bytes.isNull())
        return;
    socket.write(bytes);
    socket.disconnectFromHost();
}

QByteArray answer(const QByteArray& status, const QByteArray& headers, const QByteArray& body) {
    return "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + headers +
           "Content-Length: " + lengthOf(body) + "\r\n\r\n" + body;
}

FaultyServer::Reply served(const QByteArray& body, const QByteArray& tag) {
    return [=](const Asked& asked) {
        const QByteArray tagLine = "ETag: " + tag + "\r\n";
        const auto range = asked.headers.find("range");
        const auto state = asked.headers.find("if-range");
        if (range == asked.headers.end() || state == asked.headers.end() || state->second != tag)
            return answer("200 OK", tagLine, body);
        const qsizetype from = range->second.mid(6).split('-').front().toLongLong();
        return answer("206 Partial Content",
                      tagLine + "Content-Range: bytes " + QByteArray::number(from) + '-' +
                          QByteArray::number(body.size() - 1) + '/' + lengthOf(body) + "\r\n",
                      body.mid(from));
    };
}

FaultyServer::Reply cut(const QByteArray& body, const QByteArray& tag, int percent) {
    return [=](const Asked& asked) {
        const QByteArray whole = served(body, tag)(asked);
        return whole.left(whole.size() - body.size() * (100 - percent) / 100);
    };
}

FaultyServer::Reply always(const QByteArray& bytes) {
    return [=](const Asked&) { return bytes; };
}

FaultyServer::Reply silence() {
    return [](const Asked&) { return QByteArray(); };
}

} // namespace kavela::test
