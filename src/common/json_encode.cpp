#include "common/json_encode.h"

#include "common/text.h"
#include "common/utf8.h"

#include "common/large_pages.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kavela::json_detail {

namespace {

template <class Number>
bool appendNumber(std::string& json, Number value) {
    std::array<char, 32> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    json.append(buffer.data(), end);
    return true;
}

bool needsEscape(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

void appendEscaped(std::string& json, char c) {
    constexpr std::string_view Digits = "0123456789abcdef";
    switch (c) {
    case '"':
    case '\\':
        json += '\\';
        json += c;
        break;
    case '\n':
        json += "\\n";
        break;
    case '\r':
        json += "\\r";
        break;
    case '\t':
        json += "\\t";
        break;
    default:
        json += "\\u00";
        json += Digits[static_cast<unsigned char>(c) >> 4];
        json += Digits[static_cast<unsigned char>(c) & 15];
    }
}

} // namespace

void makeRoomForRest(std::string& json, std::size_t firstEntry, std::size_t count) {
    constexpr std::size_t Smallest = std::size_t{1} << 16;
    constexpr std::size_t Largest = std::size_t{1} << 28;
    const std::size_t rest = firstEntry * count;
    const std::size_t room = std::min(rest + rest / 8, Largest);
    if (room < Smallest || json.capacity() - json.size() >= room)
        return;
    json.reserve(json.size() + room);
    preferLargePages(json.data() + json.size(), json.capacity() - json.size());
}

bool write(std::string& json, double value, Fault& fault) {
    if (!std::isfinite(value)) {
        fault = {{}, say("a number that is not finite cannot be written")};
        return false;
    }
    if (value == 0 && std::signbit(value)) {
        json += "-0.0"; // "-0" would read back as the integer 0, without its sign
        return true;
    }
    return appendNumber(json, value);
}

bool write(std::string& json, std::int64_t value, Fault&) {
    return appendNumber(json, value);
}

bool write(std::string& json, std::int32_t value, Fault&) {
    return appendNumber(json, value);
}

bool write(std::string& json, std::uint32_t value, Fault&) {
    return appendNumber(json, value);
}

bool write(std::string& json, bool value, Fault&) {
    json += value ? "true" : "false";
    return true;
}

bool write(std::string& json, const std::string& value, Fault& fault) {
    if (!isUtf8(value)) {
        fault = {{}, say("a text that is not valid UTF-8 cannot be written")};
        return false;
    }
    json += '"';
    std::size_t from = 0;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (!needsEscape(value[i]))
            continue;
        json.append(value, from, i - from);
        appendEscaped(json, value[i]);
        from = i + 1;
    }
    json.append(value, from);
    json += '"';
    return true;
}

bool write(std::string& json, const Blob& value, Fault&) {
    json += '"';
    appendBase64(json, value);
    json += '"';
    return true;
}

bool write(std::string& json, const ReferenceDate& value, Fault& fault) {
    return write(json, value.seconds, fault);
}

} // namespace kavela::json_detail
