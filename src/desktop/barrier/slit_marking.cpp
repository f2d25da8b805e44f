#include "desktop/barrier/slit_marking.h"

#include "common/error.h"
#include "desktop/shell/qt_text.h"
#include "splittaking/film_crossings.h"
#include "vision/barrier_figures.h"

#include <QUndoStack>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

/// A proposal and a mark so near to each other, in seconds, are of one boat.
constexpr double ProposalReach = 0.5;
constexpr double SureProposal = 0.5; ///< confidence

/// A proposal whose frame and seconds are those of the point that is timed.
Proposal timedAt(Proposal proposal, TimingPoint point) {
    if (point == TimingPoint::Body) {
        proposal.frame = proposal.bodyFrame;
        proposal.seconds = proposal.bodySeconds;
    }
    return proposal;
}

} // namespace

const slitline001* SlitMarking::line() const {
    const auto& lines = m_keeping.file().lines;
    return m_number < lines.size() ? &lines[m_number] : nullptr;
}

std::size_t SlitMarking::split() const {
    return line() ? static_cast<std::size_t>(std::max<std::int64_t>(line()->split, 0)) : 0;
}

void SlitMarking::edit(const std::function<void(slitline001&)>& change) {
    if (line())
        m_keeping.edit([&](slitfile002& file) { change(file.lines[m_number]); });
}

void SlitMarking::setBoat(const QRectF& box) {
    edit([&](slitline001& line) {
        line.boatX = box.x();
        line.boatY = box.y();
        line.boatWidth = box.width();
        line.boatHeight = box.height();
    });
}

QString SlitMarking::draw(std::size_t number, const SlitLine& ends, const VideoFacts& film) {
    try {
        checkSlitLine(ends, film.shownSize, film.path);
    } catch (const FileError& error) {
        return qtText(error.reason());
    }
    m_number = std::min(number, m_keeping.file().lines.size());
    m_keeping.edit([&](slitfile002& file) {
        file.width = film.shownSize.width;
        file.height = film.shownSize.height;
        if (m_number == file.lines.size()) {
            std::int64_t split = 0;
            for (const slitline001& line : file.lines)
                split = std::max(split, line.split);
            const auto most = static_cast<std::int64_t>(m_race.splits());
            file.lines.push_back({.split = most > 0 ? std::min(split + 1, most) : split + 1});
        }
        slitline001& line = file.lines[m_number];
        line.x1 = ends.first.x;
        line.y1 = ends.first.y;
        line.x2 = ends.second.x;
        line.y2 = ends.second.y;
    });
    return {};
}

void SlitMarking::setPoint(TimingPoint point) {
    m_keeping.edit([point](slitfile002& file) { setTimingPoint(file, point); });
}

QString SlitMarking::takeLinesOver(VideoSize shown) {
    const SlitNeighbour* const other = m_keeping.neighbour();
    if (!other)
        return tr("No other film of this folder has lines.");
    const slitfile002& lines = other->file;
    if (lines.width != shown.width || lines.height != shown.height)
        return tr("The lines of “%1” were drawn over a picture of %2 × %3 pixels; this film has "
                  "%4 × %5.")
            .arg(other->film)
            .arg(lines.width)
            .arg(lines.height)
            .arg(shown.width)
            .arg(shown.height);
    m_number = m_keeping.file().lines.size();
    m_keeping.edit([&](slitfile002& file) {
        file.width = shown.width;
        file.height = shown.height;
        for (slitline001 line : lines.lines) {
            line.refused.clear();
            file.lines.push_back(std::move(line));
        }
    });
    return {};
}

QString SlitMarking::drawingHint() const {
    const QString draw = tr("Press N and draw a line across the water in the film above: what "
                            "stands on it is shown here over time.");
    const SlitNeighbour* const other = m_keeping.neighbour();
    return other ? draw + '\n' + tr("Or press L for the lines of “%1”.").arg(other->film) : draw;
}

QStringList SlitMarking::notes() const {
    if (!line())
        return {};
    QStringList notes;
    const SlitNeighbour* const other = m_keeping.neighbour();
    if (other && timingPointOf(other->file) != point())
        notes.append(
            point() == TimingPoint::Body
                ? tr("“%1” is timed at the bow: one race needs one point.").arg(other->film)
                : tr("“%1” is timed at the body: one race needs one point.").arg(other->film));
    return notes + m_search.notes(*line());
}

