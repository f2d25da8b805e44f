#include "fetch/file_transfer.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "fetch/beside.h"

#include <QDateTime>
#include <QTimer>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace kavela::fetch {

namespace fs = std::filesystem;

namespace {

/// Waits until the disk has all of a file.
bool isOnDisk(const fs::path& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool isThere = ::fsync(file) == 0;
    ::close(file);
    return isThere;
}

} // namespace

FileTransfer::FileTransfer(QNetworkAccessManager& network, const WebRules& rules, TakeBytes mayTake,
                           QObject* parent)
    : QObject(parent), m_network(network), m_rules(rules), m_mayTake(std::move(mayTake)) {}

fs::path FileTransfer::notePath() const {
    return m_part.string() + ".note";
}

void FileTransfer::start(const Address& address, const fs::path& part) {
    m_address = address;
    m_part = part;
    m_file.setFileName(QFile::decodeName(part.c_str()));
    findHeld();
    // Also what is here already is told from the event loop.
    QTimer::singleShot(0, this, &FileTransfer::tryNow);
}

void FileTransfer::stop() {
    m_isStopped = true;
    endExchange();
    m_file.close();
    disconnect(this, nullptr, nullptr, nullptr);
}

void FileTransfer::startAnew(const std::string& reason) {
    dropPart();
    retry(reason);
}

void FileTransfer::dropPart() {
    m_file.close();
    std::error_code ignored;
    fs::remove(m_part, ignored);
    fs::remove(notePath(), ignored);
    m_held = {};
    m_digest.clear();
}

/// A part without a note that fits is of no use: nobody knows what it is of.
void FileTransfer::findHeld() {
    std::error_code missing;
    const auto bytes = fs::file_size(m_part, missing);
    try {
        if (!missing)
            m_held = {static_cast<std::int64_t>(bytes),
                      decode<filmpart001>(JsonDocument::fromFile(notePath()))};
    } catch (const std::runtime_error&) {
        m_held = {};
    }
    if (m_held.note.address != m_address.text())
        m_held = {};
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
        if (isOpenFor(plan))
            emit progressed(m_held.bytes, m_held.note.size);
        return;
    case Step::AskWhole:
        dropPart();
        retry(plan.reason);
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

/// The note stands on the disk before the first byte does: a part never has that of another state.
bool FileTransfer::isOpenFor(const AnswerPlan& plan) {
    const bool isStart = plan.step == AnswerPlan::Step::Start;
    std::error_code ignored;
    if (isStart)
        fs::remove(m_part, ignored);
    m_held = {isStart ? 0 : m_held.bytes, plan.note};
    try {
        writeFileSafely(notePath(), encode(m_held.note));
    } catch (const FileError& error) {
        fail({.reason = "The folder takes no file: " + error.reason(), .isOfDisk = true});
        return false;
    }
    if (m_file.open(QIODevice::Append) && m_file.size() == m_held.bytes)
        return true;
    fail({.reason = "The folder takes no file: " + m_file.errorString().toStdString(),
          .isOfDisk = true});
    return false;
}

void FileTransfer::takeBytes(const QByteArray& bytes) {
    if (m_held.note.size > 0 && m_held.bytes + bytes.size() > m_held.note.size) {
        dropPart();
        retry("The server sends more than it announced.");
        return;
    }
    if (!m_mayTake(bytes.size())) {
        fail({"The job has brought 20 GB, which is the most in one go."});
        return;
    }
    // Unbuffered by itself: what a full disk did not take is not counted as held.
    errno = 0;
    if (m_file.write(bytes) != bytes.size() || !m_file.flush()) {
        // Of bytes that were taken in part, the file itself tells no reason.
        const int fault = errno;
        const std::string reason = fault != 0 ? std::generic_category().message(fault)
                                              : m_file.errorString().toStdString();
        fail({.reason = "The disk does not take the file: " + reason, .isOfDisk = true});
        return;
    }
    m_held.bytes += bytes.size();
    emit progressed(m_held.bytes, m_held.note.size);
}

void FileTransfer::takeEnd(const WebEnd& end) {
    if (end.kind == WebEnd::Kind::Final)
        fail({.reason = end.reason, .otherSite = end.otherSite});
    else if (end.kind == WebEnd::Kind::Broken)
        retry(end.reason);
    else if (m_held.note.size > 0 && m_held.bytes < m_held.note.size)
        retry("The file broke off before its end.");
    else
        finishFile();
}

void FileTransfer::finishFile() {
    endExchange();
    if (m_held.bytes == 0) {
        dropPart();
        retry("The server sent nothing.");
        return;
    }
    const bool isFlushed = m_file.flush();
    m_file.close();
    // A disk may take its time, and a film in pieces has thousands of ends.
    runBeside(
        this, [part = m_part, isFlushed] { return isFlushed && isOnDisk(part); },
        [this](bool isKept) {
            if (m_isStopped)
                return;
            if (isKept)
                emit whole();
            else
                fail({.reason = "The disk does not take the file.", .isOfDisk = true});
        });
}

void FileTransfer::retry(const std::string& reason,
                         std::optional<std::chrono::seconds> retryAfter) {
    endExchange();
    m_file.close();
    const auto wait = waitBeforeTry(++m_tries, retryAfter);
    if (!wait) {
        emit failed({reason + " After " + std::to_string(m_tries) +
                     (m_tries == 1 ? " try" : " tries") + " it was given up for now."});
        return;
    }
    QTimer::singleShot(static_cast<int>(wait->count()) * m_rules.pace.secondMilliseconds, this,
                       &FileTransfer::tryNow);
}

void FileTransfer::fail(TransferFault fault) {
    endExchange();
    m_file.close();
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
