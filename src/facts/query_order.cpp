#include "facts/query_order.h"

#include "common/folded_text.h"
#include "facts/row_ranges.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

/// A value as a whole number of the same order. The bits of a number are in order but for the sign:
/// those below 0 are turned round.
std::uint64_t codeOfValue(double value, bool isDown) {
    constexpr std::uint64_t Sign = std::uint64_t{1} << 63U;
    if (std::isnan(value))
        return std::numeric_limits<std::uint64_t>::max();
    const auto bits = std::bit_cast<std::uint64_t>(value + 0.0); // of which there is one zero
    const std::uint64_t code = (bits & Sign) != 0 ? ~bits : bits | Sign;
    return isDown ? ~code : code;
}

/// Whether the value of one place stands before that of another one.
class StandsBefore {
public:
    StandsBefore(std::span<const double> values, bool isDown)
        : m_values(values), m_isDown(isDown) {}

    bool operator()(std::uint32_t a, std::uint32_t b) const {
        const std::uint64_t first = codeOfValue(m_values[a], m_isDown);
        const std::uint64_t second = codeOfValue(m_values[b], m_isDown);
        return first != second ? first < second : a < b;
    }

private:
    std::span<const double> m_values;
    bool m_isDown;
};

constexpr unsigned PlaceBits = 32;
constexpr unsigned DigitBits = 11;
constexpr std::size_t Digits = std::size_t{1} << DigitBits;

std::size_t digitOf(std::uint64_t value, unsigned shift) {
    return static_cast<std::size_t>(value >> shift) & (Digits - 1);
}

/// Places with the upper half of their codes above them, digit by digit, the last one first: the
/// time is that of going through them, where comparing millions takes seconds.
void sortByDigits(std::vector<std::uint64_t>& values) {
    std::vector<std::uint64_t> sorted(values.size());
    for (unsigned shift = PlaceBits; shift < 64; shift += DigitBits) {
        std::array<std::size_t, Digits> next{};
        for (const std::uint64_t value : values)
            ++next[digitOf(value, shift)];
        if (next[digitOf(values.front(), shift)] == values.size())
            continue; // all have the same one
        std::size_t before = 0;
        for (std::size_t& place : next)
            before += std::exchange(place, before);
        for (const std::uint64_t value : values)
            sorted[next[digitOf(value, shift)]++] = value;
        values.swap(sorted);
    }
}

/// All places in their order. The lower halves of codes decide among the few with one upper half.
std::vector<std::uint32_t> sortedPlaces(std::span<const double> values, bool isDown) {
    std::vector<std::uint64_t> uppers;
    uppers.reserve(values.size());
    for (const double value : values)
        uppers.push_back((codeOfValue(value, isDown) >> PlaceBits << PlaceBits) | uppers.size());
    sortByDigits(uppers);
    std::vector<std::uint32_t> places;
    places.reserve(values.size());
    for (const std::uint64_t upper : uppers)
        places.push_back(static_cast<std::uint32_t>(upper));
    const StandsBefore isBefore(values, isDown);
    for (std::size_t first = 0; first < places.size();) {
        std::size_t end = first + 1;
        while (end < places.size() && uppers[end] >> PlaceBits == uppers[first] >> PlaceBits)
            ++end;
        const auto from = places.begin() + static_cast<std::ptrdiff_t>(first);
        const auto to = places.begin() + static_cast<std::ptrdiff_t>(end);
        if (!std::is_sorted(from, to, isBefore))
            std::sort(from, to, isBefore);
        first = end;
    }
    return places;
}

} // namespace

std::vector<std::uint32_t> orderOf(std::span<const double> values, bool isDown, std::size_t most) {
    constexpr std::size_t FewValues = 4 * Digits;
    constexpr std::size_t SmallPart = 16;
    const std::uint32_t count = rowCount(values.size());
    if (count >= FewValues && most > count / SmallPart)
        return sortedPlaces(values, isDown);
    std::vector<std::uint32_t> places(count);
    std::iota(places.begin(), places.end(), 0U);
    const auto wanted = static_cast<std::ptrdiff_t>(std::min<std::size_t>(most, count));
    std::partial_sort(places.begin(), places.begin() + wanted, places.end(),
                      StandsBefore(values, isDown));
    places.resize(static_cast<std::size_t>(wanted));
    return places;
}

std::vector<double> naturalPlaces(const FactStore& facts, std::span<const TextId> texts) {
    std::vector<bool> isThere(facts.textCount(), false);
    std::vector<std::pair<NaturalName, TextId>> names;
    for (const TextId text : texts)
        if (text != 0 && !isThere[text]) {
            isThere[text] = true;
            names.emplace_back(NaturalName(facts.text(text)), text);
        }
    std::ranges::sort(names,
                      [](const auto& a, const auto& b) { return a.first.isBefore(b.first); });
    std::vector<double> placeOfText(facts.textCount(), NotKnown);
    for (std::size_t place = 0; place < names.size(); ++place)
        placeOfText[names[place].second] = static_cast<double>(place);
    std::vector<double> places;
    places.reserve(texts.size());
    for (const TextId text : texts)
        places.push_back(placeOfText[text]);
    return places;
}

} // namespace kavela
