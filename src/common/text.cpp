#include "common/text.h"

#include <atomic>

namespace kavela {

namespace {

/// A program speaks one language at a time, and what says something lies deep in every library:
/// handing the catalogue on to all of it would say nothing that this does not.
std::atomic<const TextCatalogue*> installedCatalogue = nullptr;

thread_local int fixedWordsDepth = 0;

const TextCatalogue* spokenCatalogue() {
    return fixedWordsDepth > 0 ? nullptr : installedCatalogue.load(std::memory_order_acquire);
}

bool isAsciiDigit(char sign) {
    return sign >= '0' && sign <= '9';
}

} // namespace

void installCatalogue(const TextCatalogue* catalogue) {
    installedCatalogue.store(catalogue, std::memory_order_release);
}

FixedWords::FixedWords() {
    ++fixedWordsDepth;
}

FixedWords::~FixedWords() {
    --fixedWordsDepth;
}

std::string_view translated(std::string_view text) {
    const TextCatalogue* const catalogue = spokenCatalogue();
    const std::string_view found = catalogue && !text.empty() ? catalogue->of(text) : "";
    return found.empty() ? text : found;
}

std::string saidNumber(std::string number) {
    const TextCatalogue* const catalogue = spokenCatalogue();
    if (!catalogue || catalogue->decimalSign() == '.')
        return number;
    for (std::size_t at = 1; at + 1 < number.size(); ++at)
        if (number[at] == '.' && isAsciiDigit(number[at - 1]) && isAsciiDigit(number[at + 1]))
            number[at] = catalogue->decimalSign();
    return number;
}

std::string filledText(std::string_view source, std::string_view translation,
                       fmt::format_args arguments) {
    try {
        return fmt::vformat(translation, arguments);
    } catch (const fmt::format_error&) {
        return fmt::vformat(source, arguments);
    }
}

std::string sayCount(std::int64_t count, std::string_view one, std::string_view many) {
    const std::string_view own = count == 1 ? one : many;
    const TextCatalogue* const catalogue = spokenCatalogue();
    const std::string_view found = catalogue ? catalogue->of(many, count) : "";
    return filledText(own, found.empty() ? own : found, fmt::make_format_args(count));
}

std::string countedWords(std::int64_t count, std::string_view one, std::string_view many) {
    constexpr const char* Number = "{} ";
    return sayCount(count, Number + std::string(one), Number + std::string(many));
}

} // namespace kavela
