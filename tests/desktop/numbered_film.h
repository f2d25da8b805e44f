#pragma once

#include <QImage>

#include <filesystem>

/// A film as cameras make them: 1080p at 50 frames a second, with a key frame every 5 seconds.
namespace kavela::test {

inline constexpr int NumberedFrames = 1500;
inline constexpr int NumberedRate = 50; ///< frames a second

/// Each of its frames carries its number. Made on first use and kept.
[[nodiscard]] std::filesystem::path numberedFilm();

/// The number in a picture of the film, whatever its size.
[[nodiscard]] int numberIn(const QImage& picture);

} // namespace kavela::test
