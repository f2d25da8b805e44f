#include "results/name_likeness.h"

#include "common/folded_text.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace kavela {

namespace {

/// What a word that is only begun ("B." for "Ben") is worth beside the whole word.
constexpr double InitialsWorth = 0.9;
constexpr double BeginningsWorth = 0.8;
constexpr std::size_t ShortestBeginning = 3; ///< in letters, of what is no initial

std::vector<std::string> likenessWordsOf(std::string_view name) {
    constexpr std::string_view Marks = " \t\r,./&+-_";
    const std::string text = folded(name);
    std::vector<std::string> words;
    std::size_t from = 0;
    while (from < text.size()) {
        const std::size_t end = std::min(text.find_first_of(Marks, from), text.size());
        if (end > from)
            words.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    return words;
}

/// How many letters have to be changed, put in or left out to make one word of the other.
std::size_t editsBetween(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

double wordLikeness(std::string_view a, std::string_view b) {
    if (a == b)
        return 1;
    if (std::min(a.size(), b.size()) == 1)
        return a.front() == b.front() ? InitialsWorth : 0;
    const std::string_view& few = a.size() < b.size() ? a : b;
    const std::string_view& many = a.size() < b.size() ? b : a;
    if (few.size() >= ShortestBeginning && many.starts_with(few))
        return BeginningsWorth;
    const auto longest = static_cast<double>(std::max(a.size(), b.size()));
    return std::max(0.0, 1 - 1.5 * static_cast<double>(editsBetween(a, b)) / longest);
}

} // namespace

/// Each word of the shorter name takes the likest word that is left of the longer one; long words
/// first, since an initial is like many. Words that
/// stay over count a third: a second given name is often left out.
double nameLikeness(std::string_view a, std::string_view b) {
    std::vector<std::string> few = likenessWordsOf(a);
    std::vector<std::string> many = likenessWordsOf(b);
    if (few.size() > many.size())
        few.swap(many);
    if (few.empty())
        return 0;
    std::ranges::stable_sort(few, std::greater(), &std::string::size);
    const double words = static_cast<double>(few.size());
    double sum = 0;
    for (const std::string& word : few) {
        const auto likest = std::ranges::max_element(
            many, {}, [&](const std::string& other) { return wordLikeness(word, other); });
        sum += wordLikeness(word, *likest);
        many.erase(likest);
    }
    return sum / (words + static_cast<double>(many.size()) / 3);
}

std::vector<std::size_t> byLikeness(std::string_view name, std::span<const std::string> names) {
    std::vector<double> likeness;
    likeness.reserve(names.size());
    for (const std::string& other : names)
        likeness.push_back(nameLikeness(name, other));
    std::vector<std::size_t> places(names.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(places, std::greater(),
                             [&](std::size_t place) { return likeness[place]; });
    return places;
}

std::optional<std::size_t> likelyName(std::string_view name, std::span<const std::string> names) {
    std::optional<std::size_t> likest;
    double most = 0;
    for (std::size_t place = 0; place < names.size(); ++place)
        if (const double likeness = nameLikeness(name, names[place]);
            likeness >= ProbablyTheSame && likeness > most) {
            most = likeness;
            likest = place;
        }
    return likest;
}

} // namespace kavela
