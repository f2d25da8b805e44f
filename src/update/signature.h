#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

/// Signatures by Ed25519. Keys and signatures are written in small hexadecimal digits.
namespace kavela::update {

using PublicKey = std::array<unsigned char, 32>;

/// Nothing for a text that is not 64 hexadecimal digits.
[[nodiscard]] std::optional<PublicKey> parsedPublicKey(std::string_view digits);

/// Whether a signature, 128 digits with maybe a line end behind them, was made of this content by
/// the owner of the key.
[[nodiscard]] bool isSignedBy(const PublicKey& key, std::string_view content,
                              std::string_view signature);

struct KeyPair {
    std::string publicKey; ///< 64 digits, for everybody
    std::string secretKey; ///< 128 digits, for who signs alone
};
/// A new pair. Throws std::runtime_error where this computer has no good chance to draw from.
[[nodiscard]] KeyPair newKeyPair();

/// The signature of a content, 128 digits. Throws std::runtime_error for what is no secret key.
[[nodiscard]] std::string signatureOf(std::string_view secretKey, std::string_view content);

/// The public key that belongs to a secret one, 64 digits. Throws as signatureOf().
[[nodiscard]] std::string publicKeyOf(std::string_view secretKey);

} // namespace kavela::update
