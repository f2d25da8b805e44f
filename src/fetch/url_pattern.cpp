#include "fetch/url_pattern.h"

#include "common/delimited_text.h"
#include "common/text.h"

#include <algorithm>

namespace kavela::fetch {

namespace {

constexpr std::size_t MostDigits = 9;

std::string padded(std::int64_t number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

} // namespace

UrlPattern::UrlPattern(std::string_view text) {
    const std::string_view whole = text;
    while (!text.empty()) {
        const std::size_t open = std::min(text.find('{'), text.size());
        if (open > 0)
            m_parts.push_back({Kind::Literal, std::string(text.substr(0, open)), 0});
        text.remove_prefix(open);
        if (text.empty())
            break;
        const std::size_t close = text.find('}');
        if (close == std::string_view::npos) {
            m_fault = say("A brace is opened and not closed: {}", text);
            return;
        }
        addPlaceholder(text.substr(1, close - 1));
        text.remove_prefix(close + 1);
    }
    if (!m_fault)
        checkPlaces(whole);
}

bool UrlPattern::isPattern(std::string_view text) {
    return text.find('{') != std::string_view::npos;
}

void UrlPattern::addPlaceholder(std::string_view placeholder) {
    const std::size_t colon = std::min(placeholder.find(':'), placeholder.size());
    const std::string_view name = placeholder.substr(0, colon);
    Part part;
    if (name == "bib")
        part.kind = Kind::Bib;
    else if (name == "category")
        part.kind = Kind::Category;
    else if (name == "phase")
        part.kind = Kind::Phase;
    else if (name == "run")
        part.kind = Kind::Run;
    else
        m_fault = say("{{{}}} means nothing here: there are {{bib}}, {{category}}, {{phase}} and "
                      "{{run}}.",
                      placeholder);
    const bool isNumber = part.kind == Kind::Bib || part.kind == Kind::Run;
    if (!m_fault && colon < placeholder.size() &&
        (!isNumber || !parseField(placeholder.substr(colon + 1), part.width) || part.width < 1 ||
         part.width > MostDigits))
        m_fault = "{" + std::string(placeholder) +
                  "} cannot be padded so: {bib:3} and {run:2} have a number of digits from 1 to 9.";
    m_parts.push_back(part);
}

/// A run must not choose the server: that is what the coach agrees to.
void UrlPattern::checkPlaces(std::string_view text) {
    const std::size_t scheme = text.find("://");
    const std::size_t path =
        scheme == std::string_view::npos ? scheme : text.find_first_of("/?#", scheme + 3);
    if (path == std::string_view::npos || !parsedAddress(text.substr(0, path)))
        m_fault = say("The address must begin with https:// and a server, whose name has no "
                      "braces, user or password.");
    else if (std::ranges::none_of(m_parts, [](const Part& part) { return part.kind == Kind::Bib; }))
        m_fault = std::string(translated("The address asks for no {bib}, so that every run would "
                                         "have the same film."));
}

std::string UrlPattern::lackOf(const FetchRun& run) const {
    for (const Part& part : m_parts) {
        if (part.kind == Kind::Category && run.category.empty())
            return "category";
        if (part.kind == Kind::Phase && run.phase.empty())
            return "phase";
        if (part.kind == Kind::Run && run.run <= 0)
            return KAVELA_TEXT("number of the run");
        if (part.kind == Kind::Bib && run.bib <= 0)
            return "bib";
    }
    return {};
}

std::string UrlPattern::valueOf(const Part& part, const FetchRun& run) {
    switch (part.kind) {
    case Kind::Bib:
        return padded(run.bib, part.width);
    case Kind::Run:
        return padded(run.run, part.width);
    case Kind::Category:
        return percentEncoded(run.category);
    case Kind::Phase:
        return percentEncoded(run.phase);
    case Kind::Literal:
        break;
    }
    return part.text;
}

std::optional<Address> UrlPattern::address(const FetchRun& run) const {
    if (m_fault || !lackOf(run).empty())
        return std::nullopt;
    std::string text;
    for (const Part& part : m_parts)
        text += valueOf(part, run);
    return parsedAddress(text);
}

} // namespace kavela::fetch
