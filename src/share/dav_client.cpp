#include "share/dav_client.h"

#include "common/text.h"
#include "share/web_place.h"

#include <QTimer>

#include <utility>

namespace kavela::share {

namespace {

/// One question on its way; it goes when it has its answer.
class DavQuestion : public QObject {
public:
    DavQuestion(const fetch::WebRules& rules, std::size_t most, DavClient::Answered answered,
                QObject* parent)
        : QObject(parent), m_rules(rules), m_most(most), m_answered(std::move(answered)) {}

    void start(QNetworkAccessManager& network, fetch::WebAsk ask, const DavClient::Sent& sent) {
        using fetch::WebExchange;
        m_exchange = new WebExchange(network, m_rules, std::move(ask), this);
        connect(m_exchange, &WebExchange::answered, this,
                [this](const fetch::AnswerHead& head) { m_answer.head = head; });
        connect(m_exchange, &WebExchange::received, this,
                [this](const QByteArray& bytes) { take(bytes); });
        connect(m_exchange, &WebExchange::ended, this,
                [this](const fetch::WebEnd& end) { takeEnd(end); });
        if (sent)
            connect(m_exchange, &WebExchange::sent, this, sent);
        m_exchange->start();
    }

    void refuse(const std::string& reason) {
        m_answer.reason = reason;
        QTimer::singleShot(0, this, [this] { give(); });
    }

private:
    void take(const QByteArray& bytes) {
        m_answer.body.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        if (m_answer.body.size() <= m_most)
            return;
        m_exchange->stop();
        m_answer.reason = say("The answer of the server is longer than it can be.");
        give();
    }

    void takeEnd(const fetch::WebEnd& end) {
        m_answer.isBroken = end.kind == fetch::WebEnd::Kind::Broken;
        m_answer.reason = end.otherSite.empty()
                              ? end.reason
                              : say("The server leads to another one, {}, which is "
                                    "not followed.",
                                    end.otherSite);
        give();
    }

    void give() {
        deleteLater();
        // Who hears it may take the client along, and this with it.
        const DavClient::Answered answered = std::exchange(m_answered, {});
        const DavAnswer answer = std::move(m_answer);
        answered(answer);
    }

    fetch::WebRules m_rules;
    std::size_t m_most;
    DavClient::Answered m_answered;
    fetch::WebExchange* m_exchange = nullptr;
    DavAnswer m_answer;
};

} // namespace

std::string refusalOf(const DavAnswer& answer) {
    if (!answer.reason.empty())
        return answer.reason;
    switch (answer.status()) {
    case 401:
        return say("The server does not accept the user name or the password.");
    case 403:
        return say("The server does not allow this, or not to this user.");
    case 404:
    case 410:
        return say("The server has no such file or folder.");
    case 409:
        return say("The folder above is not there on the server.");
    case 412:
        return say("Somebody changed it on the server meanwhile.");
    case 413:
        return say("The server takes no file of this size.");
    case 423:
        return say("Somebody has locked it on the server.");
    case 507:
        return say("The server is full, or your share of it.");
    default:
        return answer.isDone() ? std::string()
                               : say("The server answered with status {}.", answer.status());
    }
}

DavClient::DavClient(QObject* parent) : QObject(parent) {
    m_network.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
}

/// The questions use the network, which would be gone before the children of this are.
DavClient::~DavClient() {
    giveUp();
}

void DavClient::giveUp() {
    qDeleteAll(findChildren<QObject*>(Qt::FindDirectChildrenOnly));
}

void DavClient::ask(const fetch::WebRules& rules, fetch::WebAsk ask, std::size_t most,
                    Answered answered, Sent sent) {
    auto* const question = new DavQuestion(rules, most, std::move(answered), this);
    if (const auto fault = faultOfPlace(ask.address.text()))
        question->refuse(*fault);
    else
        question->start(m_network, std::move(ask), sent);
}

} // namespace kavela::share
