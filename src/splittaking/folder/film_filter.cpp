#include "splittaking/folder/film_filter.h"

#include "common/folded_text.h"
#include "splittaking/film_words.h"

#include <algorithm>
#include <cctype>

namespace kavela {

namespace {

/// Folded words with a blank in front of each; what is no letter or number stands between words.
std::string searchable(std::string_view text) {
    std::string words = " " + folded(text) + " ";
    for (char& c : words) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80 && std::isalnum(byte) == 0)
            c = ' ';
    }
    return words;
}

std::string withoutLeadingZeros(const std::string& number) {
    const std::size_t first = number.find_first_not_of('0');
    return first == std::string::npos ? "0" : number.substr(first);
}

bool isNumberWord(const std::string& word) {
    return !word.empty() && word.find_first_not_of("0123456789") == std::string::npos;
}

bool holdsNumber(const std::string& texts, const std::string& number) {
    return std::ranges::any_of(wordsOf(texts), [&](const std::string& word) {
        return isNumberWord(word) && withoutLeadingZeros(word) == withoutLeadingZeros(number);
    });
}

std::string textsOf(const ListedFilm& film, std::string_view more) {
    std::string texts = film.path.stem().string() + ' ' + film.phase + ' ' + film.category;
    for (const std::string& name : film.names)
        texts += ' ' + name;
    return searchable(texts.append(1, ' ').append(more));
}

} // namespace

FilmFilter::FilmFilter(std::string_view typed) : m_words(wordsOf(searchable(typed))) {}

bool FilmFilter::passes(const ListedFilm& film, std::string_view more) const {
    if (m_words.empty())
        return true;
    const std::string texts = textsOf(film, more);
    return std::ranges::all_of(m_words, [&](const std::string& word) {
        if (isNumberWord(word))
            return (film.bib && std::to_string(*film.bib) == withoutLeadingZeros(word)) ||
                   holdsNumber(texts, word);
        return texts.find(' ' + word) != std::string::npos ||
               (!film.category.empty() && categoryFrom(word) == film.category);
    });
}

} // namespace kavela
