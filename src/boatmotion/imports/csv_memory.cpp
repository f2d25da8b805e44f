#include "boatmotion/imports/csv_memory.h"

#include <sstream>

namespace kavela {

namespace {

constexpr std::size_t MostRemembered = 20;
constexpr char TitleEnd = '\x1f';
constexpr char NumbersEnd = '\t';

std::string titlesText(std::span<const std::string> titles) {
    std::string text;
    for (const std::string& title : titles)
        text += title + TitleEnd;
    return text;
}

std::string_view titlesIn(std::string_view remembered) {
    const std::size_t end = remembered.find(NumbersEnd);
    return end == remembered.npos ? std::string_view() : remembered.substr(end + 1);
}

/// One of an enumeration of so many.
template <class Choice>
bool take(std::istream& numbers, Choice& choice, int count) {
    int number = 0;
    if (!(numbers >> number) || number < 0 || number >= count)
        return false;
    choice = static_cast<Choice>(number);
    return true;
}

bool takeAll(std::istream& numbers, CsvMapping& mapping, std::size_t columns) {
    int separator = 0;
    bool comma = false;
    bool up = false;
    if (!(numbers >> separator) || !(numbers >> comma))
        return false;
    const bool isWhole = take(numbers, mapping.time, 5) && take(numbers, mapping.acceleration, 2) &&
                         take(numbers, mapping.rotation, 2) && take(numbers, mapping.angle, 2) &&
                         take(numbers, mapping.speed, 2) && (numbers >> up);
    if (!isWhole)
        return false;
    mapping.separator = static_cast<char>(separator);
    mapping.hasDecimalComma = comma;
    mapping.readsUpAtRest = up;
    mapping.columns.assign(columns, CsvQuantity::None);
    for (CsvQuantity& column : mapping.columns)
        if (!take(numbers, column, static_cast<int>(CsvQuantities)))
            return false;
    return true;
}

} // namespace

std::string rememberedText(const CsvMapping& mapping, std::span<const std::string> titles) {
    std::ostringstream text;
    text << static_cast<int>(mapping.separator) << ' ' << mapping.hasDecimalComma << ' '
         << static_cast<int>(mapping.time) << ' ' << static_cast<int>(mapping.acceleration) << ' '
         << static_cast<int>(mapping.rotation) << ' ' << static_cast<int>(mapping.angle) << ' '
         << static_cast<int>(mapping.speed) << ' ' << mapping.readsUpAtRest;
    for (const CsvQuantity column : mapping.columns)
        text << ' ' << static_cast<int>(column);
    text << NumbersEnd << titlesText(titles);
    return text.str();
}

std::optional<CsvMapping> rememberedMapping(std::span<const std::string> remembered,
                                            std::span<const std::string> titles,
                                            const CsvMapping& guess) {
    const std::string wanted = titlesText(titles);
    for (const std::string& text : remembered) {
        if (titlesIn(text) != wanted)
            continue;
        CsvMapping mapping = guess;
        std::istringstream numbers(text.substr(0, text.find(NumbersEnd)));
        if (takeAll(numbers, mapping, titles.size()) && mapping.separator == guess.separator &&
            !faultOf(mapping))
            return mapping;
    }
    return std::nullopt;
}

std::vector<std::string> withMapping(std::vector<std::string> remembered, const CsvMapping& mapping,
                                     std::span<const std::string> titles) {
    const std::string wanted = titlesText(titles);
    std::erase_if(remembered, [&](const std::string& text) { return titlesIn(text) == wanted; });
    remembered.insert(remembered.begin(), rememberedText(mapping, titles));
    if (remembered.size() > MostRemembered)
        remembered.resize(MostRemembered);
    return remembered;
}

} // namespace kavela
