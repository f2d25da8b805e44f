#include "facts/query_order.h"

#include "common/folded_text.h"
#include "facts/row_ranges.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <utility>

namespace kavela {

namespace {

/// A value as a whole number of the same order, with the place that it had.
struct OrderedValue {
    std::uint64_t code = 0;
    std::uint32_t place = 0;
};

/// The bits of a number are in order but for the sign: those below 0 are turned round.
std::uint64_t codeOfValue(double value, bool isDown) {
    constexpr std::uint64_t Sign = std::uint64_t{1} << 63U;
    if (std::isnan(value))
        return std::numeric_limits<std::uint64_t>::max();
    const auto bits = std::bit_cast<std::uint64_t>(value + 0.0); // of which there is one zero
    const std::uint64_t code = (bits & Sign) != 0 ? ~bits : bits | Sign;
    return isDown ? ~code : code;
}

constexpr unsigned DigitBits = 11;
constexpr std::size_t Digits = std::size_t{1} << DigitBits;

std::size_t digitOf(const OrderedValue& value, unsigned shift) {
    return static_cast<std::size_t>(value.code >> shift) & (Digits - 1);
}

/// Digit by digit, the last one first: the time is the same however many equal values there are,
/// where comparing millions of them takes seconds.
void sortByDigits(std::vector<OrderedValue>& values) {
    std::vector<OrderedValue> sorted(values.size());
    for (unsigned shift = 0; shift < 64; shift += DigitBits) {
        std::array<std::size_t, Digits> next{};
        for (const OrderedValue& value : values)
            ++next[digitOf(value, shift)];
        if (next[digitOf(values.front(), shift)] == values.size())
            continue; // all have the same one
        std::size_t before = 0;
        for (std::size_t& place : next)
            before += std::exchange(place, before);
        for (const OrderedValue& value : values)
            sorted[next[digitOf(value, shift)]++] = value;
        values.swap(sorted);
    }
}

} // namespace

std::vector<std::uint32_t> orderOf(std::span<const double> values, bool isDown) {
    constexpr std::size_t FewValues = 4 * Digits;
    std::vector<OrderedValue> ordered;
    ordered.reserve(values.size());
    for (const double value : values)
        ordered.push_back({codeOfValue(value, isDown), rowCount(ordered.size())});
    if (ordered.size() < FewValues)
        std::ranges::stable_sort(ordered, {}, &OrderedValue::code);
    else
        sortByDigits(ordered);
    std::vector<std::uint32_t> places;
    places.reserve(ordered.size());
    for (const OrderedValue& value : ordered)
        places.push_back(value.place);
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
