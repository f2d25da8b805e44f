#pragma once

#include "video/frame_request.h"

#include <QString>

#include <deque>
#include <functional>
#include <vector>

namespace kavela::desktop {

/// Presses of keys that mean frames. One that comes while the film is still being read waits until
/// its frames are known, whatever was asked of the film after it; the presses act in their order.
class PressQueue {
public:
    /// What a press means: a frame of each camera.
    using Meant = std::vector<FrameRequest>;
    using Stamps = std::vector<CMTime>;
    using Act = std::function<void(const Stamps&)>;
    using Refuse = std::function<void(const QString& why)>;
    /// The stamps of what is meant; empty as long as they are not known.
    using Resolve = std::function<Stamps(const Meant&)>;

    explicit PressQueue(Resolve resolve) : m_resolve(std::move(resolve)) {}

    void add(Meant meant, Act act, Refuse refuse);
    /// Lets the presses act whose frames are known now.
    void run();
    /// Gives up those that wait.
    void refuseAll(const QString& why);
    /// Forgets them.
    void clear() { m_presses.clear(); }
    /// Whether any waits that can act now.
    [[nodiscard]] bool isWaiting() const { return !m_presses.empty() && !m_isRunning; }

private:
    struct Press {
        Meant meant;
        Act act;
        Refuse refuse;
    };

    Resolve m_resolve;
    std::deque<Press> m_presses;
    bool m_isRunning = false; ///< a press acts now, and may ask something of the coach
};

} // namespace kavela::desktop
