#include "fetch/web_exchange.h"

#include "common/text.h"

#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslCertificate>
#include <QSslError>
#include <QUrl>

#include <utility>

namespace kavela::fetch {

namespace {

constexpr qint64 MostBytesAhead = 1'048'576; ///< of a server that is faster than the disk

int statusOf(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

AnswerHead headOf(const QNetworkReply& reply) {
    const auto header = [&](const char* name) { return reply.rawHeader(name).toStdString(); };
    return {statusOf(reply),          header("Content-Range"),
            header("Content-Length"), header("Content-Encoding"),
            header("ETag"),           header("Last-Modified"),
            header("Retry-After"),    header("Repr-Digest"),
            header("Content-Type"),   header("DAV"),
            header("Lock-Token")};
}

std::string brokenReason(const QNetworkReply& reply, bool hasHead) {
    switch (reply.error()) {
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        return hasHead ? say("The server fell silent.") : say("The server does not answer.");
    case QNetworkReply::HostNotFoundError:
        return say("The server was not found. Is the computer online?");
    case QNetworkReply::SslHandshakeFailedError:
        return say("The server cannot be reached safely.");
    default:
        return hasHead ? say("The connection broke off.") : say("The server cannot be reached.");
    }
}

/// Whom a certificate names as its issuer, as people would write it.
std::string issuerOf(const QSslCertificate& certificate) {
    for (const auto name : {QSslCertificate::Organization, QSslCertificate::CommonName})
        if (const QStringList known = certificate.issuerInfo(name); !known.isEmpty())
            return known.constFirst().toStdString();
    return say("an unknown issuer");
}

std::string untrustedReason(const QSslError& fault) {
    return say("The certificate of the server is not trusted, so that nothing was sent. It was "
               "issued by “{}”: {}.",
               issuerOf(fault.certificate()), fault.errorString().toStdString());
}

} // namespace

WebExchange::WebExchange(QNetworkAccessManager& network, const WebRules& rules, WebAsk ask,
                         QObject* parent)
    : QObject(parent), m_network(network), m_rules(rules), m_ask(std::move(ask)) {}

WebExchange::~WebExchange() {
    drop();
}

void WebExchange::start() {
    if (m_rules.isAllowed(m_ask.address.site())) {
        send();
        return;
    }
    const std::string site = m_ask.address.site();
    // The caller hears of it as of every other end: after it has asked.
    QMetaObject::invokeMethod(
        this,
        [this, site] {
            finish({WebEnd::Kind::Final, say("The film lies on {}, which is not ticked.", site),
                    site});
        },
        Qt::QueuedConnection);
}

void WebExchange::stop() {
    drop();
    disconnect(this, nullptr, nullptr, nullptr);
}

QNetworkRequest WebExchange::request() const {
    QNetworkRequest request(
        QUrl::fromEncoded(QByteArray::fromStdString(m_ask.address.text()), QUrl::StrictMode));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setTransferTimeout(m_rules.pace.silenceMilliseconds);
    // A packed answer has other bytes than the film, and no place to go on from.
    request.setRawHeader("Accept-Encoding", "identity");
    for (const auto& [name, value] : m_ask.headers)
        request.setRawHeader(name, value);
    if (m_rules.login && m_ask.address.isSameOrigin(m_rules.source))
        request.setRawHeader(
            "Authorization",
            "Basic " + (m_rules.login->user + ':' + m_rules.login->password).toUtf8().toBase64());
    return request;
}

void WebExchange::send() {
    m_hasHead = false;
    m_untrusted.clear();
    m_reply = sentRequest();
    m_reply->setReadBufferSize(MostBytesAhead);
    connect(m_reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& faults) {
        m_untrusted = untrustedReason(faults.constFirst());
    });
    connect(m_reply, &QNetworkReply::uploadProgress, this, &WebExchange::sent);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &WebExchange::takeHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &WebExchange::takeBytes);
    connect(m_reply, &QNetworkReply::finished, this, &WebExchange::takeEnd);
}

QNetworkReply* WebExchange::sentRequest() {
    // Of an answer without content the network would wait for some, did it not know the question.
    if (m_ask.verb == "HEAD")
        return m_network.head(request());
    if (!m_ask.content)
        return m_network.sendCustomRequest(request(), m_ask.verb, m_ask.body);
    m_ask.content->seek(0); // a redirect may have taken it
    QNetworkReply* const reply =
        m_network.sendCustomRequest(request(), m_ask.verb, m_ask.content.get());
    // It reads of the content as long as it is there, which may be longer than this.
    connect(reply, &QObject::destroyed, [content = m_ask.content] {});
    return reply;
}

void WebExchange::takeHead() {
    if (!m_reply || m_hasHead || statusOf(*m_reply) == 0)
        return;
    m_hasHead = true;
    if (isRedirect(statusOf(*m_reply)))
        follow();
    else
        emit answered(headOf(*m_reply));
}

void WebExchange::follow() {
    const std::string location = m_reply->rawHeader("Location").toStdString();
    const RedirectPlan plan =
        planOfRedirect(m_ask.address, location, m_redirects,
                       [this](const std::string& site) { return m_rules.isAllowed(site); });
    drop();
    if (!plan.address) {
        finish({WebEnd::Kind::Final, plan.reason, plan.otherSite});
        return;
    }
    ++m_redirects;
    m_ask.address = *plan.address;
    send();
}

void WebExchange::takeBytes() {
    takeHead();
    if (!m_reply || !m_hasHead || m_isHeld)
        return;
    if (const QByteArray bytes = m_reply->readAll(); !bytes.isEmpty())
        emit received(bytes);
}

void WebExchange::takeEnd() {
    takeBytes(); // which may follow a redirect, or end in a stop
    if (!m_reply || !m_reply->isFinished() || m_isHeld)
        return;
    const bool isWhole = m_reply->error() == QNetworkReply::NoError || statusOf(*m_reply) >= 400;
    const std::string untrusted = m_untrusted;
    const std::string reason = isWhole ? std::string() : brokenReason(*m_reply, m_hasHead);
    drop();
    if (!untrusted.empty())
        finish({WebEnd::Kind::Final, untrusted, {}});
    else
        finish({isWhole ? WebEnd::Kind::Whole : WebEnd::Kind::Broken, reason, {}});
}

void WebExchange::goOn() {
    m_isHeld = false;
    if (m_reply)
        takeEnd(); // or bytes, as long as there are some
}

void WebExchange::finish(const WebEnd& end) {
    emit ended(end);
}

/// Deleting it breaks the connection off. Aborting would too, but a reply may have an error of the
/// server on its way to itself, and complains on the error output of one that comes after that.
void WebExchange::drop() {
    QNetworkReply* const reply = std::exchange(m_reply, nullptr);
    if (!reply)
        return;
    reply->disconnect(this);
    reply->deleteLater();
}

} // namespace kavela::fetch
