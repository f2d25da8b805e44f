#include "desktop/planning/online/online_saving.h"

#include <QCryptographicHash>

namespace kavela::desktop {

namespace {

constexpr int MostTries = 3; ///< against a server that refuses what it said itself

} // namespace

OnlineState OnlineState::of(const QByteArray& mark, const QByteArray& content) {
    return {mark, QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex()};
}

OnlineSaving::OnlineSaving(OnlineStore& store, OnlineAddress address, Files files, OnlineState seen,
                           QObject* parent)
    : QObject(parent),
      m_store(store),
      m_address(std::move(address)),
      m_files(std::move(files)),
      m_seen(std::move(seen)) {}

void OnlineSaving::start() {
    m_store.look(m_address, m_files.planning.name, [this](const OnlineAnswer& there) {
        if (!there.isThere)
            put({.mark = {}, .isNew = true});
        else if (there.reason.isEmpty() && !there.mark.isEmpty() && there.mark == m_seen.mark)
            put({.mark = there.mark});
        else // also a server that tells nothing of a file but the file itself
            m_store.get(m_address, m_files.planning.name,
                        [this](const OnlineAnswer& read) { compare(read); });
    });
}

void OnlineSaving::compare(const OnlineAnswer& there) {
    if (!there.reason.isEmpty()) {
        fail(there.reason);
        return;
    }
    m_shown = {.mark = there.mark, .isNew = !there.isThere};
    const OnlineState state = OnlineState::of(there.mark, there.content);
    if (there.isThere && there.content == m_files.planning.content)
        goOnWithAccess(state);
    else if (!there.isThere || state.digest == m_seen.digest)
        put(m_shown);
    else
        emit changed(there.content);
}

void OnlineSaving::replace() {
    put(m_shown);
}

void OnlineSaving::put(const OnlineCondition& condition) {
    m_store.put(m_address, m_files.planning, condition, [this](const OnlineAnswer& answer) {
        if (answer.isRefusedByCondition && ++m_tries < MostTries) {
            m_seen = {}; // somebody was faster
            m_store.get(m_address, m_files.planning.name,
                        [this](const OnlineAnswer& there) { compare(there); });
        } else if (answer.isRefusedByCondition) {
            fail(tr("The server changes the planning all the time."));
        } else if (!answer.isThere) {
            fail(tr("The server has no such folder."));
        } else if (!answer.reason.isEmpty()) {
            fail(answer.reason);
        } else {
            goOnWithAccess(OnlineState::of(answer.mark, m_files.planning.content));
        }
    });
}

void OnlineSaving::goOnWithAccess(const OnlineState& state) {
    if (!m_files.isAccessNew) {
        putAccess(state);
        return;
    }
    // Asked for as well as made a condition: not every server heeds conditions.
    m_store.look(m_address, m_files.access.name, [this, state](const OnlineAnswer& there) {
        there.isThere ? finish(state) : putAccess(state);
    });
}

void OnlineSaving::putAccess(const OnlineState& state) {
    m_store.put(m_address, m_files.access, {.mark = {}, .isNew = m_files.isAccessNew},
                [this, state](const OnlineAnswer& answer) {
                    answer.reason.isEmpty() ? finish(state) : fail(answer.reason);
                });
}

void OnlineSaving::finish(const OnlineState& state) {
    emit saved(state);
    deleteLater();
}

void OnlineSaving::fail(const QString& reason) {
    emit failed(reason);
    deleteLater();
}

} // namespace kavela::desktop
