#include "facts/fact_cache.h"
#include "facts/content_hash.h"
#include "facts/fact_transfer.h"
#include "harness.h"

#include <cstring>

namespace {

std::string encodedCache(const kavela::FactCache& cache) {
    std::string text;
    putCache(cache, [&text](std::string_view piece) { text += piece; });
    return text;
}

} // namespace

/// Cache files with any content behind a checksum that is right. One that is taken can be used to
/// its last row, and writes the same bytes again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    constexpr std::size_t HeadBytes = 24;
    std::string text = encodedCache({}).substr(0, HeadBytes);
    text.append(reinterpret_cast<const char*>(bytes), size);
    const std::uint64_t checksum = contentHash(std::string_view(text).substr(HeadBytes));
    std::memcpy(text.data() + HeadBytes - sizeof checksum, &checksum, sizeof checksum);
    const auto cache = decodedCache(text);
    if (!cache)
        return 0;
    fuzz::require(encodedCache(*cache) == text);
    FactStore copy;
    copy.add(cache->facts);
    fuzz::require(copy.files().size() == cache->facts.files().size());
    return 0;
}
