#pragma once

#include "desktop/barrier/crossing_search.h"
#include "desktop/barrier/slit_keeping.h"
#include "desktop/barrier/slit_race.h"
#include "desktop/barrier/slit_tables.h"
#include "vision/band_recording.h"
#include "vision/slit_picture.h"

#include <QCoreApplication>
#include <QRectF>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// What is marked and proposed on the line in front of a film. Places are columns of its slit
/// picture.
class SlitMarking {
    Q_DECLARE_TR_FUNCTIONS(SlitMarking)

public:
    SlitMarking(SlitKeeping& keeping, SlitRace& race, CrossingSearch& search)
        : m_keeping(keeping), m_race(race), m_search(search) {}

    /// Of the film; null as long as not all of it is known.
    void setIndex(std::shared_ptr<const VideoIndex> index) { m_index = std::move(index); }

    /// The line in front; null where none is drawn.
    [[nodiscard]] const slitline001* line() const;
    [[nodiscard]] std::size_t number() const { return m_number; }
    void setNumber(std::size_t number) { m_number = number; }
    [[nodiscard]] std::size_t split() const; ///< whose marks it makes; 0 is the start
    void edit(const std::function<void(slitline001&)>& change);
    /// The box round a boat, for the line in front.
    void setBoat(const QRectF& box);
    /// Draws a line anew and brings it to the front; a number behind the last one adds a line for
    /// the next split. Returns what is wrong with it; it is as it was then.
    [[nodiscard]] QString draw(std::size_t number, const SlitLine& ends, const VideoFacts& film);
    void remove(); ///< the line in front

    /// Where a moment of the film stands; nothing as long as not all of it is known.
    [[nodiscard]] std::optional<double> columnAt(double seconds) const;

    /// What is timed on this film.
    [[nodiscard]] TimingPoint point() const { return timingPointOf(m_keeping.file()); }
    void setPoint(TimingPoint point);
    /// Adds the lines of the film beside it, without its refusals. Returns why not.
    [[nodiscard]] QString takeLinesOver(VideoSize shown);
    /// How to come to a line where there is none.
    [[nodiscard]] QString drawingHint() const;
    /// What there is to say of the point that is timed and of what was found, a sentence each.
    [[nodiscard]] QStringList notes() const;
    /// Marks of this line that were made before another point was chosen; empty without any.
    [[nodiscard]] QString tellMarkedOtherwise() const;
    /// Keeps what was found for the next time that the film is opened.
    void keepSearches();
    /// Brings back what was found before, once film and lines are known.
    void restoreSearches();

    /// What is proposed, its frame and seconds those of the point that is timed, without what was
    /// refused, in the order of time.
    [[nodiscard]] std::vector<Proposal> proposals() const;
    /// The one at a place, within half a second.
    [[nodiscard]] std::optional<Proposal> proposalAt(double column) const;
    /// The next one, or the one before, with the run that it falls to.
    [[nodiscard]] std::optional<ProposalRow> proposalBeside(double column, int step) const;

    struct Rows {
        std::vector<SlitRunRow> runs;
        std::vector<ProposalRow> proposals;
    };
    /// The runs at this line, and what falls to each.
    [[nodiscard]] Rows rows() const;

    /// The runs whose marks at this line stand on the frame of a place.
    [[nodiscard]] std::vector<SlitRun> markedAt(double column) const;
    [[nodiscard]] bool isMarkedAt(int run, double column) const;
    /// Names them but for one, below 0 for none; empty where there are none.
    [[nodiscard]] QString tellMarkedAt(double column, int butFor) const;

    // Each returns why it was not done; empty where it was.
    [[nodiscard]] QString mark(int run, double column, bool isFiner);
    [[nodiscard]] QString unmark(int run);
    [[nodiscard]] QString refuse(double column);
    /// Why proposals cannot be accepted all at once.
    [[nodiscard]] QString lock() const;
    /// Marks every run that has a sure proposal, in one step.
    [[nodiscard]] QString acceptAll(bool isFiner);

    /// What the coach made of each proposal and what was missed, to teach the search.
    [[nodiscard]] std::vector<BandJudgement> judgements() const;

private:
    [[nodiscard]] double secondsAt(double column) const;

    SlitKeeping& m_keeping;
    SlitRace& m_race;
    CrossingSearch& m_search;
    std::shared_ptr<const VideoIndex> m_index;
    std::size_t m_number = 0;
};

} // namespace kavela::desktop
