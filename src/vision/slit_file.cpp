#include "vision/slit_file.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace fs = std::filesystem;

SlitLine lineOf(const slitline001& line) {
    return {
        {line.x1, line.y1}, {line.x2, line.y2}, line.fromLeft ? BoatsFrom::Left : BoatsFrom::Right};
}

BoatBox boatOf(const slitline001& line) {
    return {line.boatX, line.boatY, line.boatWidth, line.boatHeight};
}

fs::path slitFileOf(const fs::path& film) {
    fs::path path = film;
    path.replace_extension(".slit.json");
    return path;
}

std::optional<slitfile001> readSlitFile(const fs::path& path) {
    std::error_code error;
    if (!fs::exists(path, error))
        return std::nullopt;
    auto file = decode<slitfile001>(JsonDocument::fromFile(path));
    if (file.kavelaSlit != 1)
        throw DecodeError({"kavelaSlit", say("version {} is of a later release", file.kavelaSlit)});
    return file;
}

void writeSlitFile(const slitfile001& file, const fs::path& path) {
    writeFileSafely(path, encode(file));
}

bool isRefused(const slitline001& line, double seconds) {
    constexpr double Reach = 0.25;
    return std::ranges::any_of(line.refused, [&](const slitrefused001& refused) {
        return std::abs(refused.seconds - seconds) <= Reach;
    });
}

} // namespace kavela
