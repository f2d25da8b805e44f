#pragma once

#include <optional>
#include <string>
#include <vector>

/// Which films somebody has seen already.
namespace kavela {

/// Films that are remembered as watched; the first ones are forgotten then.
inline constexpr std::size_t MostWatchedFilms = 5'000;

/// So much of a film has to be shown for it to be watched.
inline constexpr double WatchedFraction = 0.8;

/// How much of a film was shown while it played, whichever way: what was passed over by a jump is
/// not seen, and what was seen twice counts once.
class ShownPart {
public:
    /// Another film is in front.
    void clear();
    /// A frame is shown, at a number of seconds from the film's beginning.
    void show(double seconds, bool isPlaying);
    /// Of a film so many seconds long, 0 to 1.
    [[nodiscard]] double fractionOf(double length) const;
    [[nodiscard]] bool isWatched(double length) const {
        return fractionOf(length) >= WatchedFraction;
    }

private:
    std::vector<bool> m_tenths; ///< of a second, from the beginning
    std::optional<double> m_last;
};

/// Notes a film as the one that was watched last. False when it was that already.
bool addWatched(std::vector<std::string>& watched, const std::string& film);

} // namespace kavela
