#pragma once

#include "common/record.h"

#include <boost/mp11.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// Conversion of an older record to a newer one, by name: each member of the newer record is filled
/// from the older one's member of the same name, nested records likewise, and what the older one
/// lacks stays at its empty value. A member of the same name that cannot be converted does not
/// compile, so nothing is dropped by oversight.
///
/// A real change of shape is an overload beside the records: of `convertValue` where a member kept
/// its name, of `convertRenamed` where it did not.
namespace kavela {

/// Members that changed their name: nothing, unless a record family says otherwise.
template <class From, class To>
void convertRenamed(From&, To&) {}

template <class T>
void convertValue(T&& from, T& to) {
    to = std::forward<T>(from);
}

/// One value became a list of values: a single video, the marks of one camera.
template <class T>
void convertValue(T&& from, std::vector<T>& to) {
    to.clear();
    to.push_back(std::forward<T>(from));
}

/// A number kept as text: 0 when the text is no whole number.
void convertValue(std::string&& from, std::int64_t& to);

/// Lines of text became one text.
void convertValue(std::vector<std::string>&& from, std::string& to);

template <Record From, Record To>
requires(!std::is_same_v<From, To>) void convertValue(std::vector<From>&& from,
                                                      std::vector<To>& to);

template <Record From, Record To>
requires(!std::is_same_v<From, To>) void convertValue(From&& from, To& to);

namespace convert_detail {

template <class Newer>
struct SameNameAs {
    template <class Older>
    using fn = boost::mp11::mp_bool<std::string_view(Older::name) == Newer::name>;
};

template <class Newer, Record From, class Target>
void fillMember(From& from, Target& target) {
    using Older = MembersOf<From>;
    constexpr std::size_t At = boost::mp11::mp_find_if_q<Older, SameNameAs<Newer>>::value;
    if constexpr (At < boost::mp11::mp_size<Older>::value)
        convertValue(std::move(from.*boost::mp11::mp_at_c<Older, At>::pointer), target);
}

} // namespace convert_detail

template <Record From, Record To>
requires(!std::is_same_v<From, To>) void convertValue(std::vector<From>&& from,
                                                      std::vector<To>& to) {
    to.clear();
    to.resize(from.size());
    for (std::size_t i = 0; i < from.size(); ++i)
        convertValue(std::move(from[i]), to[i]);
}

template <Record From, Record To>
requires(!std::is_same_v<From, To>) void convertValue(From&& from, To& to) {
    [&]<class... Newer>(boost::mp11::mp_list<Newer...>) {
        (convert_detail::fillMember<Newer>(from, to.*Newer::pointer), ...);
    }(MembersOf<To>{});
    convertRenamed(from, to);
}

/// A newer record from an older one.
template <Record To, Record From>
[[nodiscard]] To converted(From from) {
    To to;
    convertValue(std::move(from), to);
    return to;
}

} // namespace kavela
