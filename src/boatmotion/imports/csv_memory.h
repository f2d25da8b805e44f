#pragma once

#include "boatmotion/imports/sensor_csv.h"

/// How a coach read lists before: a list with the same titles is read in the same way, whatever
/// the titles are guessed to mean.
namespace kavela {

/// A mapping with the titles of its list, on one line. The date of the first sample and the lines
/// before it are those of one list alone and are left out.
[[nodiscard]] std::string rememberedText(const CsvMapping& mapping,
                                         std::span<const std::string> titles);

/// The mapping that was remembered for these titles, with the other values of `guess`; nothing
/// where none was, or what was remembered is damaged.
[[nodiscard]] std::optional<CsvMapping> rememberedMapping(std::span<const std::string> remembered,
                                                          std::span<const std::string> titles,
                                                          const CsvMapping& guess);

/// What is remembered from then on: the latest first, one for each row of titles, not too many.
[[nodiscard]] std::vector<std::string> withMapping(std::vector<std::string> remembered,
                                                   const CsvMapping& mapping,
                                                   std::span<const std::string> titles);

} // namespace kavela
