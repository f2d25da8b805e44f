#include "cli/selection_json.h"

#include "common/json_encode.h"

namespace kavela::cli {

namespace {

struct ResultJson {
    double resultTime = 0;
    std::int64_t pen = 0;
    double resultPer = 0;
    double resultxPer = 0;
};
BOOST_DESCRIBE_STRUCT(ResultJson, (), (resultTime, pen, resultPer, resultxPer))

struct AthleteJson {
    std::int64_t rank = 0;
    std::string name;
    double result = 0;
    std::vector<ResultJson> races;
};
BOOST_DESCRIBE_STRUCT(AthleteJson, (), (rank, name, result, races))

struct CategoryJson {
    std::string cat;
    std::vector<AthleteJson> athletes;
};
BOOST_DESCRIBE_STRUCT(CategoryJson, (), (cat, athletes))

struct SelectionJson {
    std::vector<sRaceStruct> races;
    std::vector<CategoryJson> categories;
};
BOOST_DESCRIBE_STRUCT(SelectionJson, (), (races, categories))

AthleteJson athleteJson(const srAthleteStruct_v3& athlete, std::int64_t rank, std::size_t races) {
    AthleteJson json{rank, athlete.name, athlete.result, {}};
    for (std::size_t i = 0; i < races; ++i) {
        const saRaceStruct& result = athlete.racedata[i];
        json.races.push_back({result.resultTime, result.pen, result.resultPer, result.resultxPer});
    }
    return json;
}

} // namespace

std::string selectionJson(const selectionracesStruct_v3& document, BonusKind bonus) {
    SelectionJson json{document.races, {}};
    for (const srCategoryStruct_v3& category : document.categories) {
        json.categories.push_back({category.cat, {}});
        for (const Standing& standing : standings(category, document.races.size(), bonus))
            json.categories.back().athletes.push_back(athleteJson(
                category.athletes[standing.athlete], standing.rank, document.races.size()));
    }
    return encode(json) + '\n';
}

} // namespace kavela::cli
