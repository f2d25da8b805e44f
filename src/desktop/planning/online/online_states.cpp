#include "desktop/planning/online/online_states.h"

#include "desktop/shell/workspace.h"

namespace kavela::desktop {

namespace {

constexpr const char* StatesKey = "onlinePlanningStates";
constexpr qsizetype Fields = 4; ///< of an entry: file, address, mark, digest
constexpr qsizetype MostEntries = 50;

} // namespace

void OnlineStates::begin(const QString& path) {
    m_states.clear();
    const QStringList known = m_workspace.remembered(StatesKey);
    for (qsizetype at = 0; at + Fields <= known.size() && !path.isEmpty(); at += Fields)
        if (known[at] == path)
            m_states[QUrl(known[at + 1])] = {known[at + 2].toUtf8(), known[at + 3].toUtf8()};
}

OnlineState OnlineStates::at(const QUrl& planning) const {
    const auto found = m_states.find(planning);
    return found == m_states.end() ? OnlineState() : found->second;
}

void OnlineStates::set(const QUrl& planning, const OnlineState& state) {
    m_states[planning] = state;
}

void OnlineStates::keepWith(const QString& path) const {
    if (m_states.empty())
        return;
    QStringList kept;
    for (const auto& [planning, state] : m_states)
        kept << path << planning.toString() << QString::fromUtf8(state.mark)
             << QString::fromUtf8(state.digest);
    const QStringList known = m_workspace.remembered(StatesKey);
    for (qsizetype at = 0; at + Fields <= known.size() && kept.size() < MostEntries * Fields;
         at += Fields)
        if (known[at] != path)
            kept += known.mid(at, Fields);
    m_workspace.remember(StatesKey, kept);
}

} // namespace kavela::desktop
