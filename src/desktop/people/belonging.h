#pragma once

#include <cstddef>

namespace kavela::desktop {

/// Whose a name is that a file has, as found by itself or chosen by hand.
struct Belonging {
    enum class To { Nobody, Person, NewPerson };

    To to = To::Nobody;
    std::size_t person = 0; ///< which one of the people, where it is one of them

    [[nodiscard]] static Belonging toPerson(std::size_t person) { return {To::Person, person}; }
    [[nodiscard]] static Belonging toNewPerson() { return {To::NewPerson, 0}; }

    friend bool operator==(const Belonging&, const Belonging&) = default;
};

} // namespace kavela::desktop
