#pragma once

#include <cstdint>
#include <span>
#include <string_view>

/// What is made of the catalogues while Kavela is built.
namespace kavela {

/// The texts of one language. `words` holds every text and behind it its translation, or the forms
/// of one, each ended by a null; `starts` says where each text begins, in the order of the texts.
/// Nothing in it has to be put right when the program is loaded.
struct CatalogueData {
    std::string_view code;
    bool isComplete = false;
    const char* words = nullptr;
    std::span<const std::uint32_t> starts;
    /// For each text how many forms stand behind it: 1 for one that is not counted.
    std::span<const std::uint8_t> forms;
};

[[nodiscard]] std::span<const CatalogueData> builtInData();

} // namespace kavela
