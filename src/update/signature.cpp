#include "update/signature.h"

#include <sodium.h>

#include <algorithm>
#include <cstddef>
#include <span>
#include <stdexcept>

namespace kavela::update {

namespace {

static_assert(std::tuple_size_v<PublicKey> == crypto_sign_PUBLICKEYBYTES);
using SecretKey = std::array<unsigned char, crypto_sign_SECRETKEYBYTES>;
using Signature = std::array<unsigned char, crypto_sign_BYTES>;

std::string_view withoutLineEnd(std::string_view text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' '))
        text.remove_suffix(1);
    return text;
}

template <std::size_t N>
std::optional<std::array<unsigned char, N>> bytesOfHex(std::string_view digits) {
    std::array<unsigned char, N> bytes{};
    std::size_t count = 0;
    digits = withoutLineEnd(digits);
    const bool isHex =
        digits.size() == 2 * N && sodium_hex2bin(bytes.data(), N, digits.data(), digits.size(),
                                                 nullptr, &count, nullptr) == 0;
    if (!isHex || count != N)
        return std::nullopt;
    return bytes;
}

std::string hexOf(std::span<const unsigned char> bytes) {
    std::string digits(bytes.size() * 2 + 1, '\0'); // with the zero that the library ends it by
    sodium_bin2hex(digits.data(), digits.size(), bytes.data(), bytes.size());
    digits.pop_back();
    return digits;
}

const unsigned char* bytesOf(std::string_view content) {
    return reinterpret_cast<const unsigned char*>(content.data());
}

/// It may be called often.
bool isSodiumReady() {
    return sodium_init() >= 0;
}

SecretKey parsedSecretKey(std::string_view digits) {
    const auto key = bytesOfHex<crypto_sign_SECRETKEYBYTES>(digits);
    if (!key)
        throw std::runtime_error("A secret key of 128 hexadecimal digits was expected.");
    return *key;
}

} // namespace

std::optional<PublicKey> parsedPublicKey(std::string_view digits) {
    return bytesOfHex<crypto_sign_PUBLICKEYBYTES>(digits);
}

bool isSignedBy(const PublicKey& key, std::string_view content, std::string_view signature) {
    const auto bytes = bytesOfHex<crypto_sign_BYTES>(signature);
    return bytes && isSodiumReady() &&
           crypto_sign_verify_detached(bytes->data(), bytesOf(content), content.size(),
                                       key.data()) == 0;
}

KeyPair newKeyPair() {
    if (!isSodiumReady())
        throw std::runtime_error("This computer has no good source of chance.");
    PublicKey publicKey{};
    SecretKey secretKey{};
    crypto_sign_keypair(publicKey.data(), secretKey.data());
    return {hexOf(publicKey), hexOf(secretKey)};
}

std::string signatureOf(std::string_view secretKey, std::string_view content) {
    const SecretKey key = parsedSecretKey(secretKey);
    Signature signature{};
    const bool isSigned =
        isSodiumReady() && crypto_sign_detached(signature.data(), nullptr, bytesOf(content),
                                                content.size(), key.data()) == 0;
    if (!isSigned)
        throw std::runtime_error("The content could not be signed.");
    return hexOf(signature);
}

std::string publicKeyOf(std::string_view secretKey) {
    const SecretKey key = parsedSecretKey(secretKey);
    PublicKey publicKey{};
    crypto_sign_ed25519_sk_to_pk(publicKey.data(), key.data());
    return hexOf(publicKey);
}

} // namespace kavela::update
