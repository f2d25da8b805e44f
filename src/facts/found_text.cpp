#include "facts/found_text.h"

#include "common/display_text.h"
#include "common/number_text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

std::string filmOf(const FactStore& facts, const FoundPlace& place) {
    const auto films = facts.filmsOf(facts.runs()[place.run]);
    return place.film < films.size() ? validUtf8(facts.text(films[place.film])) : std::string();
}

/// Never before the frame that was marked, which would show the one before it.
CMTime momentOf(double seconds) {
    constexpr std::int32_t Scale = 1'000'000'000;
    constexpr std::uint32_t Valid = 1;
    return {static_cast<std::int64_t>(std::ceil(seconds * Scale)), Scale, Valid, 0};
}

} // namespace

FoundPlaceTexts foundPlaceTexts(const QueryAnswer& answer, std::size_t row) {
    const FoundPlace place = answer.place(row);
    const RunRow& run = answer.facts().runs()[place.run];
    FoundPlaceTexts texts;
    texts.file = validUtf8(answer.facts().pathOf(run).native());
    texts.run = std::to_string(run.number);
    if (place.section)
        texts.split = std::to_string(*place.section);
    texts.film = filmOf(answer.facts(), place);
    if (!std::isnan(place.at))
        texts.at = plainText(place.at);
    return texts;
}

bool isNumber(const FoundColumn& column) {
    return column.isFigure || !column.column || column.column->kind == ColumnKind::Number ||
           column.column->kind == ColumnKind::Measure;
}

bool isOfPlace(const FoundColumn& column) {
    return std::ranges::count(FoundPlaceTitles, column.name) > 0;
}

std::string findCsv(const QueryAnswer& answer) {
    std::string text;
    for (const std::string_view title : FoundPlaceTitles)
        text += (text.empty() ? "" : ";") + std::string(title);
    for (const FoundColumn& column : answer.columns())
        if (!isOfPlace(column))
            text += ';' + column.name;
    text += '\n';
    for (std::size_t row = 0; row < answer.size(); ++row) {
        std::string line;
        for (const std::string& field : foundPlaceTexts(answer, row).all())
            line += csvField(field) + ';';
        line.pop_back();
        for (std::size_t i = 0; i < answer.columns().size(); ++i) {
            if (isOfPlace(answer.columns()[i]))
                continue;
            const FoundValue value = answer.value(row, i);
            const bool isPlain = isNumber(answer.columns()[i]) && !std::isnan(value.number);
            line += ';' + csvField(isPlain ? plainText(value.number) : answer.text(row, i));
        }
        text += line + '\n';
    }
    return text;
}

Place shownPlace(const QueryAnswer& answer, std::size_t row) {
    const FoundPlace found = answer.place(row);
    const RunRow& run = answer.facts().runs()[found.run];
    Place place;
    place.file = answer.facts().pathOf(run);
    place.run = run.number;
    place.split = found.section;
    place.gate = found.gate;
    place.entry = found.entry;
    if (found.film == 0 && std::isfinite(found.at))
        place.moment = momentOf(found.at);
    return place;
}

} // namespace kavela
