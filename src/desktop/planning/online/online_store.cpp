#include "desktop/planning/online/online_store.h"

#include <QHostAddress>
#include <QNetworkReply>

namespace kavela::desktop {

namespace {

constexpr int TimeoutMilliseconds = 30'000;
constexpr qint64 LargestFile = 256'000'000; ///< bytes

bool isThisComputer(const QUrl& url) {
    return url.host() == "localhost" || QHostAddress(url.host()).isLoopback();
}

/// What went wrong, without the address, which may hold what is nobody's business.
QString reasonOf(const QNetworkReply& reply) {
    if (reply.error() == QNetworkReply::NoError)
        return {};
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 401 || status == 403)
        return OnlineStore::tr("The server does not accept the user name or the password.");
    if (status == 404)
        return OnlineStore::tr("The server has no such file.");
    if (status != 0)
        return OnlineStore::tr("The server answered with status %1.").arg(status);
    if (reply.error() == QNetworkReply::OperationCanceledError)
        return OnlineStore::tr("The server did not answer in time.");
    return OnlineStore::tr("The server cannot be reached.");
}

} // namespace

QString OnlineAddress::fault() const {
    if (!folder.isValid() || folder.host().isEmpty())
        return OnlineStore::tr("The address is none. It begins with https://.");
    if (folder.scheme() == "https" || (folder.scheme() == "http" && isThisComputer(folder)))
        return {};
    return OnlineStore::tr("Only https:// keeps the password and the plan from other readers.");
}

OnlineStore::OnlineStore(QObject* parent) : QObject(parent) {
    m_network.setTransferTimeout(TimeoutMilliseconds);
    m_network.setRedirectPolicy(QNetworkRequest::SameOriginRedirectPolicy);
}

QNetworkRequest OnlineStore::request(const OnlineAddress& address, const QString& name) {
    QUrl url = address.folder;
    QString path = url.path();
    if (!path.endsWith('/'))
        path += '/';
    url.setPath(path + name);
    QNetworkRequest request(url);
    if (!address.user.isEmpty())
        request.setRawHeader("Authorization",
                             "Basic " +
                                 (address.user + ':' + address.password).toUtf8().toBase64());
    return request;
}

void OnlineStore::put(const OnlineAddress& address, QList<Upload> files, const Done& done) {
    if (const QString fault = address.fault(); !fault.isEmpty() || files.isEmpty()) {
        done(fault);
        return;
    }
    const Upload file = files.takeFirst();
    QNetworkRequest sent = request(address, file.name);
    sent.setHeader(QNetworkRequest::ContentTypeHeader, "application/json");
    QNetworkReply* const reply = m_network.put(sent, file.content);
    connect(reply, &QNetworkReply::finished, this, [=, this, rest = std::move(files)] {
        reply->deleteLater();
        const QString reason = reasonOf(*reply);
        if (reason.isEmpty() && !rest.isEmpty())
            put(address, rest, done);
        else
            done(reason);
    });
}

void OnlineStore::get(const OnlineAddress& address, const QString& name, const Fetched& fetched) {
    if (const QString fault = address.fault(); !fault.isEmpty()) {
        fetched({}, fault);
        return;
    }
    QNetworkReply* const reply = m_network.get(request(address, name));
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received > LargestFile)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [=] {
        reply->deleteLater();
        const QString reason = reasonOf(*reply);
        fetched(reason.isEmpty() ? reply->readAll() : QByteArray(), reason);
    });
}

} // namespace kavela::desktop
