#include "compose/time_map.h"

#include "common/error.h"
#include "common/text.h"

#include <algorithm>
#include <string>

namespace kavela {

namespace {

/// Moments are sums of doubles: what is so near to the next piece belongs to it.
constexpr double NextPieceSlack = 1e-9;

std::optional<double> markOf(const FilmMarks& marks, std::size_t mark) {
    return mark < marks.size() ? marks[mark] : std::nullopt;
}

double requiredMark(const std::vector<FilmMarks>& films, std::size_t film, std::size_t mark) {
    if (const auto seconds = markOf(films[film], mark))
        return *seconds;
    throw DecodeError(
        {"films[" + std::to_string(film) + "]",
         mark == 0 ? say("the start is not marked on this film, so it cannot be held there")
                   : say("split {} is not marked on this film, so it cannot be held there", mark)});
}

/// Seconds of the first film's run at one of its marks.
double commonOfMark(const FilmMarks& first, std::size_t mark) {
    const auto start = markOf(first, 0);
    return start ? *markOf(first, mark) - *start : 0;
}

/// The marks at which all films can be held: those that every film has, each behind the one before.
std::vector<std::size_t> sharedMarks(const std::vector<FilmMarks>& films) {
    std::vector<std::size_t> shared;
    for (std::size_t mark = 0; mark < films.front().size(); ++mark) {
        const bool isShared = std::ranges::all_of(films, [&](const FilmMarks& marks) {
            const auto at = markOf(marks, mark);
            return at && (shared.empty() || *at > *markOf(marks, shared.back()));
        });
        if (isShared)
            shared.push_back(mark);
    }
    return shared;
}

} // namespace

TimeMap::TimeMap(const std::vector<FilmMarks>& films, Synchronise how, std::size_t split)
    : m_pieces(films.size()) {
    if (films.empty())
        return;
    if (how == Synchronise::Start || how == Synchronise::Split)
        holdAt(films, how == Synchronise::Split ? split : 0);
    else
        holdAtEvery(films, how == Synchronise::Waiting);
}

void TimeMap::holdAt(const std::vector<FilmMarks>& films, std::size_t mark) {
    for (std::size_t i = 0; i < films.size(); ++i) {
        const double film = requiredMark(films, i, mark);
        m_pieces[i] = {{.common = commonOfMark(films.front(), mark), .film = film}};
    }
}

void TimeMap::holdAtEvery(const std::vector<FilmMarks>& films, bool isWaiting) {
    const std::vector<std::size_t> shared = sharedMarks(films);
    if (shared.empty()) { // says which film lacks its start
        holdAt(films, 0);
        return;
    }
    double common = commonOfMark(films.front(), shared.front());
    for (std::size_t k = 0; k + 1 < shared.size(); ++k) {
        const auto length = [&](const FilmMarks& marks) {
            return *marks[shared[k + 1]] - *marks[shared[k]];
        };
        const double longest = length(*std::ranges::max_element(films, {}, length));
        for (std::size_t i = 0; i < films.size(); ++i) {
            const double from = *films[i][shared[k]];
            const double own = length(films[i]);
            const double rate = isWaiting || own == longest ? 1 : own / longest;
            m_pieces[i].push_back({.common = common, .film = from, .rate = rate});
            if (isWaiting && own < longest)
                m_pieces[i].push_back({common + own, from + own, 0, longest - own});
        }
        common += longest;
    }
    for (std::size_t i = 0; i < films.size(); ++i)
        m_pieces[i].push_back({.common = common, .film = *films[i][shared.back()]});
}

const TimePiece& TimeMap::pieceAt(std::size_t film, double common) const {
    const auto& pieces = m_pieces.at(film);
    const auto after =
        std::ranges::upper_bound(pieces, common + NextPieceSlack, {}, &TimePiece::common);
    return after == pieces.begin() ? pieces.front() : *std::prev(after);
}

double TimeMap::filmSeconds(std::size_t film, double common) const {
    const TimePiece& piece = pieceAt(film, common);
    // Before the first place where films are held together each runs at its own speed.
    const double rate = common < piece.common && &piece == &m_pieces[film].front() ? 1 : piece.rate;
    return piece.film + (common - piece.common) * rate;
}

double TimeMap::commonAt(std::size_t film, double filmSeconds) const {
    const auto& pieces = m_pieces.at(film);
    // What a film waits at begins with the piece that leads there.
    const auto after =
        std::ranges::lower_bound(pieces, filmSeconds - NextPieceSlack, {}, &TimePiece::film);
    if (after != pieces.end() && after->film <= filmSeconds + NextPieceSlack)
        return after->common;
    const TimePiece& piece = after == pieces.begin() ? pieces.front() : *std::prev(after);
    const bool isBefore = filmSeconds < piece.film;
    const double rate = isBefore || piece.rate <= 0 ? 1 : piece.rate;
    return piece.common + (filmSeconds - piece.film) / rate;
}

} // namespace kavela
