#pragma once

#include "splittaking/folder/film_list.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavela {

/// What a coach types to find films: "k1w 12 semi". Each word has to fit, whatever its case and
/// accents: a number the bib, or a whole number of the film's name or phase; any other word the
/// beginning of a word of crew, category, phase or film name. So "final" leaves semifinals out.
class FilmFilter {
public:
    explicit FilmFilter(std::string_view typed);

    [[nodiscard]] bool isEmpty() const { return m_words.empty(); }
    /// `more` is what else the row says, such as the name of a tag.
    [[nodiscard]] bool passes(const ListedFilm& film, std::string_view more = {}) const;

private:
    std::vector<std::string> m_words; ///< folded
};

} // namespace kavela
