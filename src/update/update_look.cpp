#include "update/update_look.h"

#include "common/error.h"
#include "common/text.h"

#include <array>
#include <string_view>
#include <utility>

namespace kavela::update {

namespace {

constexpr std::size_t MostSignatureBytes = 1'000;

fetch::Address signatureAddress(fetch::Address manifest) {
    manifest.path += ".sig";
    return manifest;
}

/// Why something that was asked for did not come.
struct AskedTexts {
    std::string_view tooLong;
    std::string_view notThere;
    std::string_view elsewhere; ///< with a place for the server
    std::string_view notGiven;
};

/// In the order of `Asked`.
constexpr std::array<AskedTexts, 3> TextsOfAsked{{
    {.tooLong = KAVELA_TEXT("The list of versions is longer than it may be."),
     .notThere = KAVELA_TEXT("The list of versions is not on the server."),
     .elsewhere =
         KAVELA_TEXT("The list of versions lies on another server, {}, which is not asked."),
     .notGiven = KAVELA_TEXT("The list of versions is not given out by the server.")},
    {.tooLong = KAVELA_TEXT("The signature of the list of versions is longer than it may be."),
     .notThere = KAVELA_TEXT("The signature of the list of versions is not on the server."),
     .elsewhere = KAVELA_TEXT("The signature of the list of versions lies on another server, {}, "
                              "which is not asked."),
     .notGiven = KAVELA_TEXT("The signature of the list of versions is not given out by the "
                             "server.")},
    {.tooLong = KAVELA_TEXT("The file is longer than it may be."),
     .notThere = KAVELA_TEXT("The file is not on the server."),
     .elsewhere = KAVELA_TEXT("The file lies on another server, {}, which is not asked."),
     .notGiven = KAVELA_TEXT("The file is not given out by the server.")},
}};

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

std::string updateReason(Asked what, const fetch::SmallAnswer& answer) {
    const AskedTexts& texts = TextsOfAsked.at(static_cast<std::size_t>(what));
    if (answer.isTooLong)
        return std::string(translated(texts.tooLong));
    if (answer.isNotThere)
        return std::string(translated(texts.notThere));
    if (!answer.otherSite.empty())
        return sayMarked(texts.elsewhere, answer.otherSite);
    if (answer.wantsLogin)
        return std::string(translated(texts.notGiven));
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
        give({.reason = updateReason(Asked::List, answer),
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
        give({.reason = updateReason(Asked::Signature, answer),
              .isRefused = !answer.otherSite.empty()});
        return;
    }
    if (isMissing) {
        give({.reason = say("The list of versions is not signed. It is not used."),
              .isRefused = true});
        return;
    }
    if (!isSignedBy(m_source.key, m_manifest, answer.body)) {
        give({.reason = say("The list of versions is not signed by who makes Kavela: it is "
                            "damaged, or somebody else's. It is not used."),
              .isRefused = true});
        return;
    }
    try {
        give({.manifest = readManifest(m_manifest)});
    } catch (const DecodeError& error) {
        give({.reason = say("The list of versions is damaged and not used: {}.", error.what()),
              .isRefused = true});
    }
}

void UpdateLook::give(LookResult result) {
    const Looked looked = std::exchange(m_looked, nullptr);
    looked(result);
}

} // namespace kavela::update
