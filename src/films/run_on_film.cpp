#include "films/run_on_film.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace kavela::films {

namespace {

// What a leg takes, in seconds, where nobody timed it.
constexpr double UsualLeg = 3.1;
constexpr double UsualUpstreamLeg = 6.1;
constexpr double UsualLastLeg = 4.1;

constexpr Frames FramesAfterFinish = 90;
constexpr Frames AfterGivingUp = 220;

Frames frameOf(const CMTime& stamp) {
    const std::int64_t ticks = stamp.timescale / sample::FramesPerSecond;
    if (ticks == 0 || stamp.timescale % sample::FramesPerSecond != 0 || stamp.value % ticks != 0)
        throw std::invalid_argument("a mark lies between the frames of the film");
    return stamp.value / ticks;
}

/// Gathers what a record tells, then fills in the rest. Places on the course are counted from the
/// start, 0, over the gates to the finish.
class Reader {
public:
    Reader(const infodata031& info, const athletedata031& run, std::size_t camera)
        : m_info(info), m_run(run), m_camera(camera), m_at(places()) {}

    RunOnFilm read() {
        readMarks();
        readNotes();
        readStart();
        keepOrder();
        const std::size_t last = lastSeen();
        const bool gaveUp = m_run.giveups > 0 && last < finishPlace();
        fillBetween();
        if (!gaveUp)
            fillAfter(last);
        return result(last, gaveUp);
    }

private:
    [[nodiscard]] std::size_t places() const { return static_cast<std::size_t>(m_info.gates) + 2; }
    [[nodiscard]] std::size_t finishPlace() const { return places() - 1; }

    /// The place where a section ends: its last gate, or the finish line.
    [[nodiscard]] std::size_t endOf(std::size_t section) const {
        return section + 1 == m_info.definedsections.size()
                   ? finishPlace()
                   : static_cast<std::size_t>(m_info.definedsections[section].back());
    }

    void readMarks() {
        const auto& stamps = m_run.sectioninfo.cmtimes;
        m_film.marks.resize(m_info.definedsections.size());
        for (std::size_t k = 0; k < std::min(stamps.size(), m_film.marks.size()); ++k) {
            if (stamps[k].size() <= m_camera)
                continue;
            const CMTime& stamp = stamps[k][m_camera];
            m_film.timescale = stamp.timescale;
            m_film.marks[k] = frameOf(stamp);
            m_at[endOf(k)] = m_film.marks[k];
            m_lag = frameOf(stamps[k].front()) - *m_film.marks[k];
        }
        if (lastSeen() == 0)
            throw std::invalid_argument("the run has no mark on this film");
    }

    /// Notes carry stamps of the first camera.
    [[nodiscard]] Frames noted(const CMTime& stamp) const { return frameOf(stamp) - m_lag; }

    void readNotes() {
        for (const upstreamdata025& upstream : m_run.upstreams)
            if (upstream.num > 0 && upstream.num <= m_info.gates && upstream.cmtimes.size() == 3)
                m_at[static_cast<std::size_t>(upstream.num)] = noted(upstream.cmtimes[1]);
        if (m_run.sectioninfo.sprinttime > 0 && m_at.back())
            m_at[finishPlace() - 1] = *m_at.back() - sample::framesOf(m_run.sectioninfo.sprinttime);
        std::size_t before = 0;
        for (std::size_t k = 0; k < m_film.marks.size(); ++k) {
            readMicrosplits(before, endOf(k));
            before = endOf(k);
        }
    }

    /// They do not say at which gate they are: only where there is one for each gate of a section
    /// is that known. A boat that gave up left the last ones out.
    void readMicrosplits(std::size_t from, std::size_t to) {
        std::vector<Frames> inside;
        for (const microsplitsdata025& split : m_run.microsplits) {
            const Frames frame = noted(split.cmtime);
            if ((from == 0 || (m_at[from] && frame > *m_at[from])) &&
                (!m_at[to] || frame < *m_at[to]))
                inside.push_back(frame);
        }
        const std::size_t gates = to - from - 1 - (to == finishPlace() ? 1 : 0);
        if (inside.size() > gates || (inside.size() < gates && m_at[to]))
            return;
        for (std::size_t i = 0; i < inside.size(); ++i)
            m_at[from + 1 + i] = inside[i];
    }

