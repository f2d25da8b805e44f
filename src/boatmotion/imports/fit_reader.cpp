#include "boatmotion/imports/fit_reader.h"

#include "common/error.h"
#include "common/text.h"

#include <string>

namespace kavela::imports {

namespace {

constexpr std::uint8_t TimeField = 253;
constexpr std::size_t ShortHeader = 12;
constexpr std::size_t LongHeader = 14;
constexpr std::string_view EndsInDefinition = KAVELA_TEXT("the messages end within a definition");
constexpr std::string_view EndsInMessage = KAVELA_TEXT("the messages end within a message");

DecodeError fault(std::size_t place, const std::string& text) {
    return DecodeError({say("byte {}", place), text});
}

std::uint64_t number(std::string_view bytes, bool isBigEndian) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t at = isBigEndian ? i : bytes.size() - 1 - i;
        value = value << 8U | static_cast<std::uint8_t>(bytes[at]);
    }
    return value;
}

/// A whole-number type: its size, whether it has a sign, and whether 0 marks it as not valid.
struct IntegerType {
    std::size_t size = 0;
    bool hasSign = false;
    bool isZeroInvalid = false;
};

std::optional<IntegerType> integerType(std::uint8_t baseType) {
    switch (baseType & 0x1FU) {
    case 0: // a code
    case 2:
        return IntegerType{1, false, false};
    case 1:
        return IntegerType{1, true, false};
    case 3:
        return IntegerType{2, true, false};
    case 4:
        return IntegerType{2, false, false};
    case 5:
        return IntegerType{4, true, false};
    case 6:
        return IntegerType{4, false, false};
    case 10:
        return IntegerType{1, false, true};
    case 11:
        return IntegerType{2, false, true};
    case 12:
        return IntegerType{4, false, true};
    default:
        return std::nullopt;
    }
}

std::optional<std::int64_t> integer(const FitField& field, std::string_view bytes,
                                    bool isBigEndian) {
    const auto type = integerType(field.baseType);
    if (!type || type->size != field.size)
        return std::nullopt;
    const std::uint64_t raw = number(bytes, isBigEndian);
    const std::uint64_t range = std::uint64_t{1} << (8 * type->size);
    const std::uint64_t invalid = type->isZeroInvalid ? 0
                                  : type->hasSign     ? range / 2 - 1
                                                      : range - 1;
    if (raw == invalid)
        return std::nullopt;
    const auto value = static_cast<std::int64_t>(raw);
    return type->hasSign && raw >= range / 2 ? value - static_cast<std::int64_t>(range) : value;
}

} // namespace

std::uint16_t fitCrc(std::string_view bytes) {
    constexpr std::array<std::uint16_t, 16> Table = {0x0000, 0xCC01, 0xD801, 0x1400, 0xF001, 0x3C00,
                                                     0x2800, 0xE401, 0xA001, 0x6C00, 0x7800, 0xB401,
                                                     0x5000, 0x9C01, 0x8801, 0x4400};
    unsigned sum = 0;
    for (const char letter : bytes) {
        const auto value = static_cast<std::uint8_t>(letter);
        sum = (sum >> 4U) ^ Table[sum & 0xFU] ^ Table[value & 0xFU];
        sum = (sum >> 4U) ^ Table[sum & 0xFU] ^ Table[value >> 4U];
    }
    return static_cast<std::uint16_t>(sum);
}

std::optional<std::int64_t> FitMessage::value(std::uint8_t field) const {
    std::size_t place = 0;
    for (const FitField& candidate : m_definition.fields) {
        if (candidate.number == field)
            return integer(candidate, m_bytes.substr(place, candidate.size),
                           m_definition.isBigEndian);
        place += candidate.size;
    }
    return std::nullopt;
}

std::string_view FitReader::bytes(std::size_t count, std::string_view lack) {
    if (count > m_end - m_place)
        throw fault(m_place, std::string(translated(lack)));
    const std::string_view taken = m_content.substr(m_place, count);
    m_place += count;
    return taken;
}

std::uint8_t FitReader::byte(std::string_view lack) {
    return static_cast<std::uint8_t>(bytes(1, lack).front());
}

