#pragma once

#include "common/blob.h"
#include "common/cm_time.h"
#include "common/error.h"
#include "common/json_document.h"
#include "common/record.h"
#include "common/reference_date.h"

#include <boost/mp11.hpp>
#include <simdjson.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

/// Reading of records from a parsed document. One generic reader serves every record: each
/// described member must be present with the right kind of value, unknown keys are ignored, keys
/// may stand in any order. On a failure the reader returns false, and the fault says where and
/// what.
namespace kavela {

namespace json_detail {

/// The kinds of values that members have.
enum class Expected : std::uint8_t { Number, Integer, Boolean, String, Base64, Array, Object };

/// Fills `fault` with "… was expected, found …". False.
bool refuse(Fault& fault, Expected expected, simdjson::dom::element found);

/// Tells that a record's key is missing. False.
bool refuseMissing(Fault& fault, std::string_view key);

/// Defined here, since a recording is little else than such numbers.
inline bool read(simdjson::dom::element element, double& value, Fault& fault) {
    return element.get(value) == simdjson::SUCCESS || refuse(fault, Expected::Number, element);
}
bool read(simdjson::dom::element element, std::int64_t& value, Fault& fault);
bool read(simdjson::dom::element element, std::int32_t& value, Fault& fault);
bool read(simdjson::dom::element element, std::uint32_t& value, Fault& fault);
bool read(simdjson::dom::element element, bool& value, Fault& fault);
bool read(simdjson::dom::element element, std::string& value, Fault& fault);
bool read(simdjson::dom::element element, Blob& value, Fault& fault);
bool read(simdjson::dom::element element, ReferenceDate& value, Fault& fault);

template <class T>
bool read(simdjson::dom::element element, std::vector<T>& values, Fault& fault);
template <Record T>
bool read(simdjson::dom::element element, T& record, Fault& fault);

/// Walks through an object in step with a record's declared members: the next key is nearly always
/// the one asked for, and only otherwise is the object searched.
class ObjectCursor {
public:
    explicit ObjectCursor(simdjson::dom::object object)
        : m_begin(object.begin()), m_end(object.end()), m_next(m_begin) {}

    /// Finds the key of a member; false when the object has none of that name. The compiler knows
    /// the name, which makes of the comparison a few instructions instead of a call.
    template <class Member>
    bool find(simdjson::dom::element& value) {
        constexpr std::string_view Name = Member::name;
        if (m_next == m_end)
            return search(Name, value);
        const std::string_view key = m_next.key();
        if (key.size() != Name.size() || std::memcmp(key.data(), Name.data(), Name.size()) != 0)
            return search(Name, value);
        value = m_next.value();
        ++m_next;
        return true;
    }

private:
    bool search(std::string_view name, simdjson::dom::element& value);

    simdjson::dom::object::iterator m_begin;
    simdjson::dom::object::iterator m_end;
    simdjson::dom::object::iterator m_next;
};

template <class Member, class T>
bool readMember(ObjectCursor& cursor, T& value, Fault& fault) {
    simdjson::dom::element element;
    if (!cursor.find<Member>(element))
        return refuseMissing(fault, Member::name);
    if (read(element, value, fault))
        return true;
    fault.prependMember(Member::name);
    return false;
}

template <class T>
bool read(simdjson::dom::element element, std::vector<T>& values, Fault& fault) {
    simdjson::dom::array array;
    if (element.get(array) != simdjson::SUCCESS)
        return refuse(fault, Expected::Array, element);
    values.clear();
    // A damaged file can hold a million numbers where records are due: no more room than this is
    // made before what was made is filled.
    constexpr std::size_t MostAhead = (std::size_t{4} << 20) / sizeof(T) + 1;
    const std::size_t count = array.size();
    std::size_t next = 0;
    for (const simdjson::dom::element entry : array) {
        // The parser counts up to 2^24 and no further.
        if (next == values.size())
            values.resize(std::max(next + 1, std::min(count, next + std::max(next, MostAhead))));
        if (!read(entry, values[next], fault)) {
            fault.prependIndex(next);
            return false;
        }
        ++next;
    }
    return true;
}

template <Record T>
bool read(simdjson::dom::element element, T& record, Fault& fault) {
    simdjson::dom::object object;
    if (element.get(object) != simdjson::SUCCESS)
        return refuse(fault, Expected::Object, element);
    ObjectCursor cursor(object);
    return [&]<class... Member>(boost::mp11::mp_list<Member...>) {
        return (readMember<Member>(cursor, record.*Member::pointer, fault) && ...);
    }(MembersOf<T>{});
}

} // namespace json_detail

/// Reads a record from a parsed document; false, with the fault told, when it is of another type.
/// `record` is then in no particular state.
template <Record T>
[[nodiscard]] bool tryDecode(simdjson::dom::element element, T& record, Fault& fault) {
    return json_detail::read(element, record, fault);
}

/// Reads a record from a parsed document. Throws DecodeError.
template <Record T>
[[nodiscard]] T decode(const JsonDocument& document) {
    T record;
    Fault fault;
    if (!tryDecode(document.root(), record, fault))
        throw DecodeError(std::move(fault));
    return record;
}

/// Reads a record from a text. Throws DecodeError.
template <Record T>
[[nodiscard]] T decodeText(std::string_view text) {
    return decode<T>(JsonDocument::fromText(text));
}

} // namespace kavela
