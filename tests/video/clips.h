#pragma once

#include "video/index.h"

#include <filesystem>
#include <string>
#include <vector>

/// Films made for the tests: each frame carries its number as black and white blocks.
namespace kavela {

inline constexpr VideoSize ClipSize{320, 180};

/// How a film is made. `{}` in the arguments of a film from another stands for that film's path.
struct ClipRecipe {
    std::string name; ///< with the extension that chooses the container
    std::string rate; ///< frames a second of what goes in
    int frames = 0;
    std::string arguments;
    std::string from;      ///< name of the film that it is made from; empty: from numbered frames
    int firstPercent = 0;  ///< of the finished file's bytes: only those from here
    int lastPercent = 100; ///< to here are kept
};

/// The films, in an order in which each comes after the one that it is made from.
[[nodiscard]] const std::vector<ClipRecipe>& clipRecipes();

/// The film's path; made on first use and kept in the build tree. Throws std::runtime_error with
/// the command when it cannot be made.
[[nodiscard]] std::filesystem::path clip(const std::string& name);

/// The stamps that the prober of the decoding libraries sees, frame by frame, in ticks.
[[nodiscard]] std::vector<std::int64_t> probedStamps(const std::string& name);

/// The number in a frame's blocks.
[[nodiscard]] int numberIn(const AVFrame& frame);

} // namespace kavela
