#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace kavela {

/// A number of 64 bits that tells contents apart, at the speed of reading them. Where a single word
/// of eight bytes was changed it always differs. Good against damage, not against forgery.
class ContentHash {
public:
    void add(std::string_view bytes);
    [[nodiscard]] std::uint64_t value() const;

private:
    static constexpr std::size_t Lanes = 4;
    static constexpr std::size_t BlockBytes = Lanes * sizeof(std::uint64_t);

    void addBlock(const char* block);

    std::array<std::uint64_t, Lanes> m_lanes{1, 2, 3, 4};
    std::array<char, BlockBytes> m_rest{}; ///< what does not yet fill a block
    std::size_t m_restBytes = 0;
    std::uint64_t m_bytes = 0;
};

[[nodiscard]] std::uint64_t contentHash(std::string_view bytes);

/// Of a file's content. Throws FileError.
[[nodiscard]] std::uint64_t contentHashOf(const std::filesystem::path& path);

} // namespace kavela
