#pragma once

#include "fetch/web_exchange.h"
#include "update/manifest.h"
#include "update/version.h"

#include <QCryptographicHash>
#include <QFile>
#include <QNetworkAccessManager>
#include <QObject>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace kavela::update {

/// Brings one file of a version into a folder. It has its name only once size and SHA-256 are those
/// of the manifest; until then it is a hidden part beside it, which is deleted whenever this ends
/// without it. A connection that breaks is taken up again where it broke: whatever comes, the hash
/// decides. Nothing is ever run.
class UpdateDownload : public QObject {
    Q_OBJECT

public:
    UpdateDownload(const Version& own, const fetch::WebPace& pace, QObject* parent);
    ~UpdateDownload() override;

    /// `file` is of a manifest that was read. A file of the same name that stands in the folder is
    /// left alone: the new one gets a number behind its name.
    void start(const updatefile001& file, const std::filesystem::path& folder);
    /// Nothing is told after it, and nothing left.
    void stop();

signals:
    /// Bytes.
    void progressed(qint64 held, qint64 size);
    void finished(const QString& path);
    /// A sentence.
    void failed(const QString& reason);

private:
    void tryNow();
    void takeHead(const fetch::AnswerHead& head);
    [[nodiscard]] bool mayGoOn(const fetch::AnswerHead& head);
    void takeBytes(const QByteArray& bytes);
    void takeEnd(const fetch::WebEnd& end);
    void finishFile();
    void retry(const std::string& reason, std::optional<std::chrono::seconds> retryAfter = {});
    void fail(const std::string& reason);
    void endExchange();
    void dropPart();

    QNetworkAccessManager m_network;
    Version m_own;
    fetch::WebRules m_rules;
    updatefile001 m_wanted;
    std::filesystem::path m_folder;
    QFile m_part;
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    fetch::WebExchange* m_exchange = nullptr;
    std::int64_t m_held = 0; ///< bytes, all of them in the hash
    int m_tries = 0;
    bool m_isRunning = false;
};

} // namespace kavela::update
