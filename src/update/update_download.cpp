#include "update/update_download.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "update/update_look.h"

#include <QDateTime>
#include <QTimer>

#include <unistd.h>

namespace kavela::update {

namespace fs = std::filesystem;

namespace {

/// The first name that nothing has: "kavela.deb", "kavela (2).deb".
fs::path freeName(const fs::path& folder, const fs::path& name) {
    fs::path free = folder / name;
    for (int number = 2; isTaken(free); ++number)
        free = folder / (name.stem().string() + " (" + std::to_string(number) + ')' +
                         name.extension().string());
    return free;
}

} // namespace

UpdateDownload::UpdateDownload(const Version& own, const fetch::WebPace& pace, QObject* parent)
    : QObject(parent), m_own(own) {
    m_rules.pace = pace;
}

/// The exchange goes before the network that it is made over.
UpdateDownload::~UpdateDownload() {
    if (m_isRunning)
        dropPart();
    delete m_exchange;
}

void UpdateDownload::start(const updatefile001& file, const fs::path& folder) {
    m_wanted = file;
    m_folder = folder;
    m_isRunning = true;
    m_held = 0;
    m_tries = 0;
    m_hash.reset();
    // What is wrong is told from the event loop too.
    QTimer::singleShot(0, this, [this] {
        if (!m_isRunning)
            return;
        const auto address = safeAddress(m_wanted.address);
        const std::string name = address ? fileNameOf(*address) : std::string();
        if (name.empty()) {
            fail(say("The address of the file is none that is asked."));
            return;
        }
        m_rules.source = *address;
        m_part.setFileName(QFile::decodeName((m_folder / ('.' + name + ".part")).c_str()));
        if (m_part.open(QIODevice::WriteOnly | QIODevice::Truncate))
            tryNow();
        else
            fail(say("The folder takes no file: {}.", m_part.errorString().toStdString()));
    });
}

void UpdateDownload::stop() {
    m_isRunning = false;
    endExchange();
    dropPart();
}

void UpdateDownload::tryNow() {
    if (!m_isRunning)
        return;
    fetch::WebAsk ask{.address = m_rules.source, .headers = updateHeaders(m_own)};
    if (m_held > 0)
        ask.headers.emplace_back("Range", "bytes=" + QByteArray::number(qint64{m_held}) + '-');
    m_exchange = new fetch::WebExchange(m_network, m_rules, std::move(ask), this);
    connect(m_exchange, &fetch::WebExchange::answered, this, &UpdateDownload::takeHead);
    connect(m_exchange, &fetch::WebExchange::received, this, &UpdateDownload::takeBytes);
    connect(m_exchange, &fetch::WebExchange::ended, this, &UpdateDownload::takeEnd);
    m_exchange->start();
}

void UpdateDownload::takeHead(const fetch::AnswerHead& head) {
    if (head.status == 206) {
        const auto range = fetch::parsedContentRange(head.contentRange);
        const bool isRest = m_held > 0 && range && range->first == m_held;
        if (!isRest || range->size.value_or(m_wanted.size) != m_wanted.size)
            fail(say("The server sent another part of the file than it was asked for."));
        return;
    }
    using Step = fetch::AnswerPlan::Step;
    const fetch::AnswerPlan plan =
        fetch::planOfAnswer({}, false, m_rules.source, head, QDateTime::currentSecsSinceEpoch());
    if (plan.step == Step::Start) {
        if (mayGoOn(head))
            emit progressed(0, m_wanted.size);
    } else if (plan.step == Step::Wait) {
        retry(plan.reason, plan.retryAfter);
    } else {
        fail(updateReason(Asked::File, {.reason = plan.reason,
                                        .isNotThere = plan.step == Step::NotThere,
                                        .wantsLogin = head.status == 401 || head.status == 403}));
    }
}

/// A whole file comes, from its beginning: also where only its rest was asked for.
bool UpdateDownload::mayGoOn(const fetch::AnswerHead& head) {
    if (!head.contentLength.empty() && head.contentLength != std::to_string(m_wanted.size)) {
        fail(say("The file on the server is not as long as the list of versions says."));
        return false;
    }
    m_held = 0;
    m_hash.reset();
    if (m_part.resize(0) && m_part.seek(0))
        return true;
    fail(say("The disk does not take the file: {}.", m_part.errorString().toStdString()));
    return false;
}

void UpdateDownload::takeBytes(const QByteArray& bytes) {
    if (m_held + bytes.size() > m_wanted.size) {
        fail(say(
            "The file on the server is longer than the list of versions says. It was deleted."));
        return;
    }
    if (m_part.write(bytes) != bytes.size() || !m_part.flush()) {
        fail(say("The disk does not take the file: {}.", m_part.errorString().toStdString()));
        return;
    }
    m_hash.addData(bytes);
    m_held += bytes.size();
    emit progressed(m_held, m_wanted.size);
}

void UpdateDownload::takeEnd(const fetch::WebEnd& end) {
    using Kind = fetch::WebEnd::Kind;
    if (end.kind == Kind::Final)
        fail(updateReason(Asked::File, {.reason = end.reason, .otherSite = end.otherSite}));
    else if (m_held == m_wanted.size)
        finishFile();
    else
        retry(end.kind == Kind::Broken ? end.reason : say("The file broke off before its end."));
}

void UpdateDownload::finishFile() {
    endExchange();
    if (m_hash.result().toHex().toStdString() != m_wanted.sha256) {
        fail(say("The file is not the one of the list of versions: it is damaged, or was changed. "
                 "It was deleted."));
        return;
    }
    const bool isFlushed = m_part.flush() && ::fsync(m_part.handle()) == 0;
    m_part.close();
    const fs::path target = freeName(m_folder, fileNameOf(m_rules.source));
    std::error_code error;
    if (isFlushed)
        fs::rename(QFile::encodeName(m_part.fileName()).toStdString(), target, error);
    if (!isFlushed || error) {
        fail(say("The disk does not take the file."));
        return;
    }
    m_isRunning = false;
    emit finished(QFile::decodeName(target.c_str()));
}

void UpdateDownload::retry(const std::string& reason,
                           std::optional<std::chrono::seconds> retryAfter) {
    endExchange();
    const auto wait = fetch::waitBeforeTry(++m_tries, retryAfter);
    if (!wait) {
        fail(reason + ' ' +
             sayCount(m_tries, "It was given up after {} tries.",
                      "It was given up after {} tries."));
        return;
    }
    QTimer::singleShot(static_cast<int>(wait->count()) * m_rules.pace.secondMilliseconds, this,
                       &UpdateDownload::tryNow);
}

void UpdateDownload::fail(const std::string& reason) {
    m_isRunning = false;
    endExchange();
    dropPart();
    emit failed(QString::fromStdString(reason));
}

void UpdateDownload::endExchange() {
    fetch::WebExchange* const exchange = std::exchange(m_exchange, nullptr);
    if (!exchange)
        return;
    exchange->stop();
    exchange->deleteLater();
}

void UpdateDownload::dropPart() {
    m_part.close();
    if (!m_part.fileName().isEmpty())
        m_part.remove();
}

} // namespace kavela::update
