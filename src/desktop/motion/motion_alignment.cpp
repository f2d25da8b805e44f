#include "desktop/motion/motion_alignment.h"

#include "desktop/motion/motion_charts.h"
#include "desktop/motion/motion_recordings.h"
#include "desktop/motion/recording_list.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

MotionAlignment::MotionAlignment(MotionRecordings& recordings, const RecordingList& list,
                                 MotionCharts& charts, QObject* parent)
    : QObject(parent), m_recordings(recordings), m_list(list), m_charts(charts) {}

void MotionAlignment::alignStarts() {
    m_recordings.setShifts(std::vector<double>(m_recordings.all().size(), 0));
    emit told(tr("Every recording begins at 0. Ctrl+Z brings the alignment before back."));
}

void MotionAlignment::alignByClock() {
    const auto& all = m_recordings.all();
    std::vector<double> shifts;
    std::optional<double> first;
    QStringList unknown;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto date = m_recordings.dateOfStart(i);
        if (date && !first)
            first = date;
        if (!date)
            unknown << all[i]->label;
        shifts.push_back(date ? *date - *first : all[i]->shift);
    }
    m_recordings.setShifts(shifts);
    emit told(unknown.isEmpty()
                  ? tr("Every recording stands at its date. Ctrl+Z brings the alignment "
                       "before back.")
                  : tr("The date is not known of %1").arg(unknown.join(", ")));
}

void MotionAlignment::alignHere() {
    const auto index = m_list.current();
    if (!index || !m_charts.pin() || !m_charts.cursor()) {
        emit told(
            tr("Click the moment where it should be, choose a recording, point at its moment and "
               "press A"));
        return;
    }
    shiftCurrent(*m_charts.pin() - *m_charts.cursor());
}

void MotionAlignment::shiftCurrent(double seconds) {
    if (const auto index = m_list.current())
        m_recordings.setShift(*index, m_recordings.all()[*index]->shift + seconds);
}

void MotionAlignment::goToStroke(int step) {
    const auto index = m_list.current();
    if (!index || !m_recordings.all()[*index]->analysis)
        return;
    const MotionRecording& recording = *m_recordings.all()[*index];
    const auto& strokes = recording.analysis->strokes;
    const double offset = recording.shift - recording.facts.first;
    const auto [from, to] = m_charts.view();
    constexpr double Nearly = 1e-6; // s: the stroke where the cursor stands is not the next one
    const double now = m_charts.cursor().value_or(from) - offset;
    const auto after = std::ranges::upper_bound(strokes, now + Nearly, {}, &Stroke::catchTime);
    const auto before = std::ranges::lower_bound(strokes, now - Nearly, {}, &Stroke::catchTime);
    if (step > 0 ? after == strokes.end() : before == strokes.begin())
        return;
    const double time = (step > 0 ? after : std::prev(before))->catchTime + offset;
    if (time < from || time > to)
        m_charts.setView(time - (to - from) / 2, time + (to - from) / 2);
    m_charts.setCursor(time);
}

} // namespace kavela::desktop
