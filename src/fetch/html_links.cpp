#include "fetch/html_links.h"

#include "common/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace kavela::fetch {

namespace {

constexpr std::string_view HtmlBlanks = " \t\r\n\f";

std::string htmlSmall(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return small;
}

bool isTagLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(HtmlBlanks), text.size()));
}

/// The character that "&#x26;", "&#38;" or "&amp;" stands for, which is taken off; an "&" alone
/// where nothing is known of that name.
char32_t takeEntity(std::string_view& text) {
    constexpr std::array<std::pair<std::string_view, char32_t>, 6> Named{{{"amp", U'&'},
                                                                          {"quot", U'"'},
                                                                          {"apos", U'\''},
                                                                          {"lt", U'<'},
                                                                          {"gt", U'>'},
                                                                          {"nbsp", U' '}}};
    constexpr std::size_t Longest = 10;
    // Not the whole rest of the page is looked through for each "&" of it.
    const std::size_t end = std::min(text.substr(0, Longest).find(';'), Longest);
    const std::string_view name = text.substr(1, end - 1);
    char32_t character = 0;
    if (name.starts_with('#')) {
        const bool isHex = name.starts_with("#x") || name.starts_with("#X");
        const std::string_view digits = name.substr(isHex ? 2 : 1);
        std::uint32_t number = 0;
        const auto read =
            std::from_chars(digits.data(), digits.data() + digits.size(), number, isHex ? 16 : 10);
        const bool isCharacter =
            number > 0 && number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF);
        if (read.ec == std::errc() && read.ptr == digits.data() + digits.size() && isCharacter)
            character = number;
    }
    for (const auto& [known, meaning] : Named)
        if (name == known)
            character = meaning;
    text.remove_prefix(character == 0 ? 1 : std::min(name.size() + 2, text.size()));
    return character == 0 ? U'&' : character;
}

std::string withoutEntities(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        if (text.front() == '&') {
            appendUtf8(plain, takeEntity(text));
            continue;
        }
        plain += text.front();
        text.remove_prefix(1);
    }
    return plain;
}

struct HtmlAttribute {
    std::string name; ///< small letters
    std::string value;
};

std::string takeValue(std::string_view& text) {
    skipBlanks(text);
    if (text.empty())
        return {};
    const char quote = text.front();
    if (quote != '"' && quote != '\'') {
        const std::size_t end = std::min(text.find_first_of(" \t\r\n\f>"), text.size());
        const std::string value = withoutEntities(text.substr(0, end));
        text.remove_prefix(end);
        return value;
    }
    const std::size_t end = std::min(text.find(quote, 1), text.size());
    const std::string value = withoutEntities(text.substr(1, end - 1));
    text.remove_prefix(std::min(end + 1, text.size()));
    return value;
}

/// Takes one attribute off a tag; false at its end, which is taken too.
bool takeAttribute(std::string_view& text, HtmlAttribute& attribute) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n\f/"), text.size()));
    if (text.empty() || text.front() == '>') {
        text.remove_prefix(std::min<std::size_t>(1, text.size()));
        return false;
    }
    const std::size_t end = std::min(text.find_first_of(" \t\r\n\f/>=", 1), text.size());
    attribute = {htmlSmall(text.substr(0, end)), {}};
    text.remove_prefix(end);
    skipBlanks(text);
    if (text.starts_with('=')) {
        text.remove_prefix(1);
        attribute.value = takeValue(text);
    }
    return true;
}

/// Takes what is text for nobody, up to the tag that ends it.
void skipTo(std::string_view& text, std::string_view end) {
    const std::size_t place = text.find(end);
    text.remove_prefix(place == std::string_view::npos ? text.size() : place + end.size());
}

void takeTag(std::string_view& text, PageLinks& page) {
    const std::size_t end = std::min(text.find_first_of(" \t\r\n\f/>"), text.size());
    const std::string tag = htmlSmall(text.substr(0, end));
    text.remove_prefix(end);
    const std::string_view wanted = tag == "a" || tag == "base" || tag == "area" ? "href"
                                    : tag == "video" || tag == "source"          ? "src"
                                                                                 : "";
    HtmlAttribute attribute;
    while (takeAttribute(text, attribute)) {
        if (attribute.name != wanted || attribute.value.empty())
            continue;
        if (tag != "base")
            page.links.push_back(attribute.value);
        else if (page.base.empty())
            page.base = attribute.value;
    }
    if (tag == "script" || tag == "style")
        skipTo(text, tag == "script" ? "</script" : "</style");
}

} // namespace

PageLinks linksInPage(std::string_view page) {
    PageLinks found;
    while (!page.empty()) {
        page.remove_prefix(std::min(page.find('<'), page.size()));
        if (page.starts_with("<!--")) {
            page.remove_prefix(4);
            skipTo(page, "-->");
            continue;
        }
        if (page.empty())
            break;
        page.remove_prefix(1);
        // What else begins so is text, an end or a declaration.
        if (!page.empty() && isTagLetter(page.front()))
            takeTag(page, found);
    }
    return found;
}

} // namespace kavela::fetch
