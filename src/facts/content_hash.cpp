#include "facts/content_hash.h"

#include "common/posix_file.h"

#include <fcntl.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <vector>

namespace kavela {

namespace {

/// Odd, so that multiplying by it loses nothing.
constexpr std::uint64_t Factor = 0x9E3779B97F4A7C15U;
constexpr int Turn = 29;

std::uint64_t mixed(std::uint64_t lane, std::uint64_t word) {
    return std::rotl((lane ^ word) * Factor, Turn);
}

} // namespace

void ContentHash::addBlock(const char* block) {
    for (std::size_t i = 0; i < Lanes; ++i) {
        std::uint64_t word = 0;
        std::memcpy(&word, block + i * sizeof word, sizeof word);
        m_lanes[i] = mixed(m_lanes[i], word);
    }
}

void ContentHash::add(std::string_view bytes) {
    m_bytes += bytes.size();
    if (m_restBytes > 0) {
        const std::size_t taken = std::min(bytes.size(), BlockBytes - m_restBytes);
        std::copy_n(bytes.data(), taken, m_rest.data() + m_restBytes);
        m_restBytes += taken;
        bytes.remove_prefix(taken);
        if (m_restBytes < BlockBytes)
            return;
        addBlock(m_rest.data());
    }
    for (; bytes.size() >= BlockBytes; bytes.remove_prefix(BlockBytes))
        addBlock(bytes.data());
    m_restBytes = bytes.size();
    std::copy_n(bytes.data(), m_restBytes, m_rest.data());
}

std::uint64_t ContentHash::value() const {
    ContentHash last = *this;
    std::fill(last.m_rest.begin() + static_cast<std::ptrdiff_t>(m_restBytes), last.m_rest.end(),
              '\0');
    last.addBlock(last.m_rest.data());
    std::uint64_t value = m_bytes;
    for (const std::uint64_t lane : last.m_lanes)
        value = mixed(value, lane);
    return value;
}

std::uint64_t contentHash(std::string_view bytes) {
    ContentHash hash;
    hash.add(bytes);
    return hash.value();
}

std::uint64_t contentHashOf(const std::filesystem::path& path) {
    constexpr std::size_t ChunkBytes = 1U << 18;
    const PosixFile file(path, O_RDONLY);
    ContentHash hash;
    std::vector<char> chunk(ChunkBytes);
    for (;;) {
        const ssize_t got = ::read(file.descriptor(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw systemFileError(path);
        if (got == 0)
            return hash.value();
        hash.add({chunk.data(), static_cast<std::size_t>(got)});
    }
}

} // namespace kavela
