#include "desktop/film/press_queue.h"

#include <QScopedValueRollback>

#include <utility>

namespace kavela::desktop {

void PressQueue::add(Meant meant, Act act, Refuse refuse) {
    m_presses.push_back({std::move(meant), std::move(act), std::move(refuse)});
    run();
}

void PressQueue::run() {
    if (m_isRunning)
        return;
    const QScopedValueRollback<bool> running(m_isRunning, true);
    while (!m_presses.empty()) {
        const Stamps stamps = m_resolve(m_presses.front().meant);
        if (stamps.empty())
            break;
        const Press press = std::move(m_presses.front());
        m_presses.pop_front();
        press.act(stamps);
    }
}

void PressQueue::refuseAll(const QString& why) {
    for (const Press& press : std::exchange(m_presses, {}))
        press.refuse(why);
}

} // namespace kavela::desktop
