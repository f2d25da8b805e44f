#include "common/json_decode.h"

namespace kavela::json_detail {

namespace {

template <class Narrow>
bool readNarrow(simdjson::dom::element element, Narrow& value, Fault& fault) {
    std::int64_t wide = 0;
    if (!read(element, wide, fault))
        return false;
    if (!std::in_range<Narrow>(wide)) {
        fault = {{}, "the integer " + std::to_string(wide) + " is out of range"};
        return false;
    }
    value = static_cast<Narrow>(wide);
    return true;
}

} // namespace

std::string kindOf(simdjson::dom::element element) {
    switch (element.type()) {
    case simdjson::dom::element_type::ARRAY:
        return "an array";
    case simdjson::dom::element_type::OBJECT:
        return "an object";
    case simdjson::dom::element_type::INT64:
    case simdjson::dom::element_type::UINT64:
        return "an integer";
    case simdjson::dom::element_type::DOUBLE:
        return "a number that is no 64-bit integer";
    case simdjson::dom::element_type::STRING:
        return "a string";
    case simdjson::dom::element_type::BOOL:
        return "a boolean";
    case simdjson::dom::element_type::NULL_VALUE:
        return "null";
    }
    return "something else";
}

bool refuse(Fault& fault, std::string_view expected, simdjson::dom::element found) {
    fault = {{}, std::string(expected) + " was expected, found " + kindOf(found)};
    return false;
}

bool read(simdjson::dom::element element, std::int64_t& value, Fault& fault) {
    if (element.get(value) == simdjson::SUCCESS)
        return true;
    if (std::uint64_t large = 0; element.get(large) == simdjson::SUCCESS) {
        fault = {{}, "the integer " + std::to_string(large) + " is out of range"};
        return false;
    }
    return refuse(fault, "an integer", element);
}

bool read(simdjson::dom::element element, std::int32_t& value, Fault& fault) {
    return readNarrow(element, value, fault);
}

bool read(simdjson::dom::element element, std::uint32_t& value, Fault& fault) {
    return readNarrow(element, value, fault);
}

bool read(simdjson::dom::element element, bool& value, Fault& fault) {
    return element.get(value) == simdjson::SUCCESS || refuse(fault, "a boolean", element);
}

bool read(simdjson::dom::element element, std::string& value, Fault& fault) {
    std::string_view text;
    if (element.get(text) != simdjson::SUCCESS)
        return refuse(fault, "a string", element);
    value = text;
    return true;
}

bool read(simdjson::dom::element element, Blob& value, Fault& fault) {
    std::string_view text;
    if (element.get(text) != simdjson::SUCCESS)
        return refuse(fault, "a base64 string", element);
    auto blob = blobFromBase64(text);
    if (!blob) {
        fault = {{}, "a base64 string was expected, found other text"};
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
