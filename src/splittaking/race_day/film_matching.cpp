#include "splittaking/race_day/film_matching.h"

#include "common/folded_text.h"
#include "common/text.h"
#include "splitdata/run_timing.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>
#include <set>

namespace kavela {

namespace {

constexpr double HalfHour = 1800;
constexpr double SecondsOfDay = 24 * 2 * HalfHour;
/// A camera further down the course begins later than the boat starts, one that waits begins
/// earlier; beyond this its clock is another one.
constexpr double MostFromPlace = 45;
constexpr double UsualInterval = 60;
constexpr double LeastTolerance = 15;
constexpr double NamedConfidence = 0.95;
constexpr double ByOrderConfidence = 0.5;
constexpr double ByLooseOrderConfidence = 0.41;
constexpr double OtherClockConfidence = 0.3;
constexpr double SecondBoatConfidence = 0.35;
/// A time of the file system is when it was copied, now and then.
constexpr double FileTimeFactor = 0.8;

double middleOf(std::vector<double> values, double otherwise) {
    if (values.empty())
        return otherwise;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

std::vector<double> gapsOf(std::vector<double> moments) {
    std::ranges::sort(moments);
    std::vector<double> gaps;
    for (std::size_t i = 1; i < moments.size(); ++i)
        if (moments[i] > moments[i - 1])
            gaps.push_back(moments[i] - moments[i - 1]);
    return gaps;
}

/// One matching being made: what is settled first, then by names, by times or order, and last the
/// second boats of long films.
class FilmMatching {
public:
    FilmMatching(const RaceDay& day, std::span<const SeenFilm> films) : m_day(day) {
        for (const SeenFilm& film : films)
            m_films.push_back(&film);
        std::ranges::stable_sort(m_films, {}, &SeenFilm::began);
        for (std::size_t place = 0; place < day.starts.size(); ++place)
            m_placeOf[day.starts[place].id] = place;
        m_areTimed =
            !day.starts.empty() && std::ranges::all_of(day.starts, [](const DayStart& start) {
                return start.starttime >= 0;
            });
    }

    DayMatching make() {
        takeSettled();
        sortOutOtherDays();
        takeNamed(m_free);
        takeNamed(m_others);
        offerOtherDay();
        if (m_areTimed)
            takeByTime();
        else
            takeByOrder();
        takeSecondBoats();
        for (const SeenFilm* const film : m_free)
            m_result.extra.push_back(film->from);
        std::ranges::stable_sort(m_result.matches, {},
                                 [&](const DayMatch& match) { return m_placeOf.at(match.start); });
        return std::move(m_result);
    }

private:
    [[nodiscard]] bool isFree(std::size_t place) const {
        const DayStart& start = m_day.starts[place];
        return start.out != DidNotStart && !m_taken.contains(start.id);
    }

    void match(std::size_t place, const SeenFilm& film, double confidence, std::string why) {
        const std::int64_t start = m_day.starts[place].id;
        if (film.source == RecordingTime::File && confidence != NamedConfidence)
            confidence *= FileTimeFactor;
        m_taken.insert(start);
        m_result.matches.push_back(
            {start, film.from, MatchState::Proposed, confidence, std::move(why)});
    }

    void takeSettled() {
        for (const DayFilm& film : m_day.films)
            for (const std::int64_t start : film.starts) {
                m_taken.insert(start);
                m_result.matches.push_back({start, film.from,
                                            film.agreed ? MatchState::Agreed : MatchState::Kept, 1,
                                            film.agreed ? "agreed" : "kept"});
            }
    }

    [[nodiscard]] double agreedOffset() const {
        return m_day.hasclockoffset ? m_day.clockoffset : 0;
    }

    /// A card holds the films of a season. Those of another day are left alone until the coach says
    /// that the date of the camera is wrong.
    void sortOutOtherDays() {
        for (const SeenFilm* const film : m_films) {
            if (findFilmFrom(m_day, film->from))
                continue;
            (isOfOtherDay(*film) ? m_others : m_free).push_back(film);
        }
    }

    [[nodiscard]] bool isOfOtherDay(const SeenFilm& film) const {
        const double began = film.began - agreedOffset();
        return began < -SecondsOfDay / 2 || began > SecondsOfDay * 3 / 2;
    }

    /// Where there are no others, the date of the camera may be wrong.
    void offerOtherDay() {
        m_result.ofOtherDays = m_others.size();
        if (m_day.starts.empty() || !m_free.empty() || m_others.empty() || m_day.hasclockoffset ||
            !m_day.films.empty() || !m_result.matches.empty())
            return;
        m_result.offeredOffset =
            m_areTimed ? bestOffset(m_others)
                       : std::floor(m_others.back()->began / SecondsOfDay) * SecondsOfDay;
    }

    /// A name counts whatever the date: the file may have been copied since.
    void takeNamed(std::vector<const SeenFilm*>& films) {
        std::erase_if(films, [&](const SeenFilm* film) {
            const auto place = placeNamedBy(*film);
            if (place)
                match(*place, *film, NamedConfidence, say("by its name"));
            return place.has_value();
        });
    }

    /// The only start that is free and has the crew of a film's name.
    [[nodiscard]] std::optional<std::size_t> placeNamedBy(const SeenFilm& film) const {
        std::optional<std::size_t> found;
        const std::string crew = folded(film.crew);
        for (std::size_t place = 0; place < m_day.starts.size() && !crew.empty(); ++place) {
            const DayStart& start = m_day.starts[place];
            const bool isPhase = film.phase.empty() || start.phase.empty() ||
                                 folded(start.phase) == folded(film.phase);
            if (!isFree(place) || !isPhase || folded(crewText(crewIn(start.name))) != crew)
                continue;
            if (found)
                return std::nullopt;
            found = place;
        }
        return found;
    }

    // By the times of the list.

    [[nodiscard]] double interval() const {
        std::vector<double> moments;
        for (const DayStart& start : m_day.starts)
            moments.push_back(start.starttime);
        return middleOf(gapsOf(std::move(moments)), UsualInterval);
    }

    /// How unlikely a clock is wrong by so much: least where it is right, then by whole half hours,
    /// as in another time zone.
    static double strangeness(double offset) {
        if (std::abs(offset) <= MostFromPlace)
            return std::abs(offset) / SecondsOfDay;
        const double beside = std::abs(std::remainder(offset, HalfHour));
        constexpr double OfZone = 0.3;
        constexpr double OfNothing = 0.6;
        return (beside <= 2 * MostFromPlace ? OfZone : OfNothing) + beside / SecondsOfDay +
               std::abs(offset) / (SecondsOfDay * SecondsOfDay);
    }

    /// The offset at which most films meet a start; of equal ones the least strange.
    [[nodiscard]] double bestOffset(const std::vector<const SeenFilm*>& films) const {
        std::vector<double> offsets;
        for (const SeenFilm* const film : films)
            for (std::size_t place = 0; place < m_day.starts.size(); ++place)
                if (isFree(place))
                    offsets.push_back(film->began - m_day.starts[place].starttime);
        std::ranges::sort(offsets);
        const double width = std::min(interval() / 2, MostFromPlace);
        double best = 0;
        double bestScore = -1;
        for (std::size_t begin = 0, end = 0; begin < offsets.size(); ++begin) {
            while (end < offsets.size() && offsets[end] <= offsets[begin] + width)
                ++end;
            const double middle = offsets[begin + (end - begin) / 2];
            const double met =
                std::min(static_cast<double>(end - begin), static_cast<double>(films.size()));
            if (const double score = met - strangeness(middle); score > bestScore) {
                bestScore = score;
                best = middle;
            }
        }
        return best;
    }

    /// By how much the films settled last lie behind their starts: the next ones follow them, also
    /// after the coach has shifted them all.
    [[nodiscard]] std::optional<double> settledOffset() const {
        constexpr std::size_t MostSettled = 3;
        std::vector<double> offsets;
        for (auto film = m_films.rbegin(); film != m_films.rend(); ++film) {
            const DayFilm* const settled = findFilmFrom(m_day, (*film)->from);
            if (settled && !settled->starts.empty() && !isOfOtherDay(**film) &&
                offsets.size() < MostSettled)
                offsets.push_back((*film)->began -
                                  findStart(m_day, settled->starts.front())->starttime);
        }
        return offsets.empty() ? std::nullopt : std::optional(middleOf(offsets, 0));
    }

    [[nodiscard]] double tolerance() const { return std::max(interval() / 2, LeastTolerance); }

    /// How many films would find a start. A single film that was given to an odd boat must not lead
    /// the others astray.
    [[nodiscard]] std::ptrdiff_t filmsMeeting(double offset) const {
        const double most = tolerance();
        return std::ranges::count_if(m_free, [&](const SeenFilm* film) {
            for (std::size_t place = 0; place < m_day.starts.size(); ++place)
                if (isFree(place) &&
                    std::abs(film->began - offset - m_day.starts[place].starttime) <= most)
                    return true;
            return false;
        });
    }

    void takeByTime() {
        if (m_free.empty())
            return;
        const auto settled = settledOffset();
        double offset =
            m_day.hasclockoffset ? m_day.clockoffset + fineOffset() : bestOffset(m_free);
        const bool follows = settled && filmsMeeting(*settled) >= filmsMeeting(offset);
        if (follows)
            offset = *settled;
        const bool isOtherClock = !m_day.starts.empty() && !follows && !m_day.hasclockoffset &&
                                  std::abs(offset) > MostFromPlace;
        if (isOtherClock)
            m_result.offeredOffset = offset;
        align(offset, isOtherClock);
        m_offset = offset;
    }

    /// What the camera's place at the course adds to the offset that the coach agreed to.
    [[nodiscard]] double fineOffset() const {
        std::vector<double> beside;
        for (const SeenFilm* const film : m_free) {
            const double began = film->began - m_day.clockoffset;
            double nearest = std::numeric_limits<double>::infinity();
            for (const DayStart& start : m_day.starts)
                if (std::abs(began - start.starttime) < std::abs(nearest))
                    nearest = began - start.starttime;
            if (std::abs(nearest) <= MostFromPlace)
                beside.push_back(nearest);
        }
        return middleOf(std::move(beside), 0);
    }

    /// The films and starts that lie nearest to each other, none out of order: the way of least
    /// cost through the table of both. A film without a start costs more than any match.
    void align(double offset, bool isOtherClock) {
        std::vector<std::size_t> places;
        for (std::size_t place = 0; place < m_day.starts.size(); ++place)
            if (isFree(place))
                places.push_back(place);
        const double tolerance = this->tolerance();
        const std::size_t films = m_free.size();
        const std::size_t width = places.size() + 1;
        const auto away = [&](std::size_t film, std::size_t place) {
            return std::abs(m_free[film]->began - offset - m_day.starts[places[place]].starttime);
        };
        // costs[f * width + s]: of the films from f and the starts from s on.
        std::vector<double> costs((films + 1) * width, 0);
        for (std::size_t film = films; film-- > 0;)
            for (std::size_t place = width; place-- > 0;) {
                double& cost = costs[film * width + place];
                cost = costs[(film + 1) * width + place] + 1;
                if (place + 1 == width)
                    continue;
                cost = std::min(cost, costs[film * width + place + 1]);
                if (away(film, place) <= tolerance)
                    cost = std::min(cost, costs[(film + 1) * width + place + 1] +
                                              away(film, place) / tolerance);
            }
        std::vector<const SeenFilm*> left;
        std::size_t film = 0;
        std::size_t place = 0;
        while (film < films) {
            const double cost = costs[film * width + place];
            if (place + 1 < width && cost == costs[film * width + place + 1]) {
                ++place;
            } else if (cost == costs[(film + 1) * width + place] + 1) {
                left.push_back(m_free[film++]);
            } else {
                matchByTime(places[place], *m_free[film], away(film, place), tolerance,
                            isOtherClock);
                ++film;
                ++place;
            }
        }
        m_free = std::move(left);
    }

    void matchByTime(std::size_t place, const SeenFilm& film, double away, double tolerance,
                     bool isOtherClock) {
        const double confidence = 1 - away / tolerance;
        match(place, film, isOtherClock ? std::min(confidence, OtherClockConfidence) : confidence,
              isOtherClock
                  ? say("{} s from its start, if the camera's clock is wrong", std::lround(away))
                  : say("{} s from its start", std::lround(away)));
    }

    // By the order alone.

    /// How many places a film stands behind the one before it.
    struct Rhythm {
        double gap = 0; ///< 0 where there is no rhythm

        [[nodiscard]] std::size_t steps(double seconds) const {
            return gap <= 0 ? 1
                            : static_cast<std::size_t>(std::max(1L, std::lround(seconds / gap)));
        }
    };

    [[nodiscard]] Rhythm rhythm() const {
        constexpr double MostBeside = 0.25;
        constexpr std::size_t FewestGaps = 3;
        std::vector<double> moments;
        for (const SeenFilm* const film : m_films)
            if (isOfABoat(*film) && !isOfOtherDay(*film))
                moments.push_back(film->began);
        const std::vector<double> gaps = gapsOf(std::move(moments));
        const double usual = middleOf(gaps, 0);
        const auto isMultiple = [&](double gap) {
            const double times = std::max(1.0, std::round(gap / usual));
            return std::abs(gap / usual - times) <= MostBeside;
        };
        const bool isRegular =
            gaps.size() >= FewestGaps && usual > 0 && std::ranges::all_of(gaps, isMultiple);
        return {isRegular ? usual : 0};
    }

    [[nodiscard]] bool isOfABoat(const SeenFilm& film) const {
        return std::ranges::find(m_free, &film) != m_free.end() || placeMatched(film);
    }

    [[nodiscard]] std::optional<std::size_t> placeMatched(const SeenFilm& film) const {
        std::optional<std::size_t> last;
        for (const DayMatch& match : m_result.matches)
            if (match.from == film.from)
                last = std::max(last.value_or(0), m_placeOf.at(match.start));
        return last;
    }

    /// Films that are settled, or named after their boats, say where those behind them begin.
    void takeByOrder() {
        const Rhythm rhythm = this->rhythm();
        std::vector<const SeenFilm*> left;
        std::optional<std::size_t> last;
        double lastBegan = 0;
        for (const SeenFilm* const film : m_films) {
            if (isOfOtherDay(*film))
                continue;
            if (const auto settled = placeMatched(*film)) {
                last = *settled;
                lastBegan = film->began;
                continue;
            }
            if (std::ranges::find(m_free, film) == m_free.end())
                continue; // of no boat
            std::size_t place = last ? *last + rhythm.steps(film->began - lastBegan) : 0;
            while (place < m_day.starts.size() && !isFree(place))
                ++place;
            if (place >= m_day.starts.size()) {
                left.push_back(film);
                continue;
            }
            match(place, *film, rhythm.gap > 0 ? ByOrderConfidence : ByLooseOrderConfidence,
                  say("by the order"));
            last = place;
            lastBegan = film->began;
        }
        m_free = std::move(left);
    }

    /// A film that is half as long again as the others may show the next boat too.
    void takeSecondBoats() {
        constexpr double Unusual = 1.5;
        std::vector<double> lengths;
        for (const SeenFilm* const film : m_films)
            lengths.push_back(film->seconds);
        const double usual = middleOf(std::move(lengths), 0);
        if (usual <= 0)
            return;
        for (const SeenFilm* const film : m_films) {
            const auto place = placeMatched(*film);
            const bool isLong = film->seconds >= Unusual * usual;
            if (!place || !isLong || *place + 1 >= m_day.starts.size() || !isFree(*place + 1) ||
                findFilmFrom(m_day, film->from))
                continue;
            const double after = m_day.starts[*place + 1].starttime + m_offset - film->began;
            if (!m_areTimed || (after >= 0 && after + usual / 2 <= film->seconds))
                match(*place + 1, *film, SecondBoatConfidence,
                      say("the second boat of a long film"));
        }
    }

    const RaceDay& m_day;
    std::vector<const SeenFilm*> m_films;  ///< as they were recorded
    std::vector<const SeenFilm*> m_free;   ///< of the day, in that order, without a start
    std::vector<const SeenFilm*> m_others; ///< likewise, of other days
    std::map<std::int64_t, std::size_t> m_placeOf;
    std::set<std::int64_t> m_taken;
    bool m_areTimed = false;
    double m_offset = 0;
    DayMatching m_result;
};

} // namespace

DayMatching matchFilms(const RaceDay& day, std::span<const SeenFilm> films) {
    return FilmMatching(day, films).make();
}

} // namespace kavela
