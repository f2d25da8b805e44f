#include "vision/path_csv.h"

#include <fmt/format.h>

#include <optional>

namespace kavela {

namespace {

std::string csvNumber(const std::optional<double>& value, int decimals) {
    return value ? fmt::format("{:.{}f}", *value, decimals) : std::string();
}

template <class Place>
std::string csvPlace(const std::optional<Place>& place, int decimals) {
    return place ? csvNumber(place->x, decimals) + ',' + csvNumber(place->y, decimals) : ",";
}

} // namespace

std::string pathCsv(const std::vector<PathFigure>& figures) {
    std::string text = "frame,seconds,x,y,steadied_x,steadied_y,metres_x,metres_y,"
                       "metres_a_second,uncertainty,score\n";
    for (const PathFigure& figure : figures)
        text += fmt::format("{},{},{},{},{},{},{},{}\n", figure.frame, csvNumber(figure.seconds, 6),
                            csvPlace(figure.place, 2), csvPlace(figure.steadied, 2),
                            csvPlace(figure.water, 3), csvNumber(figure.speed, 3),
                            csvNumber(figure.speedError, 3), csvNumber(figure.score, 3));
    return text;
}

} // namespace kavela
