#pragma once

#include "fetch/web_exchange.h"

#include <functional>

namespace kavela::fetch {

/// What a short question brought.
struct SmallAnswer {
    bool isThere = false;
    std::string body = {};
    std::string contentType = {};
    Address from = {};          ///< after redirects
    std::string reason = {};    ///< why it is not there
    std::string otherSite = {}; ///< the server that would have to be ticked
    bool isNotThere = false;    ///< the server has it not yet
    bool wantsLogin = false;
    bool isTooLong = false; ///< it was refused while it came
};

/// Lists, playlists and checksums: answers that fit into memory, asked for again as films are.
class SmallFetch : public QObject {
    Q_OBJECT

public:
    using Answered = std::function<void(const SmallAnswer& answer)>;

    /// `most` bytes are taken; a longer answer is refused. `answered` is called once, never from
    /// within start().
    SmallFetch(QNetworkAccessManager& network, const WebRules& rules, std::size_t most,
               QObject* parent);
    void start(WebAsk ask, Answered answered);

private:
    void tryNow();
    void takeHead(const AnswerHead& head);
    void takeBytes(const QByteArray& bytes);
    void takeEnd(const WebEnd& end);
    void fail(const std::string& reason, std::optional<std::chrono::seconds> retryAfter);
    void give(SmallAnswer answer);

    QNetworkAccessManager& m_network;
    const WebRules& m_rules;
    std::size_t m_most;
    WebAsk m_ask;
    Answered m_answered;
    WebExchange* m_exchange = nullptr;
    SmallAnswer m_answer;
    int m_tries = 0;
};

} // namespace kavela::fetch
