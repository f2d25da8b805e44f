#pragma once

#include "fetch/resume_rules.h"
#include "fetch/web_rules.h"

#include <QByteArray>
#include <QNetworkRequest>
#include <QObject>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class QIODevice;
class QNetworkAccessManager;
class QNetworkReply;

namespace kavela::fetch {

/// What is asked of a server.
struct WebAsk {
    Address address;
    QByteArray verb = "GET";
    QByteArray body = {};
    std::vector<std::pair<QByteArray, QByteArray>> headers = {};
    /// Sent in place of the body where there is one: open, from its beginning.
    std::shared_ptr<QIODevice> content = nullptr;
};

/// How an exchange ended.
struct WebEnd {
    enum class Kind {
        Whole,  ///< the answer is here, whatever its status
        Broken, ///< another try may do better
        Final   ///< it would not
    };

    Kind kind = Kind::Whole;
    std::string reason = {};    ///< a sentence without the address, which may hold secrets
    std::string otherSite = {}; ///< the server that would have to be ticked
};

/// One question and its answer, redirects followed as the rules allow. A certificate that is not
/// trusted ends it; the password goes to the origin of the source and nowhere else. After stop(),
/// and after `ended`, nothing is told any more.
class WebExchange : public QObject {
    Q_OBJECT

public:
    /// Network and rules outlive it.
    WebExchange(QNetworkAccessManager& network, const WebRules& rules, WebAsk ask, QObject* parent);
    ~WebExchange() override;

    void start();
    void stop();
    /// Neither bytes nor the end are told until goOn(); little is taken from the server meanwhile.
    void hold() { m_isHeld = true; }
    void goOn();
    /// Where the answer came from.
    [[nodiscard]] const Address& from() const { return m_ask.address; }

signals:
    void answered(const kavela::fetch::AnswerHead& head);
    void received(const QByteArray& bytes);
    /// How much of what is asked with is on its way.
    void sent(qint64 bytes, qint64 all);
    void ended(const kavela::fetch::WebEnd& end);

private:
    void send();
    [[nodiscard]] QNetworkReply* sentRequest();
    [[nodiscard]] QNetworkRequest request() const;
    void takeHead();
    void follow();
    void takeBytes();
    void takeEnd();
    void finish(const WebEnd& end);
    void drop();

    QNetworkAccessManager& m_network;
    const WebRules& m_rules;
    WebAsk m_ask;
    QNetworkReply* m_reply = nullptr;
    std::string m_untrusted; ///< what is wrong with the certificate
    int m_redirects = 0;
    bool m_hasHead = false;
    bool m_isHeld = false;
};

} // namespace kavela::fetch
