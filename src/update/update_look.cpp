#include "update/update_look.h"

#include "common/error.h"

#include <utility>

namespace kavela::update {

namespace {

constexpr std::size_t MostSignatureBytes = 1'000;

fetch::Address signatureAddress(fetch::Address manifest) {
    manifest.path += ".sig";
    return manifest;
}

} // namespace

std::optional<UpdateSource> builtInUpdateSource() {
    const auto address = safeAddress(KAVELA_UPDATE_ADDRESS);
    const auto key = parsedPublicKey(KAVELA_UPDATE_KEY);
    if (!address || !key)
        return std::nullopt;
    return UpdateSource{*address, *key};
}

std::vector<std::pair<QByteArray, QByteArray>> updateHeaders(const Version& own) {
    // Both would else be told by the library, the language of the computer among them.
    return {{"User-Agent", QByteArray::fromStdString("Kavela/" + own.text())},
            {"Accept-Language", "*"}};
}

std::string updateReason(const std::string& what, const fetch::SmallAnswer& answer) {
    if (answer.isTooLong)
        return what + " is longer than it may be.";
    if (answer.isNotThere)
        return what + " is not on the server.";
    if (!answer.otherSite.empty())
        return what + " lies on another server, " + answer.otherSite + ", which is not asked.";
    if (answer.wantsLogin)
        return what + " is not given out by the server.";
    return answer.reason;
}

UpdateLook::UpdateLook(UpdateSource source, const Version& own, const fetch::WebPace& pace,
                       QObject* parent)
    : QObject(parent),
      m_source(std::move(source)),
      m_own(own),
      m_rules{.source = m_source.manifest, .sites = {}, .pace = pace} {}

/// The question goes before the network that it is asked over.
UpdateLook::~UpdateLook() {
    delete m_fetch;
}

void UpdateLook::start(Looked looked) {
    m_looked = std::move(looked);
    ask(m_source.manifest, MostManifestBytes,
        [this](const fetch::SmallAnswer& answer) { takeManifest(answer); });
}

void UpdateLook::ask(const fetch::Address& address, std::size_t mostBytes,
                     fetch::SmallFetch::Answered answered) {
    if (m_fetch)
        m_fetch->deleteLater(); // it may be the one that calls
    m_fetch = new fetch::SmallFetch(m_network, m_rules, mostBytes, this);
    m_fetch->start({.address = address, .headers = updateHeaders(m_own)}, std::move(answered));
}

void UpdateLook::takeManifest(const fetch::SmallAnswer& answer) {
    if (!answer.isThere) {
        give({.reason = updateReason("The list of versions", answer),
              .isRefused = answer.isTooLong || !answer.otherSite.empty()});
        return;
    }
    m_manifest = answer.body;
    ask(signatureAddress(m_source.manifest), MostSignatureBytes,
        [this](const fetch::SmallAnswer& signature) { takeSignature(signature); });
}

/// Nothing is read of a manifest before it is known whose it is.
void UpdateLook::takeSignature(const fetch::SmallAnswer& answer) {
    const bool isMissing = answer.isNotThere || answer.isTooLong;
    if (!answer.isThere && !isMissing) {
        give({.reason = updateReason("The signature of the list of versions", answer),
              .isRefused = !answer.otherSite.empty()});
        return;
    }
    if (isMissing) {
        give({.reason = "The list of versions is not signed. It is not used.", .isRefused = true});
        return;
    }
    if (!isSignedBy(m_source.key, m_manifest, answer.body)) {
        give({.reason = "The list of versions is not signed by who makes Kavela: it is damaged, or "
                        "somebody else's. It is not used.",
              .isRefused = true});
        return;
    }
    try {
        give({.manifest = readManifest(m_manifest)});
    } catch (const DecodeError& error) {
        give({.reason = std::string("The list of versions is damaged and not used: ") +
                        error.what() + '.',
              .isRefused = true});
    }
}

void UpdateLook::give(LookResult result) {
    const Looked looked = std::exchange(m_looked, nullptr);
    looked(result);
}

} // namespace kavela::update
