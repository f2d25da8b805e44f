#include "language/tool/pseudo_language.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace kavela::catalogue {

namespace {

constexpr std::array<std::pair<char, std::string_view>, 10> Accents{{{'a', "á"},
                                                                     {'e', "ě"},
                                                                     {'i', "í"},
                                                                     {'o', "ö"},
                                                                     {'u', "ů"},
                                                                     {'A', "Á"},
                                                                     {'E', "É"},
                                                                     {'I', "Í"},
                                                                     {'O', "Ö"},
                                                                     {'U', "Ů"}}};

/// How many bytes at the start of a text are not for people: 0 where a letter stands there.
std::size_t markupLength(std::string_view text) {
    const auto upTo = [&](char end) {
        const std::size_t at = text.find(end);
        return at == std::string_view::npos ? std::size_t{0} : at + 1;
    };
    if (text.starts_with('{'))
        return upTo('}');
    if (text.starts_with('<'))
        return upTo('>');
    if (text.starts_with('%') && text.size() > 1)
        return std::size_t{2} + (text[1] == 'L' && text.size() > 2 ? 1 : 0);
    if (!text.starts_with('&') || text.size() < 2)
        return 0;
    const std::size_t end = text.find(';');
    const bool isEntity = end != std::string_view::npos && end > 1 &&
                          std::ranges::all_of(text.substr(1, end - 1), [](unsigned char sign) {
                              return std::isalnum(sign) || sign == '#';
                          });
    return isEntity ? end + 1 : 2;
}

} // namespace

std::string pseudoText(std::string_view text) {
    std::string said;
    std::size_t letters = 0;
    while (!text.empty()) {
        const std::size_t markup = markupLength(text);
        if (markup > 0) {
            said += text.substr(0, markup);
            text.remove_prefix(markup);
            continue;
        }
        const auto accent =
            std::ranges::find(Accents, text.front(), &std::pair<char, std::string_view>::first);
        if (accent != Accents.end())
            said += accent->second;
        else
            said += text.front();
        // Bytes inside a sign of several are no further letters.
        letters += (static_cast<unsigned char>(text.front()) & 0xC0) != 0x80;
        text.remove_prefix(1);
    }
    constexpr std::string_view Padding = " xax exe ixi oxoxo uxu";
    const std::size_t blanks = said.size() - std::min(said.size(), said.find_last_not_of(' ') + 1);
    std::string more;
    for (std::size_t i = 0; i < letters; ++i)
        more += Padding[i % Padding.size()];
    return said.substr(0, said.size() - blanks) + more + said.substr(said.size() - blanks);
}

Catalogue pseudoCatalogue(const Catalogue& source) {
    Catalogue pseudo{"de", {}};
    for (Message message : source.messages) {
        if (message.isGone)
            continue;
        message.isFinished = true;
        message.forms.assign(message.isCounted ? 2 : 1, pseudoText(message.source));
        pseudo.messages.push_back(std::move(message));
    }
    return pseudo;
}

} // namespace kavela::catalogue
