#pragma once

#include "facts/fact_store.h"

namespace kavela {

/// Copies files from one store to the end of another. Texts and ranges are moved to where they
/// stand there; texts of files that are left out do not come along.
class FactTransfer {
public:
    /// Both must outlive it, and differ.
    FactTransfer(const FactStore& from, FactStore& to);

    /// Copies the file of that number, from 0, with all its rows; it is then found at `path`.
    void add(std::size_t file, std::string_view path);

private:
    void addRun(const RunRow& row);
    [[nodiscard]] TextId moved(TextId text);
    [[nodiscard]] RowRange movedTexts(RowRange range);
    template <class Row>
    [[nodiscard]] RowRange moved(std::vector<Row> FactStore::*table, RowRange range);

    const FactStore& m_from;
    FactStore& m_to;
    std::vector<TextId> m_texts; ///< by text of the first store; 0 while it was not met
};

} // namespace kavela
