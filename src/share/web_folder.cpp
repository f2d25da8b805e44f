#include "share/web_folder.h"

#include "common/error.h"
#include "common/text.h"
#include "fetch/listing.h"

#include <QDateTime>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <array>
#include <utility>

namespace kavela::share {

namespace {

constexpr std::size_t MostAnswerBytes = 128'000'000; ///< a list of 200,000 files
constexpr int MillisecondsBetweenStopLooks = 40;

bool isWorthAnotherTry(const DavAnswer& answer) {
    constexpr std::array<int, 7> Busy{408, 425, 429, 500, 502, 503, 504};
    return answer.isBroken || std::ranges::find(Busy, answer.status()) != Busy.end();
}

std::int64_t sizeOnDisk(const std::filesystem::path& path) {
    std::error_code missing;
    const auto size = std::filesystem::file_size(path, missing);
    return missing ? 0 : static_cast<std::int64_t>(size);
}

} // namespace

WebFolder::WebFolder(fetch::WebRules rules, std::stop_token stop)
    : m_rules(std::move(rules)), m_stop(std::move(stop)) {}

/// Whoever asks to stop does it on another thread: it is looked for now and then.
void WebFolder::runUntil(const std::function<bool()>& isOver) {
    QEventLoop loop;
    QTimer look; // wakes the loop
    look.start(MillisecondsBetweenStopLooks);
    while (!isOver() && !m_stop.stop_requested())
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    if (m_stop.stop_requested()) {
        m_client.giveUp();
        throw ShareStopped();
    }
}

DavAnswer WebFolder::askOnce(const fetch::WebAsk& ask, const BytesMoved& sent) {
    std::optional<DavAnswer> got;
    ++m_asked;
    m_client.ask(
        m_rules, ask, MostAnswerBytes, [&](const DavAnswer& answer) { got = answer; },
        [&](qint64 bytes, qint64 all) {
            if (sent && all > 0)
                sent(bytes, all);
        });
    runUntil([&] { return got.has_value(); });
    return std::move(*got);
}

DavAnswer WebFolder::ask(const fetch::WebAsk& ask, const BytesMoved& sent) {
    for (int tries = 1;; ++tries) {
        DavAnswer answer = askOnce(ask, sent);
        if (!isWorthAnotherTry(answer))
            return answer;
        const auto wait = fetch::waitBeforeTry(
            tries,
            fetch::parsedRetryAfter(answer.head.retryAfter, QDateTime::currentSecsSinceEpoch()));
        if (!wait)
            return answer;
        pause(*wait);
    }
}

void WebFolder::pause(std::chrono::seconds length) {
    bool isOver = false;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&] { isOver = true; });
    timer.start(static_cast<int>(length.count()) * m_rules.pace.secondMilliseconds);
    runUntil([&] { return isOver; });
}

std::optional<fetch::DavEntry> WebFolder::stateOf(const fetch::Address& file) {
    const std::string_view question = fetch::davQuestion();
    const DavAnswer answer =
        ask({.address = file,
             .verb = "PROPFIND",
             .body = QByteArray(question.data(), static_cast<qsizetype>(question.size())),
             .headers = {{"Depth", "0"}, {"Content-Type", "application/xml; charset=utf-8"}}});
    if (answer.isMissing())
        return std::nullopt;
    if (!answer.isDone())
        throw ShareError(refusalOf(answer), answer.status() == 401);
    try {
        const std::vector<fetch::DavEntry> entries = fetch::entriesOfDav(answer.body, file);
        return entries.empty() ? std::nullopt : std::optional(entries.front());
    } catch (const fetch::ListingError& error) {
        throw ShareError(error.what());
    }
}

std::optional<fetch::TransferFault> WebFolder::bringSome(const fetch::Address& file,
                                                         const std::filesystem::path& part,
                                                         const BytesMoved& moved,
                                                         Brought& brought) {
    using fetch::FileTransfer;
    bool isOver = false;
    std::optional<fetch::TransferFault> fault;
    FileTransfer transfer(
        m_client.network(), m_rules, [](std::int64_t) { return true; }, nullptr);
    QObject::connect(&transfer, &FileTransfer::whole, [&] { isOver = true; });
    QObject::connect(&transfer, &FileTransfer::failed, [&](const fetch::TransferFault& told) {
        fault = told;
        isOver = true;
    });
    QObject::connect(&transfer, &FileTransfer::progressed, [&](qint64 held, qint64 size) {
        if (moved)
            moved(held, size);
    });
    ++m_asked;
    transfer.start(file, part);
    runUntil([&] { return isOver; });
    const std::string& validator = transfer.note().validator;
    brought = {validator.starts_with('"') ? validator : std::string(), transfer.digest()};
    return fault;
}

WebFolder::Brought WebFolder::bring(const fetch::Address& file, const std::filesystem::path& part,
                                    const BytesMoved& moved) {
    Brought brought;
    for (;;) {
        const std::int64_t before = sizeOnDisk(part);
        const auto fault = bringSome(file, part, moved, brought);
        if (!fault)
            return brought;
        if (!fault->otherSite.empty())
            throw ShareError(say("The server leads to another one, {}, which is not followed.",
                                 fault->otherSite));
        if (fault->isOfDisk)
            throw FileError(part, fault->reason);
        if (fault->isNotThere || fault->wantsLogin || sizeOnDisk(part) <= before)
            throw ShareError(fault->reason, fault->wantsLogin);
    }
}

} // namespace kavela::share
