#include "sample/athletes.h"

#include "sample/dice.h"

#include <algorithm>
#include <span>

namespace kavela::sample {

namespace {

struct Entry {
    const char* name;
    const char* nationality;
    const char* partner = nullptr;
};

struct AthleteCategory {
    const char* label;
    std::int64_t firstBib;
    double pace; ///< of its fastest boat, against the fastest kayak
    std::span<const Entry> entries;
};

// Invented people: many of the surnames are words for water.
constexpr Entry MenInKayaks[] = {
    {"Joren Valkenhof", "NED"},   {"Mateo Arribalza", "ESP"},
    {"Élie Marchevault", "FRA"},  {"Ondřej Skalboř", "CZE"},
    {"Tobias Rennwald", "GER"},   {"Luka Brezovšnik", "SLO"},
    {"Callum Thornwick", "GBR"},  {"Nikola Dravinec", "CRO"},
    {"Michał Nurtowicz", "POL"},  {"Samuel Hradčanec", "SVK"},
    {"Giulio Fontebasso", "ITA"}, {"Тарас Криничук", "UKR"},
    {"水城 悠真", "JPN"},         {"凌波川", "CHN"},
    {"Åsmund Fjellvær", "NOR"},   {"Þórður Kvísldal", "ISL"},
    {"João Corguinho", "POR"},    {"Diego Quebrachal", "ARG"},
    {"Ethan Larkrill", "NZL"},    {"Owen Caskbrook", "USA"},
    {"Noël Aubrivière", "SUI"},   {"Lukas Wildbachner", "AUT"},
    {"Gáspár Zúgóvári", "HUN"},   {"Rhys Pentorran", "GBR"},
    {"Iker Urgaraitz", "ESP"},    {"Γιάννης Ρεματάς", "GRE"},
    {"Tomé Igarapava", "BRA"},    {"Kristo Kärestik", "EST"},
};
constexpr Entry WomenInKayaks[] = {
    {"Marit Elvestrøm", "NOR"},   {"Jana Peřejová", "CZE"},    {"Clémence Ruisselot", "FRA"},
    {"Нина Порожская", "KAZ"},    {"瀬音 ひなた", "JPN"},      {"Katja Sotočan", "SLO"},
    {"Freya Millbrace", "GBR"},   {"Lucía Torrentera", "ESP"}, {"Zofia Nurtówna", "POL"},
    {"Leonie Kehrwasser", "GER"}, {"Aroha Waimanuka", "NZL"},  {"Emília Prúdiková", "SVK"},
};
constexpr Entry MenInCanoes[] = {
    {"Benjamin Eddelston", "GBR"}, {"Matej Brzicák", "SVK"},  {"Anže Slapovnik", "SLO"},
    {"Vincent Gaudrive", "FRA"},   {"早瀬川 岳", "JPN"},      {"Paul Strudelmann", "GER"},
    {"Kacper Wartnurt", "POL"},    {"Dario Gorgazzi", "ITA"}, {"Ярослав Плёсов", "KAZ"},
};
constexpr Entry WomenInCanoes[] = {
    {"Eliška Tůňková", "CZE"},    {"Annika Stromwald", "GER"}, {"Maëlle Tourbillon", "FRA"},
    {"Олена Бистрик", "UKR"},     {"Ane Ibaiondo", "ESP"},     {"Sofia Cascatelli", "ITA"},
    {"Bronwen Rhaeadrig", "GBR"}, {"林溪月", "CHN"},
};
constexpr Entry Doubles[] = {
    {"Adam Vírník", "CZE", "Klára Vírníková"},
    {"Hugo Deversoir", "FRA", "Inès Cascadel"},
    {"Kuba Zakole", "POL", "Ola Meandrowska"},
    {"Finn Wehrstedt", "GER", "Mia Wehrstedt"},
};

constexpr AthleteCategory AthleteCategories[] = {
    {"K1M", 1, 1.0, MenInKayaks},      {"C1M", 41, 1.055, MenInCanoes},
    {"K1W", 61, 1.115, WomenInKayaks}, {"C1W", 81, 1.185, WomenInCanoes},
    {"C2X", 91, 1.17, Doubles},
};

/// The better athlete of a field has the lower bib, give or take a few places.
Boat boatOf(const AthleteCategory& category, const Entry& entry, std::int64_t bib) {
    Dice dice(entry.name);
    Boat boat;
    boat.names = {entry.name};
    if (entry.partner)
        boat.names.emplace_back(entry.partner);
    boat.nationality = entry.nationality;
    boat.category = category.label;
    boat.hand = dice.chance(0.7) ? "Right" : "Left";
    boat.bib = bib;
    const auto fieldRank = static_cast<double>(bib - category.firstBib);
    boat.pace = category.pace * (1.004 + 0.0036 * fieldRank + std::max(0.0, dice.bell(0.012)));
    boat.upstreamPace = 1 + dice.bell(0.02);
    boat.steadiness = std::clamp(1.25 - 0.02 * fieldRank + dice.bell(0.15), 0.5, 1.6);
    return boat;
}

} // namespace

std::string Boat::crew() const {
    std::string crew = names.front();
    for (std::size_t i = 1; i < names.size(); ++i)
        crew += " - " + names[i];
    return crew;
}

std::vector<Boat> sampleBoats() {
    std::vector<Boat> boats;
    for (const AthleteCategory& category : AthleteCategories) {
        std::int64_t bib = category.firstBib;
        for (const Entry& entry : category.entries)
            boats.push_back(boatOf(category, entry, bib++));
    }
    return boats;
}

std::vector<Boat> sampleBoats(std::string_view category) {
    std::vector<Boat> boats = sampleBoats();
    std::erase_if(boats, [&](const Boat& boat) { return boat.category != category; });
    return boats;
}

} // namespace kavela::sample
