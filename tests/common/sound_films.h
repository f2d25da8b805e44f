#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace kavela::test {

/// When the tone begins in the films below, and for how long it sounds, in seconds.
inline constexpr double ToneStart = 2.3;
inline constexpr double ToneLength = 0.5;

/// Runs the film tool; throws std::runtime_error when it fails.
inline void makeWithTool(const std::string& arguments) {
    const std::string line = "ffmpeg -v error -nostdin -y " + arguments;
    if (std::system(line.c_str()) != 0)
        throw std::runtime_error("failed: " + line);
}

/// Six seconds of pictures at 25 a second, silent but for one tone. `coding` are the arguments for
/// the file's codings and container, `rate` and `layout` those of the sound before it is coded.
inline void makeToneFilm(const std::filesystem::path& target, const std::string& coding,
                         int rate = 48000, const std::string& layout = "stereo") {
    const std::string tone =
        "aevalsrc='0.5*sin(2*PI*1000*(t-" + std::to_string(ToneStart) + "))*between(t," +
        std::to_string(ToneStart) + "," + std::to_string(ToneStart + ToneLength) +
        ")':s=" + std::to_string(rate) + ":d=6,aformat=channel_layouts=" + layout;
    makeWithTool("-f lavfi -i testsrc2=s=160x90:r=25:d=6 -f lavfi -i \"" + tone +
                 "\" -c:v libx264 -preset ultrafast -g 50 " + coding + " '" + target.string() +
                 "'");
}

} // namespace kavela::test
