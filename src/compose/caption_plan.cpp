#include "compose/caption_plan.h"

#include "common/number_text.h"
#include "common/text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kavela {

namespace {

/// What a sum of doubles can be off.
constexpr double PassingSlack = 1e-6;

std::optional<double> timeAt(const CaptionedRun& run, std::size_t split) {
    return split < run.times.size() ? run.times[split] : std::nullopt;
}

/// The gap of a run to the first one at a split.
std::optional<double> gapAt(const std::vector<CaptionedRun>& runs, std::size_t run,
                            std::size_t split) {
    const auto own = timeAt(runs[run], split);
    const auto first = timeAt(runs.front(), split);
    return own && first ? std::optional(*own - *first) : std::nullopt;
}

std::size_t splitsOf(const CaptionedRun& run) {
    return std::max(run.marks.size(), run.times.size());
}

} // namespace

std::string gapText(double seconds) {
    const double rounded = roundedToHundredths(seconds);
    const std::string digits = hundredthsText(std::abs(rounded));
    return rounded == 0 ? digits : (rounded > 0 ? "+" : "\u2212") + digits;
}

CaptionPlan::CaptionPlan(std::vector<CaptionedRun> runs, std::vector<std::string> splitTitles,
                         CaptionChoice choice, const TimeMap& map)
    : m_runs(std::move(runs)),
      m_titles(std::move(splitTitles)),
      m_choice(choice),
      m_map(map),
      m_passings(m_runs.size()) {
    notePassings();
    if (!m_choice.gap)
        return;
    for (std::size_t film = 1; film < m_runs.size(); ++film) {
        GapLine line;
        for (const Passing& passing : m_passings[film]) {
            const auto gap = gapAt(m_runs, film, passing.split);
            const auto first =
                std::ranges::find(m_passings.front(), passing.split, &Passing::split);
            // A gap is known when both are there.
            if (gap && first != m_passings.front().end())
                line.add({std::max(passing.common, first->common), *gap});
        }
        m_gaps.push_back(std::move(line));
    }
}

/// A split that is not marked on a film is passed when the first of the others passes it.
void CaptionPlan::notePassings() {
    std::size_t splits = 0;
    for (const CaptionedRun& run : m_runs)
        splits = std::max(splits, run.marks.size());
    for (std::size_t split = 0; split < splits; ++split) {
        double earliest = std::numeric_limits<double>::infinity();
        std::vector<std::optional<double>> own;
        for (std::size_t film = 0; film < m_runs.size(); ++film) {
            const FilmMarks& marks = m_runs[film].marks;
            const bool isMarked = split < marks.size() && marks[split];
            own.push_back(isMarked ? std::optional(m_map.commonAt(film, *marks[split]))
                                   : std::nullopt);
            earliest = std::min(earliest, own.back().value_or(earliest));
        }
        for (std::size_t film = 0; film < m_runs.size(); ++film)
            if (std::isfinite(earliest) && split < splitsOf(m_runs[film]))
                m_passings[film].push_back({split, own[film].value_or(earliest)});
    }
    for (auto& passings : m_passings)
        std::ranges::stable_sort(passings, {}, &Passing::common);
}

std::vector<Caption> CaptionPlan::at(double common) const {
    std::vector<Caption> captions;
    for (std::size_t film = 0; film < m_runs.size(); ++film) {
        addRun(captions, film, common);
        addTempo(captions, film, common);
    }
    if (m_choice.section)
        if (std::string title = sectionText(common); !title.empty())
            captions.push_back({CaptionKind::Section, 0, std::move(title)});
    return captions;
}

