#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Addresses of films and of the lists that name them.
namespace kavela::fetch {

/// An address taken apart: http or https, without user name, password or fragment. Path and query
/// are percent-encoded as they are sent.
struct Address {
    std::string scheme; ///< "http" or "https"
    std::string host;   ///< small letters; an IPv6 address in its brackets
    int port = 0;       ///< 1 to 65535, that of the scheme where none was written
    std::string path;   ///< begins with a slash
    std::string query;  ///< begins with a question mark; empty for none

    [[nodiscard]] std::string text() const;
    /// The server as people read it: the host, with the port where it is not the usual one.
    [[nodiscard]] std::string site() const;
    /// Whether a password for one may be shown to the other.
    [[nodiscard]] bool isSameOrigin(const Address& other) const;
    /// The last part of the path as people write it, with every character that it stands for;
    /// nothing of it is safe as the name of a file.
    [[nodiscard]] std::string lastName() const;

    friend bool operator==(const Address&, const Address&) = default;
};

/// Nothing for what is no such address, and for one with a user name or password in it, which
/// would be shown and kept. Blanks and letters beyond ASCII are encoded.
[[nodiscard]] std::optional<Address> parsedAddress(std::string_view text);

/// Where a link leads that was found at `base`; nothing where it is none of http or https.
[[nodiscard]] std::optional<Address> resolved(const Address& base, std::string_view link);

/// A text as it stands within one part of a path.
[[nodiscard]] std::string percentEncoded(std::string_view text);

} // namespace kavela::fetch
