#pragma once

#include "common/safe_file.h"

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// Plain values one behind the other, as they stand in memory.
namespace kavela {

class ByteWriter {
public:
    /// Hands the bytes on piece by piece; the last of them by finish().
    explicit ByteWriter(PieceWriter write) : m_write(std::move(write)) {
        m_waiting.reserve(WaitingBytes);
    }

    template <class Value>
    void put(const Value& value) {
        static_assert(std::is_trivially_copyable_v<Value>);
        putBytes({reinterpret_cast<const char*>(&value), sizeof value});
    }

    template <class Row>
    void putRows(const std::vector<Row>& rows) {
        static_assert(std::is_trivially_copyable_v<Row>);
        put(static_cast<std::uint64_t>(rows.size()));
        putBytes({reinterpret_cast<const char*>(rows.data()), rows.size() * sizeof(Row)});
    }

    void putText(std::string_view text) {
        put(static_cast<std::uint64_t>(text.size()));
        putBytes(text);
    }

    void finish() {
        m_write(m_waiting);
        m_waiting.clear();
    }

private:
    static constexpr std::size_t WaitingBytes = 1U << 16;

    void putBytes(std::string_view bytes) {
        if (m_waiting.size() + bytes.size() > WaitingBytes)
            finish();
        if (bytes.size() > WaitingBytes)
            m_write(bytes);
        else
            m_waiting.append(bytes);
    }

    PieceWriter m_write;
    std::string m_waiting; ///< many small values make one piece
};

/// Reads what the writer wrote. Each call says whether the bytes reach so far.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : m_rest(bytes) {}

    template <class Value>
    [[nodiscard]] bool get(Value& value) {
        static_assert(std::is_trivially_copyable_v<Value>);
        if (m_rest.size() < sizeof value)
            return false;
        std::memcpy(&value, m_rest.data(), sizeof value);
        m_rest.remove_prefix(sizeof value);
        return true;
    }

    template <class Row>
    [[nodiscard]] bool getRows(std::vector<Row>& rows) {
        std::uint64_t count = 0;
        if (!get(count) || count > m_rest.size() / sizeof(Row))
            return false;
        rows.resize(count);
        if (count > 0)
            std::memcpy(static_cast<void*>(rows.data()), m_rest.data(), count * sizeof(Row));
        m_rest.remove_prefix(count * sizeof(Row));
        return true;
    }

    [[nodiscard]] bool getText(std::string_view& text) {
        std::uint64_t size = 0;
        if (!get(size) || size > m_rest.size())
            return false;
        text = m_rest.substr(0, size);
        m_rest.remove_prefix(size);
        return true;
    }

    [[nodiscard]] bool isAtEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};

} // namespace kavela
