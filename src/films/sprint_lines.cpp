#include "films/sprint_lines.h"

#include "films/boat_way.h"
#include "films/fixed_scene.h"

namespace kavela::films {

namespace {

/// From bank to bank, with a little of both.
slitline001 lineAcross(double column, std::int64_t split) {
    constexpr double Bank = 9;
    constexpr double BoxWidth = 56; // without the thin ends of a hull
    constexpr double BoxHeight = 33;
    slitline001 line;
    line.split = split;
    line.x1 = column;
    line.y1 = WaterTop - Bank;
    line.x2 = column;
    line.y2 = WaterBottom - Bank;
    line.fromLeft = false; // of who looks down the line
    line.boatX = column - BoatLength;
    line.boatY = MidStream - BoxHeight / 2;
    line.boatWidth = BoxWidth;
    line.boatHeight = BoxHeight;
    return line;
}

} // namespace

slitfile002 sprintLines() {
    slitfile002 file;
    file.width = FilmWidth;
    file.height = FilmHeight;
    file.lines = {lineAcross(FixedScene::StartColumn, 0), lineAcross(FixedScene::FinishColumn, 1)};
    return file;
}

} // namespace kavela::films
