#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// The frame of FIT files: a header of 12 or 14 bytes, messages, and a sum of all bytes. A
/// definition message says which fields, of which size and byte order, the data messages of one of
/// sixteen local types have.
namespace kavela::imports {

/// The sum that closes a file and, where it is not 0, its header.
[[nodiscard]] std::uint16_t fitCrc(std::string_view bytes);

/// A field of a definition.
struct FitField {
    std::uint8_t number = 0;
    std::uint8_t size = 0; ///< bytes
    std::uint8_t baseType = 0;
};

/// How the messages of a local type look.
struct FitDefinition {
    std::uint16_t message = 0; ///< its number among all messages: 20 is a record
    bool isBigEndian = false;
    std::vector<FitField> fields;
    std::size_t fieldBytes = 0;
    std::size_t developerBytes = 0;
};

/// One data message; it looks into the file's bytes.
class FitMessage {
public:
    FitMessage(const FitDefinition& definition, std::string_view bytes,
               std::optional<std::uint32_t> time)
        : m_definition(definition), m_bytes(bytes), m_time(time) {}

    [[nodiscard]] std::uint16_t number() const { return m_definition.message; }

    /// Seconds since 1989-12-31 00:00:00 UTC: the message's own, or of its compressed header.
    [[nodiscard]] std::optional<std::uint32_t> time() const { return m_time; }

    /// The value of a whole-number field of one value; nothing when it is missing, marked as not
    /// valid, or of another type.
    [[nodiscard]] std::optional<std::int64_t> value(std::uint8_t field) const;

private:
    const FitDefinition& m_definition;
    std::string_view m_bytes;
    std::optional<std::uint32_t> m_time;
};

/// Reads the files of a content one message after the other. Every fault is a DecodeError whose
/// place is the byte.
class FitReader {
public:
    explicit FitReader(std::string_view content) : m_content(content) {}

    /// The next data message, nothing at the end of the last file. Valid until the next call.
    [[nodiscard]] std::optional<FitMessage> next();

private:
    void beginFile();
    void checkSums(std::size_t headerSize);
    void readDefinition(std::uint8_t header);
    [[nodiscard]] FitMessage readData(std::uint8_t local, std::optional<std::uint8_t> offset);
    [[nodiscard]] std::uint8_t byte(std::string_view lack);
    [[nodiscard]] std::string_view bytes(std::size_t count, std::string_view lack);
    [[nodiscard]] std::size_t developerBytes();

    std::string_view m_content;
    std::size_t m_place = 0;
    std::size_t m_end = 0; ///< of the present file's messages
    std::array<std::optional<FitDefinition>, 16> m_definitions;
    std::optional<std::uint32_t> m_time; ///< the last one, on which compressed ones build
};

} // namespace kavela::imports
