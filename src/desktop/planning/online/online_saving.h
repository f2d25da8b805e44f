#pragma once

#include "desktop/planning/online/online_store.h"

namespace kavela::desktop {

/// A state of a shared planning, as it was read from its server or put there.
struct OnlineState {
    QByteArray mark;   ///< the server's; empty for none
    QByteArray digest; ///< of the content; empty for a planning that was never seen

    [[nodiscard]] static OnlineState of(const QByteArray& mark, const QByteArray& content);
};

/// Saves a planning and its access record on a server, and never over what somebody else put there
/// meanwhile without being told to. The state on the server is compared with the one seen last: by
/// the server's mark where it has marks, or else by the content, read for that. It is deleted when
/// it is done.
class OnlineSaving : public QObject {
    Q_OBJECT

public:
    struct Files {
        OnlineStore::Upload planning;
        OnlineStore::Upload access;
        bool isAccessNew = false; ///< made for this save: one that is there stays
    };

    OnlineSaving(OnlineStore& store, OnlineAddress address, Files files, OnlineState seen,
                 QObject* parent);

    void start();
    /// Replaces what changed() told of; what came after that is told again.
    void replace();

signals:
    /// Something else lies there than was seen last; nothing was put.
    void changed(const QByteArray& content);
    /// The planning lies there in this state.
    void saved(const kavela::desktop::OnlineState& state);
    void failed(const QString& reason);

private:
    void compare(const OnlineAnswer& there);
    void put(const OnlineCondition& condition);
    void goOnWithAccess(const OnlineState& state);
    void putAccess(const OnlineState& state);
    void finish(const OnlineState& state);
    void fail(const QString& reason);

    OnlineStore& m_store;
    OnlineAddress m_address;
    Files m_files;
    OnlineState m_seen;
    OnlineCondition m_shown; ///< what may be replaced once the coach agreed
    int m_tries = 0;
};

} // namespace kavela::desktop
