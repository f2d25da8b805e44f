#include "share/held_lock.h"

#include <utility>

namespace kavela::share {

namespace {

constexpr std::int64_t LeastLockSeconds = 120;
constexpr std::int64_t SlowestBytesPerSecond = 50'000; ///< of the lines that films are sent over
constexpr int SilenceOfUnlockMilliseconds = 3'000;

} // namespace

HeldLock::HeldLock(WebFolder& web, const ShareRequest& request, fetch::Address file,
                   std::int64_t bytes)
    : m_request(request), m_file(std::move(file)) {
    const std::int64_t seconds = LeastLockSeconds + bytes / SlowestBytesPerSecond;
    // Without it, what is put is bound to its mark: it is not waited for.
    const DavAnswer answer = web.askOnce(
        {.address = m_file,
         .verb = "LOCK",
         .body = "<?xml version=\"1.0\" encoding=\"utf-8\"?><d:lockinfo xmlns:d=\"DAV:\">"
                 "<d:lockscope><d:exclusive/></d:lockscope><d:locktype><d:write/></d:locktype>"
                 "<d:owner>Kavela</d:owner></d:lockinfo>",
         .headers = {{"Depth", "0"},
                     {"Timeout", "Second-" + QByteArray::number(qint64{seconds})},
                     {"Content-Type", "application/xml; charset=utf-8"}}});
    if (answer.status() == 401 || answer.status() == 423)
        throw ShareError(refusalOf(answer), answer.status() == 401);
    if (answer.isDone())
        m_token = answer.head.lockToken;
}

HeldLock::~HeldLock() {
    if (m_token.empty())
        return;
    fetch::WebRules rules = rulesOf(m_request);
    rules.pace.silenceMilliseconds = SilenceOfUnlockMilliseconds;
    WebFolder web(std::move(rules), {});
    // A lock that is not given back ends by itself.
    (void)web.askOnce({.address = m_file,
                       .verb = "UNLOCK",
                       .headers = {{"Lock-Token", QByteArray::fromStdString(m_token)}}});
}

} // namespace kavela::share
