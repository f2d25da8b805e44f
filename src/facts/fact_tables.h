#pragma once

#include "facts/cache_bytes.h"
#include "facts/fact_store.h"

namespace kavela {

/// The tables of a store as bytes. They are read back only where everything in them stands: texts
/// and rows that a row names exist, so that no later use has to ask again.
class FactTables {
public:
    static void write(const FactStore& facts, ByteWriter& bytes);
    /// False when the bytes are no tables of a store; `facts` is then of no use.
    [[nodiscard]] static bool read(ByteReader& bytes, FactStore& facts);

    /// Changes with the shape of any row, and with the machine's way of writing numbers.
    [[nodiscard]] static std::uint64_t layout();

private:
    [[nodiscard]] static bool readTexts(ByteReader& bytes, Texts& texts);
    [[nodiscard]] static bool isSound(const FactStore& facts);
    [[nodiscard]] static bool areFilesSound(const FactStore& facts);
    [[nodiscard]] static bool areRunsSound(const FactStore& facts);
    [[nodiscard]] static bool areNotesSound(const FactStore& facts);
};

} // namespace kavela
