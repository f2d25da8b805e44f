#include "desktop/planning/online/online_store.h"

#include <QHostAddress>
#include <QNetworkReply>
#include <QSslCertificate>
#include <QSslError>

namespace kavela::desktop {

namespace {

constexpr int TimeoutMilliseconds = 30'000;
constexpr qint64 LargestFile = 256'000'000; ///< bytes
constexpr const char* UntrustedProperty = "untrusted";

bool isThisComputer(const QUrl& url) {
    return url.host() == "localhost" || QHostAddress(url.host()).isLoopback();
}

/// Whom a certificate names as its issuer, as people would write it.
QString issuerOf(const QSslCertificate& certificate) {
    for (const auto name : {QSslCertificate::Organization, QSslCertificate::CommonName})
        if (const QStringList known = certificate.issuerInfo(name); !known.isEmpty())
            return known.constFirst();
    return OnlineStore::tr("an unknown issuer");
}

QString untrustedText(const QList<QSslError>& faults) {
    const QSslError& first = faults.constFirst();
    return OnlineStore::tr("The certificate of the server is not trusted, so that nothing was "
                           "sent. It was issued by “%1”: %2.")
        .arg(issuerOf(first.certificate()), first.errorString());
}

int statusOf(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// What went wrong, without the address, which may hold what is nobody's business.
QString reasonOf(const QNetworkReply& reply) {
    if (reply.error() == QNetworkReply::NoError)
        return {};
    if (const QString untrusted = reply.property(UntrustedProperty).toString();
        !untrusted.isEmpty())
        return untrusted;
    const int status = statusOf(reply);
    if (status == 401 || status == 403)
        return OnlineStore::tr("The server does not accept the user name or the password.");
    if (status != 0)
        return OnlineStore::tr("The server answered with status %1.").arg(status);
    if (reply.error() == QNetworkReply::OperationCanceledError)
        return OnlineStore::tr("The server did not answer in time.");
    if (reply.error() == QNetworkReply::SslHandshakeFailedError)
        return OnlineStore::tr("The server cannot be reached safely: %1.").arg(reply.errorString());
    return OnlineStore::tr("The server cannot be reached.");
}

OnlineAnswer answerIn(QNetworkReply& reply) {
    OnlineAnswer answer;
    const int status = statusOf(reply);
    answer.isThere = status != 404 && status != 410;
    answer.isRefusedByCondition = status == 412;
    if (!answer.isThere || answer.isRefusedByCondition)
        return answer;
    answer.reason = reasonOf(reply);
    answer.mark = reply.rawHeader("ETag");
    answer.content = reply.readAll();
    return answer;
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
    // Some servers give a packed file a mark of its own, which they do not know again.
    request.setRawHeader("Accept-Encoding", "identity");
    if (!address.user.isEmpty())
        request.setRawHeader("Authorization",
                             "Basic " +
                                 (address.user + ':' + address.password).toUtf8().toBase64());
    return request;
}

void OnlineStore::send(const OnlineAddress& address, const std::function<QNetworkReply*()>& sent,
                       const Answered& answered) {
    if (const QString fault = address.fault(); !fault.isEmpty()) {
        answered({.reason = fault, .mark = {}, .content = {}});
        return;
    }
    QNetworkReply* const reply = sent();
    connect(reply, &QNetworkReply::sslErrors, reply, [reply](const QList<QSslError>& faults) {
        reply->setProperty(UntrustedProperty, untrustedText(faults));
    });
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received > LargestFile)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [=] {
        reply->deleteLater();
        answered(answerIn(*reply));
    });
}

void OnlineStore::look(const OnlineAddress& address, const QString& name,
                       const Answered& answered) {
    send(
        address, [&] { return m_network.head(request(address, name)); }, answered);
}

void OnlineStore::get(const OnlineAddress& address, const QString& name, const Answered& answered) {
    send(
        address, [&] { return m_network.get(request(address, name)); }, answered);
}

void OnlineStore::put(const OnlineAddress& address, const Upload& file,
                      const OnlineCondition& condition, const Answered& answered) {
    QNetworkRequest sent = request(address, file.name);
    sent.setHeader(QNetworkRequest::ContentTypeHeader, "application/json");
    if (condition.isNew)
        sent.setRawHeader("If-None-Match", "*");
    else if (!condition.mark.isEmpty() && !condition.mark.startsWith("W/")) // a weak one fits none
        sent.setRawHeader("If-Match", condition.mark);
    send(
        address, [&] { return m_network.put(sent, file.content); }, answered);
}

} // namespace kavela::desktop
