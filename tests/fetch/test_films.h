#pragma once

#include <QByteArray>

#include <filesystem>
#include <map>

/// Films that servers of the tests have.
namespace kavela::test {

inline constexpr int TestFrames = 150; ///< three seconds

/// The bytes of a film; another one for each number.
[[nodiscard]] QByteArray testFilm(int number);

/// The files of a film in pieces by their names, its playlist "list.m3u8" among them. Throws
/// std::runtime_error where they cannot be made.
[[nodiscard]] std::map<QByteArray, QByteArray> testPieces();

/// How many pictures a film has; -1 for none that opens.
[[nodiscard]] int framesIn(const std::filesystem::path& film);

} // namespace kavela::test
