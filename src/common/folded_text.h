#pragma once

#include <string>
#include <string_view>

/// Comparison of names as people write them: without regard to case and accents, numbers by value.
namespace kavela {

/// The text in small letters without accents, whether they are part of the letter or stand behind
/// it: "Šárka ØSTBY" is "sarka ostby". Ligatures become two letters (ß is "ss").
[[nodiscard]] std::string folded(std::string_view text);

/// Whether one name stands before another in a list for people: "run 9" before "Run 10". Names that
/// differ in case, accents or leading zeros alone are ordered too, so that a list has one order.
[[nodiscard]] bool isNaturallyBefore(std::string_view a, std::string_view b);

} // namespace kavela
