#pragma once

#include "fetch/small_fetch.h"
#include "update/manifest.h"
#include "update/update_source.h"
#include "update/version.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kavela::update {

/// The headers of every question for a version: that of the program, and nothing of the computer or
/// the coach.
[[nodiscard]] std::vector<std::pair<QByteArray, QByteArray>> updateHeaders(const Version& own);

/// What looking brought.
struct LookResult {
    std::optional<updatemanifest001> manifest = std::nullopt; ///< signed, and as it should be
    std::string reason = {};                                  ///< without one: a sentence
    /// The server has a manifest that must not be used, which the coach is told also where he did
    /// not ask.
    bool isRefused = false;
};

/// Asks for the manifest and its signature, and believes it where they belong together. Nothing is
/// followed to another server.
class UpdateLook : public QObject {
    Q_OBJECT

public:
    UpdateLook(UpdateSource source, const Version& own, const fetch::WebPace& pace,
               QObject* parent);
    ~UpdateLook() override;

    using Looked = std::function<void(const LookResult& result)>;
    /// `looked` is called once, never from within this, and not at all once this look is deleted.
    void start(Looked looked);

private:
    void ask(const fetch::Address& address, std::size_t mostBytes,
             fetch::SmallFetch::Answered answered);
    void takeManifest(const fetch::SmallAnswer& answer);
    void takeSignature(const fetch::SmallAnswer& answer);
    void give(LookResult result);

    QNetworkAccessManager m_network;
    UpdateSource m_source;
    Version m_own;
    fetch::WebRules m_rules;
    fetch::SmallFetch* m_fetch = nullptr;
    std::string m_manifest; ///< as it came
    Looked m_looked;
};

/// What a server of versions is asked for.
enum class Asked : std::uint8_t { List, Signature, File };

/// Why a short question brought nothing, for whom the words of fetching films do not fit.
[[nodiscard]] std::string updateReason(Asked what, const fetch::SmallAnswer& answer);

} // namespace kavela::update
