#pragma once

#include "fetch/address.h"

#include <boost/describe.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a server tells of the newest version of the program, and when it is believed.
namespace kavela::update {

/// One file of a version.
struct updatefile001 {
    std::string platform;  ///< whom it is for, such as "deb-amd64"
    std::string address;   ///< https, or a server on this computer
    std::int64_t size = 0; ///< bytes
    std::string sha256;    ///< 64 small hexadecimal digits

    friend bool operator==(const updatefile001&, const updatefile001&) = default;
};
BOOST_DESCRIBE_STRUCT(updatefile001, (), (platform, address, size, sha256))

struct updatemanifest001 {
    std::string version; ///< "0.32.0"
    std::string date;    ///< "2026-11-22"
    std::string notes;   ///< plain text; may be empty
    std::vector<updatefile001> files;

    friend bool operator==(const updatemanifest001&, const updatemanifest001&) = default;
};
BOOST_DESCRIBE_STRUCT(updatemanifest001, (), (version, date, notes, files))

/// A longer manifest is not read to its end.
inline constexpr std::size_t MostManifestBytes = 1'000'000;
/// Of one file: more than a disk should be filled with unasked.
inline constexpr std::int64_t MostFileBytes = 4'000'000'000;

/// A manifest whose every field holds what it should. Throws DecodeError, which names the place,
/// for anything else.
[[nodiscard]] updatemanifest001 readManifest(std::string_view text);

/// An address that may be asked: https, or http of this computer itself. Nothing for any other.
[[nodiscard]] std::optional<fetch::Address> safeAddress(std::string_view text);

/// The name under which a file of an address is put into a folder; empty where the last part of the
/// address is no plain name.
[[nodiscard]] std::string fileNameOf(const fetch::Address& address);

} // namespace kavela::update
