#pragma once

#include <boost/describe.hpp>
#include <boost/mp11.hpp>

#include <type_traits>

namespace kavela {

/// A record of a file format: a struct whose members are the JSON keys, described to the compiler.
template <class T>
concept Record = std::is_class_v<T> && boost::describe::has_describe_members<T>::value;

/// The members of a record in declared order, those of its bases first.
template <Record T>
using MembersOf =
    boost::mp11::mp_rename<boost::describe::describe_members<T, boost::describe::mod_public |
                                                                    boost::describe::mod_inherited>,
                           boost::mp11::mp_list>;

} // namespace kavela
