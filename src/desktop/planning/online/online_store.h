#pragma once

#include "share/dav_client.h"

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

/// What a server answered about a file.
struct OnlineAnswer {
    QString reason; ///< why it failed; empty on success, and where there is no such file
    bool isThere = true;
    bool isRefusedByCondition = false; ///< the file is not the one that was meant to be replaced
    QByteArray mark;                   ///< the server's for this state of the file; empty for none
    QByteArray content;
};

/// Which state of a file a put may replace.
struct OnlineCondition {
    QByteArray mark;    ///< this one; empty for any, where the server has no marks
    bool isNew = false; ///< none: there must be no such file yet
};

/// Files of shared plannings on such a server, by the client that shares folders. Everything is
/// asynchronous; an answer that does not come within half a minute is a failure.
class OnlineStore : public QObject {
    Q_OBJECT

public:
    explicit OnlineStore(QObject* parent = nullptr) : QObject(parent) {}

    struct Upload {
        QString name; ///< within the folder
        QByteArray content;
    };
    using Answered = std::function<void(const OnlineAnswer& answer)>;

    /// Whether there is a file and in which state, without its content.
    void look(const OnlineAddress& address, const QString& name, const Answered& answered);
    void get(const OnlineAddress& address, const QString& name, const Answered& answered);
    void put(const OnlineAddress& address, const Upload& file, const OnlineCondition& condition,
             const Answered& answered);

private:
    /// Sends nothing to an address that has a fault.
    void send(const OnlineAddress& address, fetch::WebAsk ask, const Answered& answered);

    share::DavClient m_client;
};

} // namespace kavela::desktop
