#include "page/html_text.h"

#include "common/display_text.h"
#include "common/text.h"

#include <array>

namespace kavela::page {

namespace {

std::string_view writtenOut(char letter) {
    switch (letter) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    default:
        return {};
    }
}

bool staysInAddress(char letter) {
    const bool isLetter = ('a' <= letter && letter <= 'z') || ('A' <= letter && letter <= 'Z');
    const bool isDigit = '0' <= letter && letter <= '9';
    return isLetter || isDigit || std::string_view("-._~/").find(letter) != std::string_view::npos;
}

} // namespace

std::string escaped(std::string_view text) {
    std::string made;
    for (const char letter : printable(validUtf8(text))) {
        const std::string_view sign = writtenOut(letter);
        if (sign.empty())
            made += letter;
        else
            made += sign;
    }
    return made;
}

std::string isolated(std::string_view text) {
    return "<bdi>" + escaped(text) + "</bdi>";
}

std::string addressOf(std::string_view path) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string made;
    for (const char letter : path) {
        if (staysInAddress(letter)) {
            made += letter;
            continue;
        }
        const auto byte = static_cast<unsigned char>(letter);
        made += '%';
        made += Digits[byte >> 4U];
        made += Digits[byte & 0xFU];
    }
    return made;
}

std::string said(std::string_view text) {
    return escaped(translated(text));
}

} // namespace kavela::page
