#include "fetch/file_transfer.h"

#include "common/text.h"
#include "fetch/beside.h"

#include <QDateTime>
#include <QThreadPool>
#include <QTimer>

#include <utility>

namespace kavela::fetch {

namespace fs = std::filesystem;

FileTransfer::FileTransfer(QNetworkAccessManager& network, const WebRules& rules, TakeBytes mayTake,
                           QObject* parent)
    : QObject(parent), m_network(network), m_rules(rules), m_mayTake(std::move(mayTake)) {}

/// What is asked of the disk is done in the order of asking, to its end whatever becomes of this.
template <class Work, class Done>
void FileTransfer::onDisk(Work work, Done done) {
    if (!m_file)
        m_file = std::make_shared<PartFile>(m_part);
    runBeside(
        this, [file = m_file, work = std::move(work)] { return work(*file); },
        [this, done = std::move(done)](const auto& result) {
            if (!m_isStopped)
                done(result);
        },
        partPool());
}

void FileTransfer::start(const Address& address, const fs::path& part) {
    m_address = address;
    m_part = part;
    onDisk([address](const PartFile& file) { return file.held(address); },
           [this](const HeldPart& held) {
               m_held = held;
               tryNow();
           });
}

void FileTransfer::stop() {
    m_isStopped = true;
    endExchange();
    letGo();
    disconnect(this, nullptr, nullptr, nullptr);
}

/// Closing a file may take a disk's time too.
void FileTransfer::letGo() {
    if (m_file)
        partPool().start([file = std::exchange(m_file, nullptr)] {});
}

void FileTransfer::startAnew(const std::string& reason) {
    dropPart([this, reason] { retry(reason); });
}

void FileTransfer::dropPart(std::function<void()> dropped) {
    if (m_isStopped)
        return; // while it was being checked: it stays for the next time
    endExchange();
    m_held = {};
    m_digest.clear();
    onDisk(
        [](PartFile& file) {
            file.remove();
            return true;
        },
        [dropped = std::move(dropped)](bool) { dropped(); });
}

void FileTransfer::tryNow() {
    if (m_isStopped)
        return;
    if (m_held.note.size > 0 && m_held.bytes == m_held.note.size) {
        emit whole();
        return;
    }
    WebAsk ask{.address = m_address};
    const std::optional<RestQuestion> rest = restQuestion(m_held, m_address);
    m_wasRest = rest.has_value();
    if (rest)
        ask.headers = {{"Range", QByteArray::fromStdString(rest->range)},
                       {"If-Range", QByteArray::fromStdString(rest->ifRange)}};
    m_exchange = new WebExchange(m_network, m_rules, std::move(ask), this);
    connect(m_exchange, &WebExchange::answered, this, &FileTransfer::takeHead);
    connect(m_exchange, &WebExchange::received, this, &FileTransfer::takeBytes);
    connect(m_exchange, &WebExchange::ended, this, &FileTransfer::takeEnd);
    m_exchange->start();
}

void FileTransfer::takeHead(const AnswerHead& head) {
    using Step = AnswerPlan::Step;
    const AnswerPlan plan =
        planOfAnswer(m_held, m_wasRest, m_address, head, QDateTime::currentSecsSinceEpoch());
    m_digest = sha256OfDigest(head.digest);
    switch (plan.step) {
    case Step::Append:
    case Step::Start:
        openFor(plan);
        return;
    case Step::AskWhole:
        startAnew(plan.reason);
        return;
    case Step::Wait:
        retry(plan.reason, plan.retryAfter);
        return;
    case Step::NotThere:
    case Step::Refuse:
        fail({.reason = plan.reason,
              .isNotThere = plan.step == Step::NotThere,
              .wantsLogin = head.status == 401 || head.status == 403});
    }
}

void FileTransfer::openFor(const AnswerPlan& plan) {
    m_held = {plan.step == AnswerPlan::Step::Start ? 0 : m_held.bytes, plan.note};
    m_exchange->hold();
    onDisk([held = m_held](PartFile& file) { return file.open(held); },
           [this](const std::string& fault) {
               if (fault.empty())
                   countTaken(0);
               else
                   fail({.reason = say("The folder takes no file: {}", fault), .isOfDisk = true});
           });
}

/// Bytes are held as soon as the disk has taken them, and not before.
void FileTransfer::takeBytes(const QByteArray& bytes) {
    if (m_held.note.size > 0 && m_held.bytes + bytes.size() > m_held.note.size) {
        startAnew(say("The server sends more than it announced."));
        return;
    }
    if (!m_mayTake(bytes.size())) {
        fail({say("The job has brought 20 GB, which is the most in one go.")});
        return;
    }
    m_exchange->hold();
    onDisk([bytes](PartFile& file) { return file.append(bytes); },
           [this, count = bytes.size()](const std::string& fault) {
               if (fault.empty())
                   countTaken(count);
               else
                   fail({.reason = say("The disk does not take the file: {}", fault),
                         .isOfDisk = true});
           });
}

void FileTransfer::countTaken(qint64 bytes) {
    m_held.bytes += bytes;
    emit progressed(m_held.bytes, m_held.note.size);
    if (m_exchange) // unless who heard it has stopped this
        m_exchange->goOn();
}

void FileTransfer::takeEnd(const WebEnd& end) {
    if (end.kind == WebEnd::Kind::Final)
        fail({.reason = end.reason, .otherSite = end.otherSite});
    else if (end.kind == WebEnd::Kind::Broken)
        retry(end.reason);
    else if (m_held.note.size > 0 && m_held.bytes < m_held.note.size)
        retry(say("The file broke off before its end."));
    else
        finishFile();
}

void FileTransfer::finishFile() {
    endExchange();
    if (m_held.bytes == 0) {
        startAnew(say("The server sent nothing."));
        return;
    }
    // A disk may take its time, and a film in pieces has thousands of ends: in no order with
    // others.
    runBeside(
        this, [file = m_file] { return file->finish(); },
        [this](bool isKept) {
            if (m_isStopped)
                return;
            if (isKept)
                emit whole();
            else
                fail({.reason = say("The disk does not take the file."), .isOfDisk = true});
        });
}

void FileTransfer::retry(const std::string& reason,
                         std::optional<std::chrono::seconds> retryAfter) {
    endExchange();
    const auto wait = waitBeforeTry(++m_tries, retryAfter);
    if (!wait) {
        letGo();
        emit failed({reason + ' ' +
                     sayCount(m_tries, "After {} try it was given up for now.",
                              "After {} tries it was given up for now.")});
        return;
    }
    QTimer::singleShot(static_cast<int>(wait->count()) * m_rules.pace.secondMilliseconds, this,
                       &FileTransfer::tryNow);
}

void FileTransfer::fail(TransferFault fault) {
    endExchange();
    letGo();
    emit failed(fault);
}

void FileTransfer::endExchange() {
    WebExchange* const exchange = std::exchange(m_exchange, nullptr);
    if (!exchange)
        return;
    exchange->stop();
    exchange->deleteLater();
}

} // namespace kavela::fetch
