#include "desktop/planning/online/online_store.h"

#include "fetch/address.h"
#include "share/web_place.h"

#include <utility>

namespace kavela::desktop {

namespace {

constexpr std::size_t LargestFile = 256'000'000; ///< bytes

/// What went wrong, without the address, which may hold what is nobody's business.
QString reasonOf(const share::DavAnswer& answer) {
    if (answer.isDone())
        return {};
    // Who may not read a planning has mistyped the name, more often than not.
    if (answer.reason.empty() && (answer.status() == 401 || answer.status() == 403))
        return OnlineStore::tr("The server does not accept the user name or the password.");
    return QString::fromStdString(share::refusalOf(answer));
}

OnlineAnswer answerIn(const share::DavAnswer& told) {
    OnlineAnswer answer;
    answer.isThere = !told.isMissing();
    answer.isRefusedByCondition = told.reason.empty() && told.status() == 412;
    if (!answer.isThere || answer.isRefusedByCondition)
        return answer;
    answer.reason = reasonOf(told);
    answer.mark = QByteArray::fromStdString(told.head.etag);
    answer.content = QByteArray::fromStdString(told.body);
    return answer;
}

fetch::Address fileOnServer(const OnlineAddress& address, const QString& name) {
    const fetch::Address folder =
        share::folderAt(address.folder.toEncoded(QUrl::RemoveUserInfo).toStdString());
    return share::fileAt(folder, name.toStdString());
}

} // namespace

QString OnlineAddress::fault() const {
    if (!folder.isValid() || folder.host().isEmpty())
        return OnlineStore::tr("The address is none. It begins with https://.");
    const std::string text = folder.toEncoded(QUrl::RemoveUserInfo).toStdString();
    if (!share::faultOfPlace(text))
        return {};
    return OnlineStore::tr("Only https:// keeps the password and the plan from other readers.");
}

void OnlineStore::send(const OnlineAddress& address, fetch::WebAsk ask, const Answered& answered) {
    if (const QString fault = address.fault(); !fault.isEmpty()) {
        answered({.reason = fault, .mark = {}, .content = {}});
        return;
    }
    fetch::WebRules rules{.source = ask.address, .sites = {}};
    if (!address.user.isEmpty())
        rules.login = fetch::WebLogin{address.user, address.password};
    m_client.ask(rules, std::move(ask), LargestFile,
                 [answered](const share::DavAnswer& answer) { answered(answerIn(answer)); });
}

void OnlineStore::look(const OnlineAddress& address, const QString& name,
                       const Answered& answered) {
    send(address, {.address = fileOnServer(address, name), .verb = "HEAD"}, answered);
}

void OnlineStore::get(const OnlineAddress& address, const QString& name, const Answered& answered) {
    send(address, {.address = fileOnServer(address, name)}, answered);
}

void OnlineStore::put(const OnlineAddress& address, const Upload& file,
                      const OnlineCondition& condition, const Answered& answered) {
    fetch::WebAsk ask{.address = fileOnServer(address, file.name),
                      .verb = "PUT",
                      .body = file.content,
                      .headers = {{"Content-Type", "application/json"}}};
    if (condition.isNew)
        ask.headers.emplace_back("If-None-Match", "*");
    else if (!condition.mark.isEmpty() && !condition.mark.startsWith("W/")) // a weak one fits none
        ask.headers.emplace_back("If-Match", condition.mark);
    send(address, std::move(ask), answered);
}

} // namespace kavela::desktop
