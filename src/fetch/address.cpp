#include "fetch/address.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace kavela::fetch {

namespace {

constexpr int HighestPort = 65'535;

bool isAsciiLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

char asciiSmall(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string asciiSmall(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(), [](char c) { return asciiSmall(c); });
    return small;
}

std::string_view withoutBlanksAround(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r\n\f";
    const std::size_t begin = text.find_first_not_of(Blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(Blanks) - begin + 1);
}

void appendEncoded(std::string& text, char c) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    text += '%';
    text += Digits[byte >> 4U];
    text += Digits[byte & 15U];
}

int valueOfHexDigit(char c) {
    int value = -1;
    const auto [rest, fault] = std::from_chars(&c, &c + 1, value, 16);
    return fault == std::errc() && rest == &c + 1 ? value : -1;
}

/// What must not be sent as it stands, in a text whose other characters have their meaning.
std::string withWildCharactersEncoded(std::string_view text) {
    constexpr std::string_view Wild = " \"<>\\^`{|}";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte >= 0x7F || Wild.find(c) != std::string_view::npos)
            appendEncoded(encoded, c);
        else
            encoded += c;
    }
    return encoded;
}

bool isHostName(std::string_view host) {
    if (host.starts_with('['))
        return host.size() > 2 && host.ends_with(']') &&
               host.substr(1, host.size() - 2).find_first_not_of("0123456789abcdefABCDEF:.") ==
                   std::string_view::npos;
    return !host.empty() && std::ranges::all_of(host, [](char c) {
        return isAsciiLetterOrDigit(c) || c == '-' || c == '.' || c == '_';
    });
}

int usualPort(std::string_view scheme) {
    return scheme == "https" ? 443 : 80;
}

/// "host", "host:8080" or "[::1]:8080".
bool readHost(std::string_view text, Address& address) {
    const std::size_t behindHost = text.starts_with('[') ? text.find(']') : 0;
    const std::size_t colon = text.find(':', behindHost == std::string_view::npos ? 0 : behindHost);
    const std::string_view host = text.substr(0, colon);
    if (!isHostName(host))
        return false;
    address.host = asciiSmall(host);
    address.port = usualPort(address.scheme);
    if (colon == std::string_view::npos || colon + 1 == text.size())
        return true;
    const std::string_view port = text.substr(colon + 1);
    const auto [rest, fault] =
        std::from_chars(port.data(), port.data() + port.size(), address.port);
    return fault == std::errc() && rest == port.data() + port.size() && address.port >= 1 &&
           address.port <= HighestPort;
}

/// "/a/./b/../c" is "/a/c": what a server and a comparison of addresses make of it.
std::string withoutDots(std::string_view path) {
    std::vector<std::string_view> kept;
    bool endsWithSlash = false;
    while (!path.empty()) {
        path.remove_prefix(1); // the slash in front
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view part = path.substr(0, end);
        path.remove_prefix(end);
        endsWithSlash = part == "." || part == "..";
        if (part == ".." && !kept.empty())
            kept.pop_back();
        else if (!endsWithSlash)
            kept.push_back(part);
    }
    std::string joined;
    for (const std::string_view part : kept) {
        joined += '/';
        joined += part;
    }
    return joined.empty() || endsWithSlash ? joined + '/' : joined;
}

void setPathAndQuery(Address& address, std::string_view text) {
    text = text.substr(0, text.find('#'));
    const std::size_t question = std::min(text.find('?'), text.size());
    const std::string path = withWildCharactersEncoded(text.substr(0, question));
    address.path = withoutDots(path.starts_with('/') ? path : '/' + path);
    address.query = withWildCharactersEncoded(text.substr(question));
    if (address.query == "?")
        address.query.clear();
}

bool hasScheme(std::string_view link) {
    const std::size_t colon = link.find_first_of(":/?#");
    return colon != std::string_view::npos && colon > 0 && link[colon] == ':' &&
           std::ranges::all_of(link.substr(0, colon), [](char c) {
               return isAsciiLetterOrDigit(c) || c == '+' || c == '-' || c == '.';
           });
}

} // namespace

std::string Address::site() const {
    return port == usualPort(scheme) ? host : host + ':' + std::to_string(port);
}

std::string Address::text() const {
    return scheme + "://" + site() + path + query;
}

bool Address::isSameOrigin(const Address& other) const {
    return scheme == other.scheme && host == other.host && port == other.port;
}

std::string Address::lastName() const {
    const std::string_view part = std::string_view(path).substr(path.rfind('/') + 1);
    std::string name;
    for (std::size_t i = 0; i < part.size(); ++i) {
        const int high = part[i] == '%' && i + 2 < part.size() ? valueOfHexDigit(part[i + 1]) : -1;
        const int low = high >= 0 ? valueOfHexDigit(part[i + 2]) : -1;
        if (low < 0) {
            name += part[i];
            continue;
        }
        name += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return name;
}

std::optional<Address> parsedAddress(std::string_view text) {
    text = withoutBlanksAround(text);
    const std::size_t colon = text.find("://");
    if (colon == std::string_view::npos)
        return std::nullopt;
    Address address;
    address.scheme = asciiSmall(text.substr(0, colon));
    if (address.scheme != "http" && address.scheme != "https")
        return std::nullopt;
    text.remove_prefix(colon + 3);
    const std::size_t hostEnd = std::min(text.find_first_of("/?#\\"), text.size());
    // A user name before an "@" would stand there, which no host name has.
    if (!readHost(text.substr(0, hostEnd), address))
        return std::nullopt;
    setPathAndQuery(address, text.substr(hostEnd));
    return address;
}

std::optional<Address> resolved(const Address& base, std::string_view link) {
    link = withoutBlanksAround(link);
    if (hasScheme(link))
        return parsedAddress(link);
    if (link.starts_with("//"))
        return parsedAddress(base.scheme + ":" + std::string(link));
    Address address = base;
    if (link.starts_with('/'))
        setPathAndQuery(address, link);
    else if (link.starts_with('?'))
        setPathAndQuery(address, base.path + std::string(link));
    else if (!link.empty() && !link.starts_with('#'))
        setPathAndQuery(address, base.path.substr(0, base.path.rfind('/') + 1) + std::string(link));
    return address;
}

std::string percentEncoded(std::string_view text) {
    std::string encoded;
    for (const char c : text) {
        if (isAsciiLetterOrDigit(c) || c == '-' || c == '.' || c == '_' || c == '~')
            encoded += c;
        else
            appendEncoded(encoded, c);
    }
    return encoded;
}

} // namespace kavela::fetch
