#include "tables/column_titles.h"

#include "common/folded_text.h"

#include <algorithm>
#include <array>

namespace kavela {

namespace {

struct TitleWord {
    std::string_view word; ///< letters alone
    ColumnRole role;
};

/// English, Czech and Slovak, German, French, Spanish, Italian, Slovene, Polish.
constexpr std::array TitleWords{
    TitleWord{"pos", ColumnRole::Position},
    TitleWord{"position", ColumnRole::Position},
    TitleWord{"rank", ColumnRole::Position},
    TitleWord{"rk", ColumnRole::Position},
    TitleWord{"place", ColumnRole::Position},
    TitleWord{"poradi", ColumnRole::Position},
    TitleWord{"rang", ColumnRole::Position},
    TitleWord{"platz", ColumnRole::Position},
    TitleWord{"bib", ColumnRole::Bib},
    TitleWord{"startnr", ColumnRole::Bib},
    TitleWord{"startnumber", ColumnRole::Bib},
    TitleWord{"stc", ColumnRole::Bib},
    TitleWord{"dossard", ColumnRole::Bib},
    TitleWord{"dorsal", ColumnRole::Bib},
    TitleWord{"name", ColumnRole::Name},
    TitleWord{"names", ColumnRole::Name},
    TitleWord{"athlete", ColumnRole::Name},
    TitleWord{"athletes", ColumnRole::Name},
    TitleWord{"crew", ColumnRole::Name},
    TitleWord{"competitor", ColumnRole::Name},
    TitleWord{"paddler", ColumnRole::Name},
    TitleWord{"jmeno", ColumnRole::Name},
    TitleWord{"meno", ColumnRole::Name},
    TitleWord{"nom", ColumnRole::Name},
    TitleWord{"nombre", ColumnRole::Name},
    TitleWord{"nome", ColumnRole::Name},
    TitleWord{"ime", ColumnRole::Name},
    TitleWord{"surname", ColumnRole::Surname},
    TitleWord{"lastname", ColumnRole::Surname},
    TitleWord{"familyname", ColumnRole::Surname},
    TitleWord{"prijmeni", ColumnRole::Surname},
    TitleWord{"priezvisko", ColumnRole::Surname},
    TitleWord{"nachname", ColumnRole::Surname},
    TitleWord{"priimek", ColumnRole::Surname},
    TitleWord{"nazwisko", ColumnRole::Surname},
    TitleWord{"firstname", ColumnRole::GivenName},
    TitleWord{"givenname", ColumnRole::GivenName},
    TitleWord{"vorname", ColumnRole::GivenName},
    TitleWord{"prenom", ColumnRole::GivenName},
    TitleWord{"imie", ColumnRole::GivenName},
    TitleWord{"cat", ColumnRole::Category},
    TitleWord{"category", ColumnRole::Category},
    TitleWord{"class", ColumnRole::Category},
    TitleWord{"kategorie", ColumnRole::Category},
    TitleWord{"kategoria", ColumnRole::Category},
    TitleWord{"klasse", ColumnRole::Category},
    TitleWord{"categorie", ColumnRole::Category},
    TitleWord{"categoria", ColumnRole::Category},
    TitleWord{"kategorija", ColumnRole::Category},
    TitleWord{"phase", ColumnRole::Phase},
    TitleWord{"round", ColumnRole::Phase},
    TitleWord{"time", ColumnRole::Time},
    TitleWord{"times", ColumnRole::Time},
    TitleWord{"runtime", ColumnRole::Time},
    TitleWord{"realtime", ColumnRole::Time},
    TitleWord{"run", ColumnRole::Time},
    TitleWord{"strun", ColumnRole::Time},
    TitleWord{"ndrun", ColumnRole::Time},
    TitleWord{"split", ColumnRole::Time},
    TitleWord{"cas", ColumnRole::Time},
    TitleWord{"zeit", ColumnRole::Time},
    TitleWord{"temps", ColumnRole::Time},
    TitleWord{"tiempo", ColumnRole::Time},
    TitleWord{"tempo", ColumnRole::Time},
    TitleWord{"czas", ColumnRole::Time},
    TitleWord{"pen", ColumnRole::Penalty},
    TitleWord{"pens", ColumnRole::Penalty},
    TitleWord{"penalty", ColumnRole::Penalty},
    TitleWord{"penalties", ColumnRole::Penalty},
    TitleWord{"totalpen", ColumnRole::Penalty},
    TitleWord{"realpen", ColumnRole::Penalty},
    TitleWord{"trest", ColumnRole::Penalty},
    TitleWord{"tresty", ColumnRole::Penalty},
    TitleWord{"strafe", ColumnRole::Penalty},
    TitleWord{"strafsekunden", ColumnRole::Penalty},
    TitleWord{"penalites", ColumnRole::Penalty},
    TitleWord{"penalizacion", ColumnRole::Penalty},
    TitleWord{"penalita", ColumnRole::Penalty},
    TitleWord{"kazni", ColumnRole::Penalty},
    TitleWord{"p", ColumnRole::Penalty},
    TitleWord{"total", ColumnRole::Total},
    TitleWord{"tot", ColumnRole::Total},
    TitleWord{"totaltime", ColumnRole::Total},
    TitleWord{"result", ColumnRole::Total},
    TitleWord{"celkem", ColumnRole::Total},
    TitleWord{"vysledek", ColumnRole::Total},
    TitleWord{"gesamt", ColumnRole::Total},
    TitleWord{"gesamtzeit", ColumnRole::Total},
    TitleWord{"totale", ColumnRole::Total},
    TitleWord{"skupaj", ColumnRole::Total},
    TitleWord{"status", ColumnRole::Status},
};

} // namespace

std::string titleKey(std::string_view title) {
    std::string key = folded(title);
    std::erase_if(key, [](char sign) {
        const bool isPlain = static_cast<unsigned char>(sign) < 128;
        const bool isLetter = sign >= 'a' && sign <= 'z';
        const bool isDigit = sign >= '0' && sign <= '9';
        return isPlain && !isLetter && !isDigit;
    });
    return key;
}

std::optional<ColumnRole> roleOf(std::string_view title) {
    std::string word = titleKey(title);
    std::erase_if(word, [](char sign) { return sign >= '0' && sign <= '9'; });
    if (word.ends_with("penalty")) // of a run among several
        return ColumnRole::Penalty;
    const auto found = std::ranges::find(TitleWords, word, &TitleWord::word);
    return found == TitleWords.end() ? std::nullopt : std::optional(found->role);
}

bool saysTimes(std::string_view title) {
    const auto role = roleOf(title);
    return role == ColumnRole::Time || role == ColumnRole::Total;
}

} // namespace kavela
