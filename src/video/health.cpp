#include "video/health.h"

#include "common/number_text.h"
#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// The intervals between frames, in ticks.
struct Intervals {
    std::vector<std::int64_t> inOrder;
    std::vector<std::int64_t> sorted;

    [[nodiscard]] std::int64_t median() const { return sorted[sorted.size() / 2]; }
};

Intervals intervalsOf(const VideoIndex& index) {
    Intervals intervals;
    for (FrameNumber i = 1; i < index.frameCount(); ++i)
        intervals.inOrder.push_back(index.frame(i).stamp - index.frame(i - 1).stamp);
    intervals.sorted = intervals.inOrder;
    std::ranges::sort(intervals.sorted);
    return intervals;
}

/// Coarse clocks round, so that intervals of a constant rate differ by a tick.
bool isGap(std::int64_t interval, std::int64_t usual) {
    return 2 * interval > 3 * usual && interval > usual + 1;
}

std::string rateText(double rate) {
    constexpr double Hundredths = 100;
    return saidNumber(plainText(std::round(rate * Hundredths) / Hundredths));
}

std::string secondsText(double seconds) {
    return say("{:.3f} s", seconds);
}

class HealthCheck {
public:
    explicit HealthCheck(const VideoIndex& index) : m_index(index), m_facts(index.facts()) {}

    std::vector<HealthNote> notes() {
        noteDamage();
        if (m_index.frameCount() > 2) {
            m_intervals = intervalsOf(m_index);
            noteRate();
            noteGaps();
            noteRepeats();
        }
        noteSlowMotion();
        notePlace();
        notePicture();
        return std::move(m_notes);
    }

private:
    void note(Oddity oddity, std::string text) { m_notes.push_back({oddity, std::move(text)}); }

    [[nodiscard]] double seconds(std::int64_t ticks) const {
        return stampOf(ticks, m_facts.timeBase).seconds();
    }

    void noteDamage() {
        if (m_facts.isCutOff && m_facts.missingFrames > 0)
            note(Oddity::CutOff, sayCount(m_facts.missingFrames,
                                          "The file is cut off: {} frame missing at its end.",
                                          "The file is cut off: {} frames missing at its end."));
        else if (m_facts.isCutOff)
            note(Oddity::CutOff, say("The file is cut off or damaged: its end is missing."));
        if (m_facts.hasEstimatedStamps)
            note(Oddity::EstimatedStamps,
                 say("The file does not say when each frame was shown: times are estimated from "
                     "its frame rate."));
        if (m_facts.sharedStamps > 0)
            note(Oddity::SharedStamps,
                 sayCount(m_facts.sharedStamps,
                          "{} frame left out that had the time of another frame.",
                          "{} frames left out that had the time of another frame."));
    }

    /// A few gaps in a constant rate are gaps; a rate that wanders is variable.
    void noteRate() {
        const std::int64_t usual = m_intervals.median();
        const auto deviates = [usual](std::int64_t interval) {
            return std::abs(interval - usual) > std::max<std::int64_t>(1, usual / 50) &&
                   !isGap(interval, usual);
        };
        const auto deviating = std::ranges::count_if(m_intervals.inOrder, deviates);
        const auto gaps = std::ranges::count_if(
            m_intervals.inOrder, [usual](std::int64_t interval) { return isGap(interval, usual); });
        const std::int64_t total = std::ssize(m_intervals.inOrder);
        m_isVariable = deviating * 50 > total || gaps * 10 > total;
        if (!m_isVariable)
            return;
        // The slowest and fastest hundredth are single frames, not the rate.
        const auto at = [&](std::int64_t percent) {
            return seconds(
                m_intervals.sorted[static_cast<std::size_t>((total - 1) * percent / 100)]);
        };
        note(Oddity::VariableRate, say("The frame rate varies, from {} to {} frames a second.",
                                       rateText(1 / at(99)), rateText(1 / at(1))));
    }

    void noteGaps() {
        const std::int64_t usual = m_isVariable
                                       ? m_intervals.sorted[m_intervals.sorted.size() * 99 / 100]
                                       : m_intervals.median();
        const auto& intervals = m_intervals.inOrder;
        const auto gaps = std::ranges::count_if(
            intervals, [usual](std::int64_t interval) { return isGap(interval, usual); });
        if (gaps == 0)
            return;
        const auto longest = std::ranges::max_element(intervals);
        note(Oddity::Gaps, say("{} where frames are missing, the longest of {} at {}.",
                               sayCount(gaps, "{} gap", "{} gaps"), secondsText(seconds(*longest)),
                               secondsText(m_index.secondsOf(longest - intervals.begin()))));
    }

    /// A frame that repeats the one before takes next to nothing, which a camera's noise never
    /// does.
    void noteRepeats() {
        const std::int64_t blocks =
            std::int64_t{m_facts.storedSize.width} * m_facts.storedSize.height / 256;
        const std::int64_t nothing = 40 + blocks / 40;
        std::vector<std::int64_t> sizes;
        for (FrameNumber i = 0; i < m_index.frameCount(); ++i)
            sizes.push_back(m_index.frame(i).bytes);
        const auto repeats = std::ranges::count_if(
            sizes, [nothing](std::int64_t bytes) { return bytes <= nothing; });
        std::ranges::sort(sizes);
        const std::int64_t upper = sizes[sizes.size() * 9 / 10];
        if (repeats * 50 > std::ssize(sizes) && upper > 8 * nothing)
            note(Oddity::RepeatedFrames,
                 say("About {} of {} frames repeat the picture before them.", repeats,
                     std::ssize(sizes)));
    }

    void noteSlowMotion() {
        constexpr double Clearly = 1.2;
        const double played = playedRate();
        if (!m_facts.captureRate || played <= 0 || *m_facts.captureRate < Clearly * played)
            return;
        const double factor = *m_facts.captureRate / played;
        note(Oddity::FlattenedSlowMotion,
             say("Slow motion: recorded at {} frames a second, plays at {}. Times taken from it "
                 "are {} times too long.",
                 rateText(*m_facts.captureRate), rateText(played), rateText(factor)));
    }

    [[nodiscard]] double playedRate() const {
        const FrameNumber last = m_index.frameCount() - 1;
        const double span = last > 0 ? m_index.secondsOf(last) - m_index.secondsOf(0) : 0;
        return span > 0 ? static_cast<double>(last) / span : m_facts.nominalRate;
    }

    void notePlace() {
        const double first = m_index.secondsOf(0);
        if (first != 0)
            note(Oddity::FirstStamp, say("The film starts at {}, not at 0.", secondsText(first)));
        if (!m_facts.hasStoredIndex)
            note(Oddity::NoStoredIndex,
                 say("The file has no list of its frames: it had to be read from end to end."));
    }

    void notePicture() {
        if (m_facts.rotation != 0)
            note(Oddity::Rotation,
                 say("Recorded turned by {}°, and shown upright.", m_facts.rotation));
        if (m_facts.isInterlaced)
            note(Oddity::Interlaced,
                 say("Interlaced: each frame holds two moments half a frame apart."));
        if (m_facts.bitDepth > 8)
            note(Oddity::DeepColour, say("{} bits a colour, shown with 8.", m_facts.bitDepth));
    }

    const VideoIndex& m_index;
    const VideoFacts& m_facts;
    Intervals m_intervals;
    std::vector<HealthNote> m_notes;
    bool m_isVariable = false;
};

} // namespace

std::vector<HealthNote> checkHealth(const VideoIndex& index) {
    return HealthCheck(index).notes();
}

} // namespace kavela