void CaptionPlan::addRun(std::vector<Caption>& captions, std::size_t film, double common) const {
    const CaptionedRun& run = m_runs[film];
    const auto add = [&](CaptionKind kind, std::string text) {
        if (!text.empty())
            captions.push_back({kind, film, std::move(text)});
    };
    if (m_choice.names)
        add(CaptionKind::Names,
            run.names + (run.names.empty() || run.category.empty() ? "" : "  ·  ") + run.category);
    if (m_choice.clock)
        add(CaptionKind::RunClock, clockText(film, common));
    if (m_choice.splits)
        for (const Passing& passing : m_passings[film])
            if (passing.split > 0 && passing.common <= common + PassingSlack &&
                common < passing.common + SplitShownSeconds - PassingSlack)
                add(CaptionKind::Split, splitText(film, passing.split));
    if (const std::int64_t penalty = penaltyAt(film, common); m_choice.penalties && penalty > 0)
        add(CaptionKind::Penalty, "+" + std::to_string(penalty) + " s");
}

void CaptionPlan::addTempo(std::vector<Caption>& captions, std::size_t film, double common) const {
    const TimePiece& piece = m_map.pieceAt(film, common);
    if (piece.rate == 0)
        captions.push_back(
            {CaptionKind::Waits, film, say("waits {} s", hundredthsText(piece.waits))});
    else if (piece.rate != 1 && common + PassingSlack >= piece.common)
        captions.push_back({CaptionKind::Stretch, film, "×" + hundredthsText(piece.rate)});
}

/// The last split with a mark; 0 for a run with none behind its start.
std::size_t CaptionPlan::lastSplit(std::size_t film) const {
    const FilmMarks& marks = m_runs[film].marks;
    for (std::size_t split = marks.size(); split-- > 1;)
        if (marks[split])
            return split;
    return 0;
}

/// The clock stops at the finish, on the time that tables show.
std::string CaptionPlan::clockText(std::size_t film, double common) const {
    const CaptionedRun& run = m_runs[film];
    if (run.marks.empty() || !run.marks.front())
        return {};
    const double start = *run.marks.front();
    const double now = m_map.filmSeconds(film, common);
    const std::size_t last = lastSplit(film);
    const bool isWhole = last > 0 && last + 1 >= splitsOf(run);
    if (isWhole && now + PassingSlack >= *run.marks[last])
        return hundredthsText(timeAt(run, last).value_or(*run.marks[last] - start));
    return hundredthsText(std::max(now - start, 0.0));
}

std::string CaptionPlan::splitText(std::size_t film, std::size_t split) const {
    const std::string name = say("Split {}", split) + "  ";
    const auto time = timeAt(m_runs[film], split);
    const bool isMarked = split < m_runs[film].marks.size() && m_runs[film].marks[split];
    if (!time || !isMarked)
        return name + "–";
    const auto gap = film == 0 ? std::nullopt : gapAt(m_runs, film, split);
    return name + hundredthsText(*time) + (gap ? "  " + gapText(*gap) : "");
}

std::string CaptionPlan::sectionText(double common) const {
    const auto& passings = m_passings.front();
    if (passings.empty() || common + PassingSlack < passings.front().common)
        return {};
    std::size_t passed = 0;
    for (const Passing& passing : passings)
        if (passing.common <= common + PassingSlack)
            passed = std::max(passed, passing.split);
    if (passed + 1 >= splitsOf(m_runs.front()))
        return {};
    if (passed < m_titles.size() && !m_titles[passed].empty())
        return m_titles[passed];
    return say("Section {}", passed + 1);
}

/// Penalty seconds of the sections that lie behind.
std::int64_t CaptionPlan::penaltyAt(std::size_t film, double common) const {
    const CaptionedRun& run = m_runs[film];
    std::size_t passed = 0;
    for (const Passing& passing : m_passings[film])
        if (passing.common <= common + PassingSlack)
            passed = std::max(passed, passing.split);
    std::int64_t sum = 0;
    for (std::size_t section = 0; section < std::min(passed, run.penalties.size()); ++section)
        sum += std::clamp<std::int64_t>(run.penalties[section], 0, 10'000);
    return sum;
}

} // namespace kavela
