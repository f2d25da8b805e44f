#include "cli/selection_text.h"

#include "common/display_text.h"
#include "common/number_text.h"
#include "common/text.h"

#include <algorithm>

namespace kavela::cli {

namespace {

constexpr int WidestAthlete = 32;
constexpr int NarrowestPart = 10;
constexpr int WidestPart = 17;
constexpr int ScoreWidth = 8;

/// A dash for a race without a result.
std::string partText(const ScorePart& part) {
    const std::string text =
        part.percentage == MissingPercentage ? "-" : saidNumber(hundredthsText(part.percentage));
    return part.fate == ResultFate::Counted ? text + ' ' : '(' + text + ')';
}

int nameWidth(const selectionracesStruct_v3& document) {
    int width = 4;
    for (const srCategoryStruct_v3& category : document.categories)
        for (const srAthleteStruct_v3& athlete : category.athletes)
            width = std::max(width, displayWidth(printable(athlete.name)));
    return std::min(width, WidestAthlete);
}

/// How wide a column of percentages is: the names of the races stand above them.
int partWidth(const selectionracesStruct_v3& document) {
    int width = NarrowestPart;
    for (const sRaceStruct& race : document.races)
        width = std::max(width, displayWidth(printable(race.location)) + 3);
    return std::min(width, WidestPart);
}

std::string locationText(const sRaceStruct& race, int width) {
    const std::string text = printable(race.location);
    return displayWidth(text) > width ? fitted(text, width) : text;
}

/// The widths of the columns that depend on the file.
struct Widths {
    int name = 0;
    int part = 0;
};

std::string headText(const selectionracesStruct_v3& document, BonusKind bonus,
                     const Widths& widths) {
    std::string text = "     " + fitted("Name", widths.name);
    for (const sRaceStruct& race : document.races)
        text += rightAligned(locationText(race, widths.part - 3) + ' ', widths.part);
    if (bonus)
        text += rightAligned("Bonus ", widths.part);
    return text + rightAligned("Score", ScoreWidth) + '\n';
}

std::string lineText(const srAthleteStruct_v3& athlete, const Standing& standing, BonusKind bonus,
                     const Widths& widths) {
    std::string text = rightAligned(std::to_string(standing.rank), 3) + "  " +
                       fitted(printable(athlete.name), widths.name);
    for (const ScorePart& part : standing.score.races)
        text += rightAligned(partText(part), widths.part);
    if (bonus)
        text += rightAligned(standing.score.bonus ? partText(*standing.score.bonus) : "- ",
                             widths.part);
    return text + rightAligned(saidNumber(hundredthsText(standing.score.score)), ScoreWidth) + '\n';
}

} // namespace

std::string selectionText(const selectionracesStruct_v3& document, BonusKind bonus) {
    const Widths widths{nameWidth(document), partWidth(document)};
    std::string text;
    for (const srCategoryStruct_v3& category : document.categories) {
        text += (text.empty() ? "" : "\n") + printable(category.cat) + '\n' +
                headText(document, bonus, widths);
        for (const Standing& standing : standings(category, document.races.size(), bonus))
            text += lineText(category.athletes[standing.athlete], standing, bonus, widths);
    }
    return text;
}

} // namespace kavela::cli
