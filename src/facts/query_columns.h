#pragma once

#include "facts/fact_store.h"
#include "splitdata/annotation_labels.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What a query can ask for, and what every kind of row tells.
namespace kavela {

/// The kinds of rows.
enum class What : std::uint8_t { Runs, Sections, Gates, Penalties, Losses, Strokes, Tags };

inline constexpr std::size_t WhatCount = 7;

/// The word for a kind of rows: "gates".
[[nodiscard]] std::string_view wordOf(What what);
[[nodiscard]] std::optional<What> whatOf(std::string_view word);

/// Where a row stands while its columns are asked. What it has none of is null.
struct RowCursor {
    const FactStore* facts = nullptr;
    const FileRow* file = nullptr;
    const RunRow* run = nullptr;
    std::size_t runIndex = 0; ///< in the store
    std::optional<int> rank;  ///< of the run, where a query asks for it
    std::size_t section = 0;  ///< of the row, from 1; 0 for none
    const SectionRow* sectionRow = nullptr;
    const GateRow* gate = nullptr;
    const PenaltyRow* penalty = nullptr;
    std::int64_t seconds = 0; ///< of a penalty
    const LossRow* loss = nullptr;
    const TagRow* tag = nullptr;
};

/// What the values of a column are.
enum class ColumnKind : std::uint8_t {
    Name,    ///< text: a query's words begin words of it
    Number,  ///< whole
    Measure, ///< seconds or percent, compared to the hundredth
    Day,     ///< a day, as its number since 1970
    Label,   ///< a word of one of the lists of annotation_labels.h
    Way      ///< "up" or "down"
};

/// On what a value depends: rows of one run share those of their run and file.
enum class ColumnLevel : std::uint8_t { File, Run, Row };

struct QueryColumn {
    std::string_view name;
    std::uint8_t whats; ///< bits by What
    ColumnLevel level;
    ColumnKind kind;
    std::string_view unit;
    std::string_view meaning;
    /// The value of a number, a measure, a day; the code of a label, 1 for up and 0 for down.
    /// NotKnown where a row has none.
    double (*number)(const RowCursor& row) = nullptr;
    /// The text of a name as it is shown.
    TextId (*text)(const RowCursor& row) = nullptr;
    /// The same for all ways of writing it, where that is more than the text.
    TextId (*key)(const RowCursor& row) = nullptr;
    std::optional<LabelList> labels = {};

    [[nodiscard]] bool isOf(What what) const {
        return (whats >> static_cast<unsigned>(what) & 1U) != 0;
    }
    [[nodiscard]] bool isText() const { return kind == ColumnKind::Name; }
};

/// All columns. Several kinds of rows may have columns of one name, never one kind two.
[[nodiscard]] std::span<const QueryColumn> queryColumns();

/// The column of a name; null where the kind of rows has none such.
[[nodiscard]] const QueryColumn* columnNamed(What what, std::string_view name);

/// The columns that are shown of a kind of rows where a query asks for no others.
[[nodiscard]] std::span<const std::string_view> shownColumns(What what);

/// What `best`, `mean` and `median` are of where a query does not say; null for tags.
[[nodiscard]] const QueryColumn* measuredColumn(What what);

/// The word for the value of a label or a way: "left", "up"; the number as text for a code that
/// the list does not have.
[[nodiscard]] std::string valueWord(const QueryColumn& column, double value);

} // namespace kavela
