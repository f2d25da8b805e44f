#pragma once

#include "facts/fact_store.h"

#include <string>
#include <vector>

namespace kavela::cli {

/// A column of a table that is written for other programs.
struct FactColumn {
    std::string name;
    std::string kind; ///< key, text, number, whole, truth, code
    std::string unit;
    std::string meaning;
};

/// A table that is written for other programs.
struct FactSheet {
    std::string name;
    std::vector<FactColumn> columns;
    std::string rows; ///< lines of fields with semicolons between them

    /// The line above the rows.
    [[nodiscard]] std::string titles() const;
};

/// All that the files say, as tables that their keys join; last the one that describes the columns.
[[nodiscard]] std::vector<FactSheet> factSheets(const FactStore& facts);

} // namespace kavela::cli
