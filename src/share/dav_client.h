#pragma once

#include "fetch/web_exchange.h"

#include <QNetworkAccessManager>

#include <functional>
#include <string>

namespace kavela::share {

/// What a server said to one question.
struct DavAnswer {
    fetch::AnswerHead head = {}; ///< a status of 0 where no answer came
    std::string body = {};
    std::string reason = {}; ///< why no whole answer came: a sentence without the address
    bool isBroken = false;   ///< another try may do better

    [[nodiscard]] int status() const { return head.status; }
    [[nodiscard]] bool isDone() const {
        return reason.empty() && head.status >= 200 && head.status < 300;
    }
    [[nodiscard]] bool isMissing() const {
        return reason.empty() && (head.status == 404 || head.status == 410);
    }
};

/// Why a question was not granted, in a sentence; empty where it was.
[[nodiscard]] std::string refusalOf(const DavAnswer& answer);

/// Asks servers for files and gives them some: https alone but for this computer, no certificate
/// that nobody vouches for, no redirect to another server or to http, the password for the origin
/// of the rules alone. For a thread with an event loop.
class DavClient : public QObject {
    Q_OBJECT

public:
    explicit DavClient(QObject* parent = nullptr);
    /// What is being asked is given up, and nothing is told of it.
    ~DavClient() override;

    using Answered = std::function<void(const DavAnswer& answer)>;
    using Sent = std::function<void(qint64 bytes, qint64 all)>;

    /// One question, once. `most` bytes are taken of the answer; a longer one is none. `answered`
    /// is called from the event loop.
    void ask(const fetch::WebRules& rules, fetch::WebAsk ask, std::size_t most, Answered answered,
             Sent sent = {});
    /// Gives up what is being asked.
    void giveUp();
    [[nodiscard]] QNetworkAccessManager& network() { return m_network; }

private:
    QNetworkAccessManager m_network;
};

} // namespace kavela::share
