#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// The training categories of a session's values and of a week's totals: entry i of `data`, `total`
/// and `totalq` belongs to category i of this list.
namespace kavela {

inline constexpr std::array<std::string_view, 8> TrainingCategories{
    "Aerobic lipolytic",   "Aerobic glucolytic",        "Aerobic capacity",
    "Alactic capacity", // up to here on the water, from here on in the gym
    "Anatomic Adaptation", "Maximum Strenght Capacity", "Explosive Strength", "Strength Endurance"};

inline constexpr std::size_t WaterCategories = 4;

/// The same category as it is also written.
inline constexpr std::string_view MaximumStrengthCapacity = "Maximum Strength Capacity";

/// The label of a category; "Category 9" for one of a file that knows more of them.
[[nodiscard]] inline std::string trainingCategory(std::size_t index) {
    return index < TrainingCategories.size() ? std::string(TrainingCategories[index])
                                             : "Category " + std::to_string(index + 1);
}

} // namespace kavela