QString SlitMarking::tellMarkedOtherwise() const {
    const auto runs = m_race.runs(split());
    const auto marked =
        std::ranges::count_if(runs, [](const SlitRun& run) { return run.seconds.has_value(); });
    if (marked == 0)
        return {};
    return marked == 1 ? tr("A mark of this line was made before: look at it again.")
                       : tr("%n marks of this line were made before: look at them again.", nullptr,
                            static_cast<int>(marked));
}

void SlitMarking::keepSearches() {
    std::vector<slitsearch001> searches;
    for (const slitline001& each : m_keeping.file().lines)
        if (const Crossings* const found = m_search.crossings(each))
            searches.push_back(searchRecord(each, *found));
    m_keeping.keepSearches(std::move(searches));
}

void SlitMarking::restoreSearches() {
    if (!m_index)
        return;
    for (const slitline001& each : m_keeping.file().lines)
        if (!m_search.isSearched(each))
            if (auto found = foundOn(m_keeping.file(), each, m_index->frameCount()))
                m_search.keep(lineOf(each), boatOf(each), std::move(*found));
}

void SlitMarking::remove() {
    if (line())
        m_keeping.edit([this](slitfile002& file) {
            file.lines.erase(file.lines.begin() + static_cast<std::ptrdiff_t>(m_number));
        });
}

double SlitMarking::secondsAt(double column) const {
    return m_index ? slitSecondsAt(*m_index, 0, column) : 0;
}

std::optional<double> SlitMarking::columnAt(double seconds) const {
    return m_index ? std::optional(slitColumnAt(*m_index, 0, seconds)) : std::nullopt;
}

std::vector<Proposal> SlitMarking::proposals() const {
    std::vector<Proposal> proposals;
    if (line())
        for (const Proposal& found : m_search.proposals(*line()))
            proposals.push_back(timedAt(found, point()));
    std::ranges::stable_sort(proposals, {}, &Proposal::seconds); // a fast boat beside a slow one
    return proposals;
}

std::optional<Proposal> SlitMarking::proposalAt(double column) const {
    const double now = secondsAt(column);
    std::optional<Proposal> nearest;
    for (const Proposal& proposal : proposals())
        if (const double way = std::abs(proposal.seconds - now);
            way <= (nearest ? std::abs(nearest->seconds - now) : ProposalReach))
            nearest = proposal;
    return nearest;
}

std::optional<ProposalRow> SlitMarking::proposalBeside(double column, int step) const {
    if (!m_index)
        return std::nullopt;
    constexpr double Same = 1e-4;
    const double now = secondsAt(column);
    std::optional<ProposalRow> to;
    for (const ProposalRow& row : rows().proposals) {
        if (step < 0 && row.proposal.seconds < now - Same)
            to = row;
        if (step > 0 && row.proposal.seconds > now + Same && !to)
            to = row;
    }
    return to;
}

SlitMarking::Rows SlitMarking::rows() const {
    Rows rows;
    if (!line())
        return rows;
    const std::vector<Proposal> found = proposals();
    const bool isSearched = m_search.isSearched(*line());
    std::vector<double> crossings;
    for (const Proposal& proposal : found)
        crossings.push_back(proposal.seconds);
    std::vector<std::optional<double>> marked;
    for (const SlitRun& run : m_race.runs(split())) {
        marked.push_back(run.seconds);
        rows.runs.push_back({run, std::nullopt, isSearched});
    }
    const auto owners = runsOfCrossings(crossings, marked);
    for (std::size_t i = 0; i < found.size(); ++i) {
        const auto owner = owners[i];
        if (owner)
            rows.proposals.push_back({found[i], rows.runs[*owner].run.run,
                                      rows.runs[*owner].run.crew, marked[*owner].has_value()});
        else
            rows.proposals.push_back({.proposal = found[i], .crew = {}});
        if (owner && !rows.runs[*owner].proposal)
            rows.runs[*owner].proposal = found[i];
    }
    return rows;
}

