#include "sample/courses.h"

#include "sample/dice.h"

#include <algorithm>
#include <numeric>

namespace kavela::sample {

bool Course::isUpstream(std::int64_t gate) const {
    return std::ranges::find(upGates, gate) != upGates.end();
}

std::vector<std::vector<std::int64_t>> Course::sections() const {
    std::vector<std::vector<std::int64_t>> sections;
    std::int64_t gate = 0;
    for (const std::int64_t end : sectionEnds) {
        std::vector<std::int64_t>& section = sections.emplace_back();
        while (gate < end)
            section.push_back(++gate);
    }
    return sections;
}

std::vector<std::string> Course::titles() const {
    if (!sectionNames.empty())
        return sectionNames;
    std::vector<std::string> titles;
    for (const auto& section : sections()) {
        std::string& title = titles.emplace_back(std::to_string(section.front()));
        if (section.size() > 1)
            title += "-" + std::to_string(section.back());
    }
    return titles;
}

std::vector<double> Course::legs() const {
    Dice dice(place);
    std::vector<double> legs;
    for (std::int64_t gate = 1; gate <= gates(); ++gate)
        legs.push_back(isUpstream(gate) ? dice.between(5.2, 7.0) : dice.between(2.4, 3.9));
    legs.push_back(dice.between(3.6, 4.6));
    const double scale = bestSeconds / std::accumulate(legs.begin(), legs.end(), 0.0);
    for (double& leg : legs)
        leg *= scale;
    return legs;
}

Course riverside() {
    return {.place = "Riverside Park",
            .water = "White water",
            .upGates = {4, 8, 12, 15, 19, 22},
            .sectionEnds = {2, 4, 7, 9, 12, 14, 16, 19, 22, 24},
            .sectionNames = {"Start", "Mill", "Wave", "Pool", "Weir", "Slot", "Rock", "Drop",
                             "Gorge", "Finish"},
            .bestSeconds = 88.6,
            .latitude = 46.2213,
            .longitude = 14.6071};
}

Course oldMill() {
    return {.place = "Старая мельница",
            .water = "Moderate",
            .upGates = {5, 9, 12, 14, 17},
            .sectionEnds = {3, 5, 8, 10, 12, 15, 18},
            .sectionNames = {},
            .bestSeconds = 82.4,
            .latitude = 49.1602,
            .longitude = 20.2417};
}

Course highland() {
    return {.place = "Þverárgljúfur",
            .water = "White water",
            .upGates = {3, 6, 10, 14, 17, 20, 23},
            .sectionEnds = {2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 23, 25},
            .sectionNames = {},
            .bestSeconds = 96.8,
            .latitude = 64.0911,
            .longitude = -20.6543};
}

Course harbour() {
    return {.place = "Vieux-Port",
            .water = "Flat water",
            .upGates = {4, 8, 11, 15, 18},
            .sectionEnds = {4, 7, 10, 13, 16, 19},
            .sectionNames = {"Départ", "Ponton", "Digue", "Phare", "Quai", "Arrivée"},
            .bestSeconds = 85.2,
            .latitude = 43.3017,
            .longitude = -1.7744};
}

Course homeWater() {
    return {.place = "Home water",
            .water = "Moderate",
            .upGates = {3, 7, 11, 14, 18},
            .sectionEnds = {3, 5, 8, 11, 13, 15, 18, 20},
            .sectionNames = {},
            .bestSeconds = 86.0,
            .latitude = 47.5326,
            .longitude = 9.4415};
}

} // namespace kavela::sample
