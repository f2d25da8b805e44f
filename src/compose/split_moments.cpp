#include "compose/split_moments.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace kavela {

namespace {

std::optional<std::size_t> splitAt(double common, const std::vector<SplitMoment>& splits) {
    constexpr double Same = 1e-6; // seconds: it went through a widget
    const auto found = std::ranges::find_if(
        splits, [&](const SplitMoment& moment) { return std::abs(moment.common - common) < Same; });
    return found == splits.end() ? std::nullopt : std::optional(found->split);
}

} // namespace

std::vector<SplitMoment> splitMomentsOf(const Composition& composition, const TimeMap& map) {
    std::size_t most = 0;
    for (const ComposedFilm& film : composition.films)
        most = std::max(most, film.run.marks.size());
    std::vector<SplitMoment> moments;
    for (std::size_t split = 0; split < most; ++split) {
        double first = std::numeric_limits<double>::infinity();
        for (std::size_t film = 0; film < composition.films.size(); ++film) {
            const FilmMarks& marks = composition.films[film].run.marks;
            if (split < marks.size() && marks[split])
                first = std::min(first, map.commonAt(film, *marks[split]));
        }
        if (std::isfinite(first))
            moments.push_back({split, first});
    }
    return moments;
}

CommonRange choiceRangeOf(const Composition& composition, const TimeMap& map,
                          const std::vector<double>& lengths, const CommonRange& shown) {
    CommonRange range = shown;
    const auto widen = [&](std::size_t film, double seconds, double margin) {
        const double common = map.commonAt(film, seconds);
        range.from = std::min(range.from, common - margin);
        range.to = std::max(range.to, common + margin);
    };
    const bool isMarked = std::ranges::any_of(composition.films, [](const ComposedFilm& film) {
        return std::ranges::count_if(film.run.marks, [](const auto& mark) { return !!mark; }) > 1;
    });
    for (std::size_t film = 0; film < composition.films.size(); ++film) {
        if (isMarked) {
            for (const auto& mark : composition.films[film].run.marks)
                if (mark)
                    widen(film, *mark, ChoiceMarginSeconds);
        } else if (film < lengths.size() && lengths[film] > 0) {
            widen(film, 0, 0);
            widen(film, lengths[film], 0);
        }
    }
    return range;
}

RangeChoice rangeBetween(double from, double to, const std::vector<SplitMoment>& splits) {
    RangeChoice range;
    range.kind = RangeKind::Free;
    range.from = std::min(from, to);
    range.to = std::max(from, to);
    const auto first = splitAt(range.from, splits);
    const auto last = splitAt(range.to, splits);
    if (first && last && *first < *last) {
        range.kind = RangeKind::Splits;
        range.fromSplit = *first;
        range.toSplit = *last;
    }
    return range;
}

} // namespace kavela
