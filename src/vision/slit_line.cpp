#include "vision/slit_line.h"

#include "common/text.h"
#include "video/video_error.h"

#include <cmath>
#include <string>

namespace kavela {

namespace {

bool isOnPicture(const SlitPoint& point, VideoSize shown) {
    return point.x >= 0 && point.y >= 0 && point.x <= shown.width && point.y <= shown.height;
}

} // namespace

double lengthOf(const SlitLine& line) {
    return std::hypot(line.second.x - line.first.x, line.second.y - line.first.y);
}

SlitPoint crossingDirection(const SlitLine& line) {
    const double length = lengthOf(line);
    const double x = (line.second.x - line.first.x) / length;
    const double y = (line.second.y - line.first.y) / length;
    return line.from == BoatsFrom::Left ? SlitPoint{-y, x} : SlitPoint{y, -x};
}

void checkSlitLine(const SlitLine& line, VideoSize shown, const std::filesystem::path& film) {
    for (const SlitPoint& end : {line.first, line.second})
        if (!isOnPicture(end, shown))
            throw VideoError(
                film, say("the line's end at {}, {} lies outside the picture of {} × {} pixels",
                          std::lround(end.x), std::lround(end.y), shown.width, shown.height));
    if (!(lengthOf(line) >= ShortestSlit))
        throw VideoError(film,
                         say("the line is shorter than {} pixels", std::lround(ShortestSlit)));
}

} // namespace kavela
