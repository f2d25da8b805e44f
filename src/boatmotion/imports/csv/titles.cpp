#include "boatmotion/imports/csv/titles.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace kavela::imports {

namespace {

using Words = std::vector<std::string>;

bool isUpper(char c) {
    return c >= 'A' && c <= 'Z';
}

bool isLetter(char c) {
    return isUpper(c) || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

/// "userAccelX" and "user_accel x" are user, accel, x.
Words wordsOf(std::string_view title) {
    Words words;
    bool isInWord = false;
    for (std::size_t i = 0; i < title.size(); ++i) {
        const char c = title[i];
        if (!isLetter(c)) {
            isInWord = false;
            continue;
        }
        const bool beginsWord = isUpper(c) && i > 0 && !isUpper(title[i - 1]);
        if (!isInWord || beginsWord)
            words.emplace_back();
        words.back() += isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c;
        isInWord = true;
    }
    return words;
}

bool hasAny(const Words& words, std::initializer_list<std::string_view> wanted) {
    return std::ranges::any_of(words, [&](const std::string& word) {
        return std::ranges::find(wanted, word) != wanted.end();
    });
}

/// Splits off the unit in brackets at the end.
std::string takeUnit(std::string_view& title) {
    const auto open = title.find_first_of("([");
    if (open == title.npos)
        return {};
    const auto close = title.find_first_of(")]", open);
    std::string unit(title.substr(open + 1, close == title.npos ? close : close - open - 1));
    title = title.substr(0, open);
    std::ranges::transform(unit, unit.begin(), [](char c) {
        return isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c;
    });
    return unit;
}

/// Titles in short: "ax", "accX", "gFx", "wz". What they are goes before the axis.
Words withAxisApart(const Words& words) {
    constexpr std::array<std::string_view, 15> Stems = {
        "a",    "acc", "accel", "gf", "lin",           "la", "w", "gyr", "gyro", "rot",
        "grav", "g",   "user",  "f",  "beschleunigung"};
    Words apart;
    for (const std::string& word : words) {
        const std::string_view stem = std::string_view(word).substr(0, word.size() - 1);
        const bool endsInAxis = word.size() > 1 && word.back() >= 'x' && word.back() <= 'z';
        if (endsInAxis && std::ranges::find(Stems, stem) != Stems.end()) {
            apart.emplace_back(stem);
            apart.emplace_back(1, word.back());
        } else {
            apart.push_back(word);
        }
    }
    return apart;
}

std::optional<int> axisOf(const Words& words) {
    for (const std::string& word : words)
        if (word == "x" || word == "y" || word == "z")
            return word.front() - 'x';
    return std::nullopt;
}

CsvQuantity onAxis(CsvQuantity x, int axis) {
    return static_cast<CsvQuantity>(static_cast<int>(x) + axis);
}

/// The words are those of English and German loggers: a telephone writes in the language that it
/// is set to.
CsvQuantity plainQuantity(const Words& words) {
    if (hasAny(words, {"lat", "latitude", "breite", "breitengrad"}))
        return CsvQuantity::Latitude;
    if (hasAny(words,
               {"lon", "lng", "long", "longitude", "länge", "laenge", "längengrad", "laengengrad"}))
        return CsvQuantity::Longitude;
    if (hasAny(words, {"speed", "velocity", "geschwindigkeit"}))
        return CsvQuantity::Speed;
    if (hasAny(words,
               {"hr", "bpm", "heart", "heartrate", "pulse", "puls", "herzfrequenz", "herzrate"}))
        return CsvQuantity::HeartRate;
    if (hasAny(words, {"pitch", "nicken", "nickwinkel"}))
        return CsvQuantity::Pitch;
    if (hasAny(words, {"roll", "rollen", "rollwinkel"}))
        return CsvQuantity::Roll;
    if (hasAny(words, {"yaw", "azimuth", "gieren", "gierwinkel", "azimut"}))
        return CsvQuantity::Yaw;
    if (hasAny(words, {"time", "timestamp", "date", "datetime", "seconds", "elapsed", "t", "ts",
                       "millis", "milliseconds", "zeit", "uptime", "zeitstempel", "uhrzeit",
                       "datum", "sekunden", "millisekunden"}))
        return CsvQuantity::Time;
    return CsvQuantity::None;
}

/// Of a title with an axis.
CsvTitle axisQuantity(const Words& words, int axis) {
    const bool namesGravity =
        hasAny(words, {"gravity", "grav", "schwerkraft", "erdbeschleunigung", "gravitation"});
    const bool excludes =
        hasAny(words, {"user", "linear", "lin", "la", "without", "no", "excluding",
                       "useracceleration", "linearacceleration", "lineare", "ohne",
                       "linearbeschleunigung", "nutzerbeschleunigung"});
    const bool isAcceleration =
        hasAny(words, {"acceleration", "accelerometer", "accel", "acc", "a", "gforce", "gf", "f",
                       "beschleunigung", "beschleunigungssensor", "gesamtbeschleunigung"});
    if (hasAny(words, {"rotation", "rotationrate", "gyroscope", "gyro", "gyr", "angular", "rot",
                       "omega", "w", "gyroskop", "drehrate", "drehung", "rotationsrate",
                       "winkelgeschwindigkeit", "drehgeschwindigkeit"}))
        return {onAxis(CsvQuantity::RotationX, axis), false, {}};
    if (excludes)
        return {onAxis(CsvQuantity::UserX, axis), true, {}};
    if (isAcceleration)
        return {onAxis(CsvQuantity::TotalX, axis),
                hasAny(words, {"total", "raw", "with", "including", "accelerometer", "mit",
                               "gesamtbeschleunigung", "beschleunigungssensor"}),
                {}};
    if (namesGravity)
        return {onAxis(CsvQuantity::GravityX, axis), false, {}};
    if (hasAny(words, {"g"}))
        return {onAxis(CsvQuantity::RotationX, axis), false, {}};
    return {};
}

} // namespace

CsvTitle readTitle(std::string_view title) {
    std::string unit = takeUnit(title);
    const Words words = withAxisApart(wordsOf(title));
    CsvTitle read;
    // Fields and errors of the sensors, which hold the same words.
    if (!hasAny(words, {"mag", "magnetic", "magnetometer", "accuracy", "bias", "quaternion",
                        "course", "heading", "variability", "max", "min", "magnetfeld",
                        "genauigkeit", "kurs", "richtung", "variabilität"})) {
        if (const auto axis = axisOf(words))
            read = axisQuantity(words, *axis);
        else
            read.quantity = plainQuantity(words);
    }
    if (unit.empty() && hasAny(words, {"ms", "millis", "milliseconds", "millisekunden"}))
        unit = "ms";
    if (unit.empty() && hasAny(words, {"ns", "nanoseconds"}))
        unit = "ns";
    if (unit.empty() && hasAny(words, {"deg", "dps"}))
        unit = "deg";
    if (unit.empty() && hasAny(words, {"kmh"}))
        unit = "km/h";
    read.unit = std::move(unit);
    return read;
}

} // namespace kavela::imports
