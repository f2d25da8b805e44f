#include "cli/strokes_profile.h"

#include "common/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <string_view>
#include <utility>

namespace kavela::cli {

namespace {

constexpr std::array<std::pair<std::string_view, Mount>, 6> Sides{{{"top", Mount::TopToBow},
                                                                   {"bottom", Mount::BottomToBow},
                                                                   {"right", Mount::RightToBow},
                                                                   {"left", Mount::LeftToBow},
                                                                   {"back", Mount::BackToBow},
                                                                   {"screen", Mount::ScreenToBow}}};

constexpr std::array<std::pair<std::string_view, BoatClass>, 10> Boats{
    {{"k1", BoatClass::Kayak},
     {"k1m", BoatClass::Kayak},
     {"k1w", BoatClass::Kayak},
     {"c1", BoatClass::Canoe},
     {"c1m", BoatClass::Canoe},
     {"c1w", BoatClass::Canoe},
     {"c2", BoatClass::Canoe},
     {"c2m", BoatClass::Canoe},
     {"kayak", BoatClass::Kayak},
     {"canoe", BoatClass::Canoe}}};

/// What a word stands for in a table, in small letters or capitals.
template <class Table>
auto valueOf(const Table& table, std::string word)
    -> std::optional<typename Table::value_type::second_type> {
    std::ranges::transform(word, word.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
    for (const auto& [name, value] : table)
        if (name == word)
            return value;
    return std::nullopt;
}

/// A whole text as a number, with a point or a comma.
std::optional<double> numberOf(std::string text) {
    std::ranges::replace(text, ',', '.');
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    const bool isWhole = error == std::errc() && stop == end;
    return isWhole ? std::optional(value) : std::nullopt;
}

Complaint numberWithin(double least, double most, const char* unit) {
    return [=](const std::string& text) {
        const auto value = numberOf(text);
        return value && *value >= least && *value <= most
                   ? std::string()
                   : say("\"{}\" is no number from {:g} to {:g} {}.", text, least, most, unit);
    };
}

template <class Table>
Complaint wordOf(const Table& table) {
    return [&table](const std::string& text) {
        if (valueOf(table, text))
            return std::string();
        std::string names;
        for (const auto& [name, value] : table)
            names += (names.empty() ? "" : ", ") + std::string(name);
        return say("\"{}\" is none of: {}.", text, names);
    };
}

} // namespace

MotionProfile StrokesProfile::over(MotionProfile profile) const {
    profile.mass = mass.value_or(profile.mass);
    profile.drag = drag.value_or(profile.drag);
    profile.boat = boat.value_or(profile.boat);
    if (bow)
        profile.mount = bow;
    return profile;
}

void addProfileOptions(Command command, StrokesProfile& profile) {
    command
        .option(
            "--bow", [&](const std::string& text) { profile.bow = valueOf(Sides, text); },
            "Side of the phone that points to the bow, where fixes do not tell: top, bottom, "
            "right, left, back or screen")
        .check(wordOf(Sides));
    command
        .option(
            "--mass", [&](const std::string& text) { profile.mass = numberOf(text); },
            "Athlete, boat and kit in kg")
        .check(numberWithin(20, 300, "kg"));
    command
        .option(
            "--drag", [&](const std::string& text) { profile.drag = numberOf(text); },
            "Resistance of the hull over the square of its speed in N·s²/m²")
        .check(numberWithin(0, 50, "N·s²/m²"));
    command
        .option(
            "--boat", [&](const std::string& text) { profile.boat = valueOf(Boats, text); },
            "Class of boat: k1, c1, c2, kayak or canoe")
        .check(wordOf(Boats));
}

} // namespace kavela::cli