    /// A film that began too late tells no first time; then another note or the official time does.
    void readStart() {
        const sectiondata030& timing = m_run.sectioninfo;
        const auto& first = m_film.marks.front();
        if (first && !timing.times.empty() && timing.times.front() > 0)
            m_at.front() = *first - sample::framesOf(timing.times.front());
        else if (!m_run.microsplits.empty())
            m_at.front() = noted(m_run.microsplits.front().cmtime) -
                           sample::framesOf(m_run.microsplits.front().time);
        else if (m_at.back() && timing.realtime > 0)
            m_at.front() = *m_at.back() - sample::framesOf(timing.realtime);
        else
            m_at.front() = startBefore(firstSeen());
    }

    [[nodiscard]] Frames startBefore(std::size_t place) const {
        return *m_at[place] - sample::framesOf(usualSeconds(0, place));
    }

    /// The usual time from one place to another.
    [[nodiscard]] double usualSeconds(std::size_t from, std::size_t to) const {
        double seconds = 0;
        for (std::size_t place = from + 1; place <= to; ++place) {
            const auto& up = m_info.upGates;
            const bool isUpstream =
                std::ranges::find(up, static_cast<std::int64_t>(place)) != up.end();
            seconds += place == finishPlace() ? UsualLastLeg
                       : isUpstream           ? UsualUpstreamLeg
                                              : UsualLeg;
        }
        return seconds;
    }

    [[nodiscard]] std::size_t firstSeen() const {
        std::size_t place = 1;
        while (!m_at[place])
            ++place;
        return place;
    }

    [[nodiscard]] std::size_t lastSeen() const {
        std::size_t place = finishPlace();
        while (place > 0 && !m_at[place])
            --place;
        return place;
    }

    /// A note that goes back in time is wrong; the marks are what a film is made for.
    void keepOrder() {
        std::optional<Frames> later;
        for (std::size_t place = places(); place-- > 0;) {
            if (m_at[place] && later && *m_at[place] >= *later)
                m_at[place].reset();
            if (m_at[place])
                later = m_at[place];
        }
        if (!m_at.front())
            m_at.front() = startBefore(firstSeen());
    }

    void fillBetween() {
        const std::size_t last = lastSeen();
        for (std::size_t from = 0; from < last;) {
            std::size_t to = from + 1;
            while (!m_at[to])
                ++to;
            const auto frames = static_cast<double>(*m_at[to] - *m_at[from]);
            for (std::size_t place = from + 1; place < to; ++place)
                m_at[place] = *m_at[from] + std::llround(frames * usualSeconds(from, place) /
                                                         usualSeconds(from, to));
            from = to;
        }
    }

    /// The rest of the course is paddled like that before.
    void fillAfter(std::size_t last) {
        const double pace =
            static_cast<double>(*m_at[last] - *m_at.front()) / usualSeconds(0, last);
        for (std::size_t place = last + 1; place < places(); ++place)
            m_at[place] = *m_at[last] + std::llround(pace * usualSeconds(last, place));
    }

    RunOnFilm result(std::size_t last, bool gaveUp) {
        RunOnFilm& film = m_film;
        film.start = *m_at.front();
        for (std::size_t place = 1; place < finishPlace() && m_at[place]; ++place)
            film.gates.push_back(*m_at[place]);
        film.finish = m_at.back();
        film.pens = m_run.sectioninfo.pens;
        film.pens.resize(static_cast<std::size_t>(m_info.gates));
        if (gaveUp)
            film.length = *m_at[last] + AfterGivingUp;
        else if (last < finishPlace())
            film.length = (*m_at[last] + *film.finish) / 2;
        else
            film.length = *film.finish + FramesAfterFinish;
        return std::move(film);
    }

    const infodata031& m_info;
    const athletedata031& m_run;
    std::size_t m_camera;
    std::vector<std::optional<Frames>> m_at; ///< by place
    Frames m_lag = 0;                        ///< of this camera behind the first
    RunOnFilm m_film;
};

} // namespace

void requireSections(const infodata031& info) {
    std::int64_t before = 0;
    for (const auto& section : info.definedsections) {
        if (section.empty() || section.back() <= before || section.back() > info.gates)
            throw std::invalid_argument("a section of the course does not end at a gate");
        before = section.back();
    }
    if (before == 0)
        throw std::invalid_argument("the course has no sections");
}

RunOnFilm runOnFilm(const infodata031& info, const athletedata031& run, std::size_t camera) {
    requireSections(info);
    return Reader(info, run, camera).read();
}

} // namespace kavela::films
