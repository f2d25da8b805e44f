#pragma once

#include "common/blob.h"
#include "common/error.h"
#include "common/record.h"
#include "common/reference_date.h"

#include <boost/mp11.hpp>

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Writing of records as JSON: compact, keys in declared order, numbers as the shortest text that
/// reads back the same. What JSON cannot hold (a number that is not finite, text that is not UTF-8)
/// is refused before a byte reaches the disk.
namespace kavela {

namespace json_detail {

bool write(std::string& json, double value, Fault& fault);
bool write(std::string& json, std::int64_t value, Fault& fault);
bool write(std::string& json, std::int32_t value, Fault& fault);
bool write(std::string& json, std::uint32_t value, Fault& fault);
bool write(std::string& json, bool value, Fault& fault);
bool write(std::string& json, const std::string& value, Fault& fault);
bool write(std::string& json, const Blob& value, Fault& fault);
bool write(std::string& json, const ReferenceDate& value, Fault& fault);

template <class T>
bool write(std::string& json, const std::optional<T>& value, Fault& fault);
template <class T>
bool write(std::string& json, const std::vector<T>& values, Fault& fault);
template <class T, std::size_t N>
bool write(std::string& json, const std::array<T, N>& values, Fault& fault);
template <class T>
bool write(std::string& json, const std::map<std::string, T>& values, Fault& fault);
template <Record T>
bool write(std::string& json, const T& record, Fault& fault);

/// Makes room for the rest of a long array once its first entry is written: what comes is seldom
/// much longer, and a text that outgrows its room is copied.
void makeRoomForRest(std::string& json, std::size_t firstEntry, std::size_t count);

template <class Values>
bool writeArray(std::string& json, const Values& values, Fault& fault) {
    json += '[';
    const std::size_t begin = json.size();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            json += ',';
        if (!write(json, values[i], fault)) {
            fault.prependIndex(i);
            return false;
        }
        if (i == 0)
            makeRoomForRest(json, json.size() - begin, values.size() - 1);
    }
    json += ']';
    return true;
}

/// Writes one member with the separator before it: "{" for a record's first, "," for the others.
template <class T>
bool writeMember(std::string& json, char separator, std::string_view name, const T& value,
                 Fault& fault) {
    json += separator;
    json += '"';
    json += name; // member names are plain letters: nothing to escape
    json += "\":";
    if (write(json, value, fault))
        return true;
    fault.prependMember(name);
    return false;
}

template <class T>
bool write(std::string& json, const std::optional<T>& value, Fault& fault) {
    if (value)
        return write(json, *value, fault);
    json += "null";
    return true;
}

template <class T>
bool write(std::string& json, const std::vector<T>& values, Fault& fault) {
    return writeArray(json, values, fault);
}

template <class T, std::size_t N>
bool write(std::string& json, const std::array<T, N>& values, Fault& fault) {
    return writeArray(json, values, fault);
}

/// An object whose keys are known only at run time; they must be plain letters.
template <class T>
bool write(std::string& json, const std::map<std::string, T>& values, Fault& fault) {
    if (values.empty())
        json += '{';
    char separator = '{';
    for (const auto& [name, value] : values)
        if (!writeMember(json, std::exchange(separator, ','), name, value, fault))
            return false;
    json += '}';
    return true;
}

template <Record T>
bool write(std::string& json, const T& record, Fault& fault) {
    char separator = '{';
    const bool written = [&]<class... Member>(boost::mp11::mp_list<Member...>) {
        return (writeMember(json, std::exchange(separator, ','), Member::name,
                            record.*Member::pointer, fault) &&
                ...);
    }(MembersOf<T>{});
    json += '}';
    return written;
}

} // namespace json_detail

/// The JSON text of a record, or of an array of records or values. Throws EncodeError, naming the
/// place of what JSON cannot hold.
template <class T>
[[nodiscard]] std::string encode(const T& value) {
    std::string json;
    Fault fault;
    if (!json_detail::write(json, value, fault))
        throw EncodeError(fault);
    return json;
}

} // namespace kavela
