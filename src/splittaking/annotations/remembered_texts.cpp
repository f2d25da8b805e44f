#include "splittaking/annotations/remembered_texts.h"

#include "common/folded_text.h"

#include <algorithm>

namespace kavela {

namespace {

std::string withoutOuterBlanks(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    if (begin == std::string_view::npos)
        return {};
    return std::string(text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1));
}

} // namespace

std::vector<std::string> withRemembered(std::vector<std::string> saved,
                                        std::span<const std::string> used) {
    for (const std::string& text : used) {
        std::string tidy = withoutOuterBlanks(text);
        const auto isSame = [&](const std::string& kept) { return folded(kept) == folded(tidy); };
        if (!tidy.empty() && std::ranges::none_of(saved, isSame))
            saved.push_back(std::move(tidy));
    }
    return saved;
}

std::vector<std::string> fittingTexts(std::span<const std::string> saved, std::string_view typed) {
    const std::string wanted = folded(withoutOuterBlanks(typed));
    std::vector<std::string> fitting;
    for (const std::string& text : saved)
        if (folded(text).find(wanted) != std::string::npos)
            fitting.push_back(text);
    return fitting;
}

} // namespace kavela