void FitReader::checkSums(std::size_t headerSize) {
    const auto sumAt = [&](std::size_t place) {
        return static_cast<std::uint16_t>(number(m_content.substr(place, 2), false));
    };
    if (headerSize == LongHeader && sumAt(m_place + ShortHeader) != 0 &&
        sumAt(m_place + ShortHeader) != fitCrc(m_content.substr(m_place, ShortHeader)))
        throw fault(m_place + ShortHeader, say("the header's check sum does not agree"));
    if (sumAt(m_end) != fitCrc(m_content.substr(m_place, m_end - m_place)))
        throw fault(m_end, say("the file's check sum does not agree: bytes of it are damaged"));
}

void FitReader::beginFile() {
    const std::size_t left = m_content.size() - m_place;
    if (left < ShortHeader)
        throw fault(m_content.size(), say("the file ends within a header"));
    const auto headerSize = static_cast<std::uint8_t>(m_content[m_place]);
    if (headerSize != ShortHeader && headerSize != LongHeader)
        throw fault(m_place, say("a header of {} bytes: it has to have 12 or 14", headerSize));
    if (m_content.substr(m_place + 8, 4) != ".FIT")
        throw fault(m_place + 8, say("the header does not say that this is a FIT file"));
    const std::uint64_t size = number(m_content.substr(m_place + 4, 4), false);
    if (size == 0)
        throw fault(m_place + 4, say("the recording was not finished by its device: it is empty"));
    if (left < headerSize + size + 2)
        throw fault(m_content.size(), say("the file ends here, but its header announces {} bytes",
                                          headerSize + size + 2));
    m_end = m_place + headerSize + static_cast<std::size_t>(size);
    checkSums(headerSize);
    m_place += headerSize;
    m_definitions = {};
    m_time.reset();
}

std::size_t FitReader::developerBytes() {
    const std::uint8_t count = byte(EndsInDefinition);
    std::size_t sum = 0;
    for (std::uint8_t i = 0; i < count; ++i)
        sum += static_cast<std::uint8_t>(bytes(3, EndsInDefinition)[1]);
    return sum;
}

void FitReader::readDefinition(std::uint8_t header) {
    FitDefinition definition;
    (void)byte(EndsInDefinition);
    const std::size_t orderPlace = m_place;
    const std::uint8_t order = byte(EndsInDefinition);
    if (order > 1)
        throw fault(orderPlace, say("a byte order of {}: it is 0 or 1", order));
    definition.isBigEndian = order == 1;
    definition.message =
        static_cast<std::uint16_t>(number(bytes(2, EndsInDefinition), definition.isBigEndian));
    const std::uint8_t count = byte(EndsInDefinition);
    definition.fields.reserve(count);
    for (std::uint8_t i = 0; i < count; ++i) {
        const std::string_view field = bytes(3, EndsInDefinition);
        definition.fields.push_back({static_cast<std::uint8_t>(field[0]),
                                     static_cast<std::uint8_t>(field[1]),
                                     static_cast<std::uint8_t>(field[2])});
        definition.fieldBytes += definition.fields.back().size;
    }
    if (header & 0x20U)
        definition.developerBytes = developerBytes();
    m_definitions[header & 0x0FU] = std::move(definition);
}

/// A compressed header holds the lowest five bits of the time; they have gone round once when they
/// are below those of the last time.
FitMessage FitReader::readData(std::uint8_t local, std::optional<std::uint8_t> offset) {
    const auto& definition = m_definitions[local];
    if (!definition)
        throw fault(m_place - 1, say("a message of type {}, which is not defined", local));
    const std::string_view fields = bytes(definition->fieldBytes, EndsInMessage);
    (void)bytes(definition->developerBytes, EndsInMessage);
    if (offset && m_time)
        m_time = *m_time + ((*offset - *m_time) & 0x1FU);
    const auto own = FitMessage(*definition, fields, std::nullopt).value(TimeField);
    if (own && *own >= 0)
        m_time = static_cast<std::uint32_t>(*own);
    return {*definition, fields, own || offset ? m_time : std::nullopt};
}

std::optional<FitMessage> FitReader::next() {
    for (;;) {
        if (m_place == m_end) {
            m_place += m_end == 0 ? 0 : 2;
            if (m_place == m_content.size())
                return std::nullopt;
            beginFile();
        }
        const std::uint8_t header = byte(EndsInMessage);
        if (header & 0x80U)
            return readData(header >> 5U & 0x03U, static_cast<std::uint8_t>(header & 0x1FU));
        if (!(header & 0x40U))
            return readData(header & 0x0FU, std::nullopt);
        readDefinition(header);
    }
}

} // namespace kavela::imports
