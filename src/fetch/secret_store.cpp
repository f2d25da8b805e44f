#include "fetch/secret_store.h"

#include <qt6keychain/keychain.h>

namespace kavela::fetch {

namespace {

constexpr const char* StoreName = "Kavela films";

QString secretKey(const Address& address) {
    return QString::fromStdString(address.scheme + "://" + address.site());
}

/// A user name has no line break.
std::optional<WebLogin> loginIn(const QString& text) {
    const qsizetype end = text.indexOf('\n');
    if (end < 0)
        return std::nullopt;
    return WebLogin{text.left(end), text.mid(end + 1)};
}

} // namespace

void SecretStore::find(const Address& address, const Found& found) {
    auto* const job = new QKeychain::ReadPasswordJob(StoreName, this);
    job->setKey(secretKey(address));
    job->setInsecureFallback(false);
    connect(job, &QKeychain::Job::finished, this, [job, found] {
        found(job->error() == QKeychain::NoError ? loginIn(job->textData()) : std::nullopt);
    });
    job->start();
}

void SecretStore::keep(const Address& address, const WebLogin& login, const Kept& kept) {
    auto* const job = new QKeychain::WritePasswordJob(StoreName, this);
    job->setKey(secretKey(address));
    job->setInsecureFallback(false);
    job->setTextData(login.user + '\n' + login.password);
    connect(job, &QKeychain::Job::finished, this,
            [job, kept] { kept(job->error() == QKeychain::NoError); });
    job->start();
}

void SecretStore::forget(const Address& address) {
    auto* const job = new QKeychain::DeletePasswordJob(StoreName, this);
    job->setKey(secretKey(address));
    job->setInsecureFallback(false);
    job->start();
}

} // namespace kavela::fetch
