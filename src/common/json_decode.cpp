#include "common/json_decode.h"

#include "common/text.h"

#include <array>

namespace kavela::json_detail {

namespace {

/// In the order of `Expected`: a whole text each, since what is expected and what was found agree
/// with their verbs in some languages.
constexpr std::array<std::string_view, 7> Refusals{
    KAVELA_TEXT("a number was expected, found {}"),
    KAVELA_TEXT("an integer was expected, found {}"),
    KAVELA_TEXT("a boolean was expected, found {}"),
    KAVELA_TEXT("a string was expected, found {}"),
    KAVELA_TEXT("a base64 string was expected, found {}"),
    KAVELA_TEXT("an array was expected, found {}"),
    KAVELA_TEXT("an object was expected, found {}"),
};

template <class Narrow>
bool readNarrow(simdjson::dom::element element, Narrow& value, Fault& fault) {
    std::int64_t wide = 0;
    if (!read(element, wide, fault))
        return false;
    if (!std::in_range<Narrow>(wide)) {
        fault = {{}, say("the integer {} is out of range", wide)};
        return false;
    }
    value = static_cast<Narrow>(wide);
    return true;
}

/// What a JSON value is, in the words of a message.
std::string_view kindOf(simdjson::dom::element element) {
    switch (element.type()) {
    case simdjson::dom::element_type::ARRAY:
        return translated("an array");
    case simdjson::dom::element_type::OBJECT:
        return translated("an object");
    case simdjson::dom::element_type::INT64:
    case simdjson::dom::element_type::UINT64:
        return translated("an integer");
    case simdjson::dom::element_type::DOUBLE:
        return translated("a number that is no 64-bit integer");
    case simdjson::dom::element_type::STRING:
        return translated("a string");
    case simdjson::dom::element_type::BOOL:
        return translated("a boolean");
    case simdjson::dom::element_type::NULL_VALUE:
        return "null";
    }
    return translated("something else");
}

} // namespace

bool refuse(Fault& fault, Expected expected, simdjson::dom::element found) {
    const std::string_view text = Refusals.at(static_cast<std::size_t>(expected));
    fault = {{}, sayMarked(text, kindOf(found))};
    return false;
}

bool refuseMissing(Fault& fault, std::string_view key) {
    fault = {std::string(key), say("the key is missing")};
    return false;
}

bool read(simdjson::dom::element element, std::int64_t& value, Fault& fault) {
    if (element.get(value) == simdjson::SUCCESS)
        return true;
    if (std::uint64_t large = 0; element.get(large) == simdjson::SUCCESS) {
        fault = {{}, say("the integer {} is out of range", large)};
        return false;
    }
    return refuse(fault, Expected::Integer, element);
}

bool read(simdjson::dom::element element, std::int32_t& value, Fault& fault) {
    return readNarrow(element, value, fault);
}

bool read(simdjson::dom::element element, std::uint32_t& value, Fault& fault) {
    return readNarrow(element, value, fault);
}

bool read(simdjson::dom::element element, bool& value, Fault& fault) {
    return element.get(value) == simdjson::SUCCESS || refuse(fault, Expected::Boolean, element);
}

bool read(simdjson::dom::element element, std::string& value, Fault& fault) {
    std::string_view text;
    if (element.get(text) != simdjson::SUCCESS)
        return refuse(fault, Expected::String, element);
    value = text;
    return true;
}

bool read(simdjson::dom::element element, Blob& value, Fault& fault) {
    std::string_view text;
    if (element.get(text) != simdjson::SUCCESS)
        return refuse(fault, Expected::Base64, element);
    auto blob = blobFromBase64(text);
    if (!blob) {
        fault = {{}, say("a base64 string was expected, found other text")};
        return false;
    }
    value = std::move(*blob);
    return true;
}

bool read(simdjson::dom::element element, ReferenceDate& value, Fault& fault) {
    return read(element, value.seconds, fault);
}

bool ObjectCursor::search(std::string_view name, simdjson::dom::element& value) {
    // From where the record was last met to the end, then from the start.
    const auto from = m_next;
    const auto tryRange = [&](simdjson::dom::object::iterator at, const auto& end) {
        for (; at != end; ++at) {
            if (at.key() == name) {
                value = at.value();
                m_next = ++at;
                return true;
            }
        }
        return false;
    };
    return tryRange(from, m_end) || tryRange(m_begin, from);
}

} // namespace kavela::json_detail
