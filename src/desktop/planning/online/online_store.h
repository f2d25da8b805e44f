#pragma once

#include <QNetworkAccessManager>
#include <QUrl>

#include <functional>

namespace kavela::desktop {

/// Where shared plannings lie: a folder of any web server that takes files by PUT and gives them by
/// GET (as WebDAV servers do), under a user name and a password.
struct OnlineAddress {
    QUrl folder; ///< https, or http on this computer itself
    QString user;
    QString password; ///< never stored and never logged

    /// Why the address cannot be used; empty when it can.
    [[nodiscard]] QString fault() const;
};

/// Files of shared plannings on such a server. Everything is asynchronous; an answer that does not
/// come within half a minute is a failure.
class OnlineStore : public QObject {
    Q_OBJECT

public:
    explicit OnlineStore(QObject* parent = nullptr);

    struct Upload {
        QString name; ///< within the folder
        QByteArray content;
    };
    /// `reason` is empty on success.
    using Done = std::function<void(const QString& reason)>;
    using Fetched = std::function<void(const QByteArray& content, const QString& reason)>;

    /// Puts the files there one after the other, in this order, and stops at the first failure.
    void put(const OnlineAddress& address, QList<Upload> files, const Done& done);
    void get(const OnlineAddress& address, const QString& name, const Fetched& fetched);

private:
    [[nodiscard]] static QNetworkRequest request(const OnlineAddress& address, const QString& name);

    QNetworkAccessManager m_network;
};

} // namespace kavela::desktop
