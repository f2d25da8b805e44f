#pragma once

#include "desktop/planning/online/online_saving.h"

#include <map>

namespace kavela::desktop {

class Workspace;

/// Which states of shared plannings the planning in a window goes back to. They are remembered with
/// its file, so that a planning that goes on tomorrow is saved online without a question when
/// nobody touched it meanwhile.
class OnlineStates {
public:
    explicit OnlineStates(Workspace& workspace) : m_workspace(workspace) {}

    /// Another planning is in the window: that of a file, or a new one for an empty path.
    void begin(const QString& path);
    /// A state without a digest for a planning that was never seen.
    [[nodiscard]] OnlineState at(const QUrl& planning) const;
    void set(const QUrl& planning, const OnlineState& state);
    /// Remembers the states with the file.
    void keepWith(const QString& path) const;

private:
    Workspace& m_workspace;
    std::map<QUrl, OnlineState> m_states;
};

} // namespace kavela::desktop
