#include "desktop/numbered_film.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace kavela::test {

namespace fs = std::filesystem;

namespace {

constexpr int Digits = 16; // of two, the lowest first, as stripes over the upper third

std::string commandFor(const fs::path& film) {
    const std::string length = "r=50:d=" + std::to_string(NumberedFrames / NumberedRate);
    return "ffmpeg -v error -y -filter_complex \""
           "color=black:s=16x2:" +
           length +
           ",format=gray,geq=lum='255*gt(bitand(N\\,pow(2\\,X))\\,0)',"
           "scale=1920:360:flags=neighbor,setsar=1,format=yuv420p[number];"
           "testsrc2=s=1920x720:" +
           length +
           ",format=yuv420p[moving];[number][moving]vstack\" "
           "-c:v libx264 -preset ultrafast -bf 2 -g 250 -keyint_min 250 -sc_threshold 0 '" +
           film.string() + "'";
}

} // namespace

fs::path numberedFilm() {
    const fs::path kept = fs::path(KAVELA_FILM_FOLDER) / "numbered-square-1080p50.mp4";
    if (fs::exists(kept))
        return kept;
    fs::create_directories(kept.parent_path());
    // Two test programs can make it at once.
    const fs::path fresh = kept.parent_path() / (std::to_string(::getpid()) + "-numbered.mp4");
    if (std::system(commandFor(fresh).c_str()) != 0)
        throw std::runtime_error("failed: " + commandFor(fresh));
    fs::rename(fresh, kept);
    return kept;
}

int numberIn(const QImage& picture) {
    int number = 0;
    for (int digit = 0; digit < Digits; ++digit) {
        const int x = picture.width() * (2 * digit + 1) / (2 * Digits);
        if (qGray(picture.pixel(x, picture.height() / 6)) > 127)
            number |= 1 << digit;
    }
    return number;
}

} // namespace kavela::test
