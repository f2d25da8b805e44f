#pragma once

#include "compose/gap_line.h"
#include "compose/time_map.h"

#include <cstdint>
#include <string>
#include <vector>

/// Which words stand in a composed film, and when.
namespace kavela {

/// What the split file says of a run.
struct CaptionedRun {
    std::string names;
    std::string category;
    FilmMarks marks;
    /// Seconds of the run at each split, entry 0 the start; nothing where there is no time.
    std::vector<std::optional<double>> times;
    std::vector<std::int64_t> penalties; ///< seconds by section, entry 0 the first one's
};

/// What a coach wants to read in the film.
struct CaptionChoice {
    bool names = true;
    bool clock = true;
    bool splits = true;
    bool section = true;
    bool penalties = true;
    bool gap = true;
};

enum class CaptionKind {
    Names,
    RunClock,
    Split,
    Penalty,
    Waits,
    Stretch,
    Section, ///< belongs to the whole picture
    Missing
};

struct Caption {
    CaptionKind kind = CaptionKind::Names;
    std::size_t film = 0;
    std::string text;

    friend bool operator==(const Caption&, const Caption&) = default;
};

/// How long a split time stays, in seconds of common time.
inline constexpr double SplitShownSeconds = 2;

/// The captions of a composition as texts.
///
/// That a film waits ("waits 0.42 s") or is slowed ("×0.94") is always said: stroke rates and
/// speeds would look equal where they are not.
class CaptionPlan {
public:
    /// As many runs as the map has films. `splitTitles` are those of the sections.
    CaptionPlan(std::vector<CaptionedRun> runs, std::vector<std::string> splitTitles,
                CaptionChoice choice, const TimeMap& map);

    /// What is to be read at a moment of common time.
    [[nodiscard]] std::vector<Caption> at(double common) const;
    /// The gaps of the further runs to the first one; empty where they are not wanted.
    [[nodiscard]] const std::vector<GapLine>& gaps() const { return m_gaps; }

private:
    struct Passing {
        std::size_t split = 0;
        double common = 0;
    };

    void notePassings();
    void addRun(std::vector<Caption>& captions, std::size_t film, double common) const;
    void addTempo(std::vector<Caption>& captions, std::size_t film, double common) const;
    [[nodiscard]] std::string clockText(std::size_t film, double common) const;
    [[nodiscard]] std::string splitText(std::size_t film, std::size_t split) const;
    [[nodiscard]] std::string sectionText(double common) const;
    [[nodiscard]] std::int64_t penaltyAt(std::size_t film, double common) const;
    [[nodiscard]] std::size_t lastSplit(std::size_t film) const;

    std::vector<CaptionedRun> m_runs;
    std::vector<std::string> m_titles;
    CaptionChoice m_choice;
    TimeMap m_map;
    std::vector<std::vector<Passing>> m_passings; ///< of each run, by common time
    std::vector<GapLine> m_gaps;
};

/// "+0.42", "−0.42", "0.00".
[[nodiscard]] std::string gapText(double seconds);

} // namespace kavela