/// The stamp is that of the frame whose column the place lies in.
QString SlitMarking::mark(int run, double column, bool isFiner) {
    if (!m_index || m_index->frameCount() == 0)
        return tr("The film is not read so far.");
    const FrameNumber frame = slitFrameAt(*m_index, 0, column);
    const double beside = secondsAt(column) - m_index->secondsOf(frame);
    return m_race.mark(run, split(), m_index->stampOf(frame),
                       isFiner ? std::optional(beside) : std::nullopt);
}

std::vector<SlitRun> SlitMarking::markedAt(double column) const {
    std::vector<SlitRun> marked;
    if (!m_index || m_index->frameCount() == 0 || !line())
        return marked;
    const FrameNumber frame = slitFrameAt(*m_index, 0, column);
    for (SlitRun& run : m_race.runs(split()))
        if (run.seconds &&
            slitFrameAt(*m_index, 0, slitColumnAt(*m_index, 0, *run.seconds)) == frame)
            marked.push_back(std::move(run));
    return marked;
}

bool SlitMarking::isMarkedAt(int run, double column) const {
    const auto marked = markedAt(column);
    return std::ranges::find(marked, run, &SlitRun::run) != marked.end();
}

QString SlitMarking::tellMarkedAt(double column, int butFor) const {
    QStringList crews;
    for (const SlitRun& run : markedAt(column))
        if (run.run != butFor)
            crews.append(run.crew);
    return crews.isEmpty()
               ? QString()
               : tr("On this frame stands the mark of %1.").arg(crews.join(QStringLiteral(", ")));
}

QString SlitMarking::unmark(int run) {
    return m_race.unmark(run, split());
}

QString SlitMarking::refuse(double column) {
    const auto proposal = proposalAt(column);
    if (!proposal)
        return tr("There is no proposal at the hair line.");
    const std::vector<Proposal> found = m_search.proposals(*line());
    const auto refused = std::ranges::find_if(
        found, [&](const Proposal& each) { return timedAt(each, point()) == *proposal; });
    // Refusals are known by the bow, whichever point is timed.
    edit([&](slitline001& line) { line.refused.push_back({refused->frame, refused->seconds}); });
    return {};
}

QString SlitMarking::lock() const {
    const BarrierFigures& figures = measuredBarrierFigures(point());
    return reachesTargets(figures) ? QString() : qtText(tellFigures(figures));
}

QString SlitMarking::acceptAll(bool isFiner) {
    if (!line() || !m_race.isThere() || !m_index)
        return tr("Nothing can be accepted without a line, its proposals and the race.");
    const std::vector<SlitRunRow> runs = rows().runs;
    QStringList refused;
    QUndoStack& steps = m_race.document()->undoStack();
    steps.beginMacro(tr("proposals accepted"));
    for (const SlitRunRow& row : runs) {
        if (row.run.seconds || !row.proposal || row.proposal->confidence < SureProposal)
            continue;
        const double column = slitColumnAt(*m_index, 0, row.proposal->seconds);
        if (const QString why = mark(row.run.run, column, isFiner); !why.isEmpty())
            refused.append(row.run.crew + QStringLiteral(": ") + why);
    }
    steps.endMacro();
    return refused.join(' ');
}

std::vector<BandJudgement> SlitMarking::judgements() const {
    std::vector<BandJudgement> judgements;
    if (!line())
        return judgements;
    std::vector<double> marked;
    for (const SlitRun& run : m_race.runs(split()))
        if (run.seconds)
            marked.push_back(*run.seconds);
    for (const Proposal& proposal : m_search.allProposals(*line())) {
        const auto own = std::ranges::find_if(marked, [&](double seconds) {
            return std::abs(seconds - secondsOf(proposal, point())) <= ProposalReach;
        });
        if (own != marked.end()) {
            judgements.push_back({proposal, *own});
            marked.erase(own);
        } else if (isRefused(*line(), proposal.seconds)) {
            judgements.push_back({proposal, std::nullopt});
        } // what was not looked at yet teaches nothing
    }
    for (const double missed : marked)
        judgements.push_back({std::nullopt, missed});
    return judgements;
}

} // namespace kavela::desktop
