#include "update/release_files.h"

#include "common/error.h"
#include "common/json_encode.h"

#include <sodium.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <string_view>
#include <system_error>
#include <vector>

namespace kavela::update {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t HashPiece = std::size_t{1} << 20; ///< bytes that are read at once

updatefile001 describedFile(const fs::path& path, const std::string& base) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw FileError(path, std::generic_category().message(errno));
    updatefile001 described;
    described.platform = platformOf(path.filename().string());
    described.address = base + (base.ends_with('/') ? "" : "/") + path.filename().string();
    crypto_hash_sha256_state state{};
    crypto_hash_sha256_init(&state);
    std::vector<char> piece(HashPiece);
    while (file.read(piece.data(), static_cast<std::streamsize>(piece.size())) ||
           file.gcount() > 0) {
        const auto count = static_cast<unsigned long long>(file.gcount());
        crypto_hash_sha256_update(&state, reinterpret_cast<const unsigned char*>(piece.data()),
                                  count);
        described.size += static_cast<std::int64_t>(count);
    }
    if (file.bad())
        throw FileError(path, "It cannot be read to its end.");
    std::array<unsigned char, crypto_hash_sha256_BYTES> hash{};
    crypto_hash_sha256_final(&state, hash.data());
    std::array<char, crypto_hash_sha256_BYTES * 2 + 1> digits{};
    sodium_bin2hex(digits.data(), digits.size(), hash.data(), hash.size());
    described.sha256 = digits.data();
    return described;
}

std::string lastPartOf(std::string_view name, std::string_view ending, char before) {
    if (!name.starts_with("kavela") || !name.ends_with(ending))
        return {};
    name.remove_suffix(ending.size());
    const std::size_t begin = name.rfind(before);
    return begin == std::string_view::npos ? std::string() : std::string(name.substr(begin + 1));
}

} // namespace

std::string platformOf(const std::string& fileName) {
    if (const std::string architecture = lastPartOf(fileName, ".deb", '_'); !architecture.empty())
        return "deb-" + architecture;
    if (const std::string architecture = lastPartOf(fileName, ".tar.zst", '-');
        !architecture.empty())
        return "bundle-" + architecture;
    return {};
}

std::string manifestText(const Release& release) {
    updatemanifest001 manifest{release.version, release.date, release.notes, {}};
    for (const fs::path& path : release.files)
        manifest.files.push_back(describedFile(path, release.base));
    std::string text = encode(manifest) + '\n';
    (void)readManifest(text); // what the program would refuse is not given out
    return text;
}

} // namespace kavela::update
