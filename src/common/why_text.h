#pragma once

#include "common/why.h"

#include <string>

namespace kavela {

/// How a number came about, for people: its text and its rule in words, what went into it and where
/// that stands, the rule in signs with the full number, and the same of the numbers made on the
/// way.
[[nodiscard]] std::string whyText(const Reason& reason);

/// Where an input stands: "race.kvx · run 50 · split 5 · 48.82 s", and in a list
/// "final.csv · line 12 · column 4".
[[nodiscard]] std::string placeText(const Place& place);

/// The full number behind the shown one: "shown +1.02 of 1.0200000000000014"; empty where what is
/// shown is a word.
[[nodiscard]] std::string roundingText(const Reason& reason);

/// The range that the number lies in and where that comes from; empty where none is known.
[[nodiscard]] std::string uncertaintyText(const Reason& reason);

/// "± 0.02 (half a frame, two marks)"; empty where it is not known how sure the number is.
[[nodiscard]] std::string plusMinusText(const Input& input);
/// The number of an input as it is shown: to the hundredth, and a whole one that stands in no file,
/// such as a count, or in a list, as such.
[[nodiscard]] std::string inputText(const Input& input);

} // namespace kavela
