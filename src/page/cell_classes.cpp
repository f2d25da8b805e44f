#include "page/cell_classes.h"

#include "common/text.h"
#include "page/html_text.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace kavela::page {

namespace {

std::string channel(double value) {
    return std::to_string(std::lround(value * 255));
}

/// What shines through stands on white, as in the table of the analyzer, on a dark page too.
std::string backgroundOf(const Colour& tint) {
    const std::string channels =
        channel(tint.red) + ' ' + channel(tint.green) + ' ' + channel(tint.blue);
    if (tint.alpha >= 1)
        return "rgb(" + channels + ')';
    std::array<char, 16> alpha{};
    std::snprintf(alpha.data(), alpha.size(), "%.2f", tint.alpha);
    const std::string seen = "rgb(" + channels + '/' + alpha.data() + ')';
    return "linear-gradient(" + seen + ',' + seen + "),#fff";
}

std::string classOf(const TableCell& cell) {
    std::string name;
    if (cell.background)
        name = 'k' + std::to_string(static_cast<int>(*cell.band));
    else if (cell.foreground)
        name = *cell.foreground == NamedGreen ? "w" : "x";
    return cell.isGreyed() ? name + (name.empty() ? "y" : " y") : name;
}

} // namespace

std::string tableCell(const TableCell& cell) {
    const std::string name = classOf(cell);
    const std::string text = escaped(saidNumber(cell.text));
    std::string made = "<td";
    if (!name.empty())
        made += name.find(' ') == std::string::npos ? " class=" + name : " class=\"" + name + '"';
    return made + (cell.isBest ? "><b>" + text + "*</b>" : ">" + text);
}

std::string cellStyle(ColourScale scale) {
    std::string rules;
    for (int place = static_cast<int>(Band::Fastest); place <= static_cast<int>(Band::Marked);
         ++place) {
        const auto tint = bandColour(static_cast<Band>(place), scale);
        if (!tint)
            continue;
        const std::string name = ".k" + std::to_string(place);
        rules += name + "{background:" + backgroundOf(*tint) + ";color:#000}" + name +
                 ".y{background:" + backgroundOf(faded(*tint)) + ";color:#444}";
    }
    return rules +
           (scale == ColourScale::BlueOrange
                ? ":root{--w:#1b62a5;--x:#a35200}@media(prefers-color-scheme:dark){:root{"
                  "--w:#6cb6f0;--x:#f2a34e}}"
                : ":root{--w:#0b7a36;--x:#c02727}@media(prefers-color-scheme:dark){:root{"
                  "--w:#4cd97b;--x:#ff7b72}}") +
           ".w{color:var(--w)}.x{color:var(--x)}.y{color:var(--soft);font-style:italic}";
}

} // namespace kavela::page
