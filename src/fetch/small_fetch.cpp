#include "fetch/small_fetch.h"

#include "common/text.h"

#include <QDateTime>
#include <QTimer>

namespace kavela::fetch {

namespace {

constexpr int MultiStatus = 207; ///< how WebDAV says yes

} // namespace

SmallFetch::SmallFetch(QNetworkAccessManager& network, const WebRules& rules, std::size_t most,
                       QObject* parent)
    : QObject(parent), m_network(network), m_rules(rules), m_most(most) {}

void SmallFetch::start(WebAsk ask, Answered answered) {
    m_ask = std::move(ask);
    m_answered = std::move(answered);
    m_tries = 0;
    tryNow();
}

void SmallFetch::tryNow() {
    m_answer = {};
    m_exchange = new WebExchange(m_network, m_rules, m_ask, this);
    connect(m_exchange, &WebExchange::answered, this, &SmallFetch::takeHead);
    connect(m_exchange, &WebExchange::received, this, &SmallFetch::takeBytes);
    connect(m_exchange, &WebExchange::ended, this, &SmallFetch::takeEnd);
    m_exchange->start();
}

void SmallFetch::takeHead(const AnswerHead& head) {
    AnswerHead plain = head;
    if (plain.status == MultiStatus)
        plain.status = 200;
    const AnswerPlan plan =
        planOfAnswer({}, false, m_ask.address, plain, QDateTime::currentSecsSinceEpoch());
    m_answer.from = m_exchange->from();
    m_answer.contentType = head.contentType;
    if (plan.step == AnswerPlan::Step::Start)
        return;
    m_exchange->stop();
    if (plan.step == AnswerPlan::Step::Wait || plan.step == AnswerPlan::Step::AskWhole)
        fail(plan.reason, plan.retryAfter);
    else
        give({.reason = plan.reason,
              .isNotThere = plan.step == AnswerPlan::Step::NotThere,
              .wantsLogin = head.status == 401 || head.status == 403});
}

void SmallFetch::takeBytes(const QByteArray& bytes) {
    m_answer.body.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (m_answer.body.size() <= m_most)
        return;
    m_exchange->stop();
    give({.reason = say("The answer is longer than any list is."), .isTooLong = true});
}

void SmallFetch::takeEnd(const WebEnd& end) {
    if (end.kind == WebEnd::Kind::Broken) {
        fail(end.reason, {});
        return;
    }
    m_answer.isThere = end.kind == WebEnd::Kind::Whole;
    m_answer.reason = end.reason;
    m_answer.otherSite = end.otherSite;
    give(std::move(m_answer));
}

void SmallFetch::fail(const std::string& reason, std::optional<std::chrono::seconds> retryAfter) {
    m_exchange->stop();
    // Anything but a plain question has a plain one to fall back to.
    const auto wait = m_ask.verb == "GET" ? waitBeforeTry(++m_tries, retryAfter) : std::nullopt;
    if (!wait) {
        give({.reason = reason});
        return;
    }
    m_exchange->deleteLater();
    QTimer::singleShot(static_cast<int>(wait->count()) * m_rules.pace.secondMilliseconds, this,
                       &SmallFetch::tryNow);
}

void SmallFetch::give(SmallAnswer answer) {
    m_exchange->deleteLater();
    m_exchange = nullptr;
    const Answered answered = std::move(m_answered);
    answered(answer);
}

} // namespace kavela::fetch
