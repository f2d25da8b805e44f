#include "desktop/sessions/session_marks.h"

#include "desktop/charts/sensor_series.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_document.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double SameMark = 1e-6; // s: what is closer is the same moment

} // namespace

SessionMarks::SessionMarks(SessionDocument& document, Replay& replay, QObject* parent)
    : QObject(parent), m_document(document), m_replay(replay) {}

const std::vector<double>& SessionMarks::marks() const {
    return m_document.value().marks;
}

void SessionMarks::set(const QString& what, std::vector<double> marks) {
    m_document.edit(what, [&](EditedSession& session) { setMarks(session, std::move(marks)); });
    const std::size_t count = m_document.value().marks.size();
    emit told(count < 2 ? tr("%1 marks: two make a segment").arg(count)
                        : tr("%1 segments").arg(count - 1));
}

void SessionMarks::mark() {
    if (!m_document.hasSession() || hasMarkAt(m_replay.moment()))
        return;
    std::vector<double> more = marks();
    more.push_back(m_replay.moment());
    set(tr("mark"), std::move(more));
}

bool SessionMarks::hasMarkAt(double moment) const {
    return std::ranges::any_of(
        marks(), [moment](double mark) { return std::abs(mark - moment) < SameMark; });
}

std::optional<std::size_t> SessionMarks::nearest() const {
    const auto found = std::ranges::min_element(
        marks(), {}, [this](double mark) { return std::abs(mark - m_replay.moment()); });
    if (found == marks().end())
        return std::nullopt;
    return static_cast<std::size_t>(found - marks().begin());
}

void SessionMarks::removeNearest() {
    const auto place = nearest();
    if (!place)
        return;
    std::vector<double> fewer = marks();
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(*place));
    set(tr("removal of a mark"), std::move(fewer));
}

void SessionMarks::removeAll() {
    if (!marks().empty())
        set(tr("removal of all marks"), {});
}

void SessionMarks::moveNearest(double seconds) {
    const auto place = nearest();
    if (!place)
        return;
    std::vector<double> changed = marks();
    const double moved = std::clamp(changed[*place] + seconds, m_replay.from(), m_replay.to());
    if (hasMarkAt(moved)) {
        emit told(tr("There is a mark already"));
        return;
    }
    changed[*place] = moved;
    set(tr("move of a mark"), std::move(changed));
    m_replay.setMoment(moved);
    emit told(tr("Mark at %1").arg(momentText(moved - m_replay.from(), 1)));
}

void SessionMarks::moveNearestHere() {
    if (const auto place = nearest())
        moveNearest(m_replay.moment() - marks()[*place]);
}

void SessionMarks::goTo(int steps) {
    const double here = m_replay.moment();
    if (steps > 0) {
        const auto next = std::ranges::upper_bound(marks(), here + SameMark);
        if (next != marks().end())
            m_replay.setMoment(*next);
    } else {
        const auto next = std::ranges::lower_bound(marks(), here - SameMark);
        if (next != marks().begin())
            m_replay.setMoment(*std::prev(next));
    }
}

} // namespace kavela::desktop
