#pragma once

#include "fetch/part_file.h"
#include "fetch/web_exchange.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace kavela::fetch {

/// Counts what a job has brought, over all of its films. Answers whether that many bytes more may
/// be taken.
using TakeBytes = std::function<bool(std::int64_t bytes)>;

/// How the way of a film onto the disk ended without it.
struct TransferFault {
    std::string reason; ///< a sentence
    std::string otherSite = {};
    bool isNotThere = false; ///< not yet
    bool wantsLogin = false;
    bool isOfDisk = false; ///< the disk here does not take it: another try would not help
};

/// Brings one file into PART, with a note "PART.note" beside it, by as many tries as it takes, and
/// goes on where an earlier one stopped. What is held stays for the next time, whatever ends this.
/// The disk is waited for on another thread, and the server waits with it.
class FileTransfer : public QObject {
    Q_OBJECT

public:
    FileTransfer(QNetworkAccessManager& network, const WebRules& rules, TakeBytes mayTake,
                 QObject* parent);

    void start(const Address& address, const std::filesystem::path& part);
    /// Nothing is told after it.
    void stop();
    /// The file is not what it should be: it is given up and fetched from its beginning, which is
    /// one more try.
    void startAnew(const std::string& reason);
    /// Removes the part and its note; `dropped` is called then, unless this was stopped.
    void dropPart(std::function<void()> dropped);

    [[nodiscard]] const std::filesystem::path& part() const { return m_part; }
    /// What is known of the state that came.
    [[nodiscard]] const filmpart001& note() const { return m_held.note; }
    /// The SHA-256 that the server told of the file; empty for none.
    [[nodiscard]] const std::string& digest() const { return m_digest; }

signals:
    /// Bytes; a size of 0 is not known.
    void progressed(qint64 held, qint64 size);
    /// The file is on the disk, flushed, as long as it was announced.
    void whole();
    void failed(const kavela::fetch::TransferFault& fault);

private:
    template <class Work, class Done>
    void onDisk(Work work, Done done);
    void tryNow();
    void takeHead(const AnswerHead& head);
    void openFor(const AnswerPlan& plan);
    void takeBytes(const QByteArray& bytes);
    void countTaken(qint64 bytes);
    void takeEnd(const WebEnd& end);
    void finishFile();
    void retry(const std::string& reason, std::optional<std::chrono::seconds> retryAfter = {});
    void fail(TransferFault fault);
    void endExchange();
    void letGo();

    QNetworkAccessManager& m_network;
    const WebRules& m_rules;
    TakeBytes m_mayTake;
    Address m_address;
    std::filesystem::path m_part;
    HeldPart m_held;
    std::shared_ptr<PartFile> m_file; ///< of the other thread while that works on it
    WebExchange* m_exchange = nullptr;
    std::string m_digest;
    bool m_wasRest = false;
    bool m_isStopped = false;
    int m_tries = 0;
};

} // namespace kavela::fetch
