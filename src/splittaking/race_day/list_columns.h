#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavela {

class DelimitedReader;

/// What a column of a start list or of official results holds.
enum class ListColumn { Bib, Name, FirstName, LastName, Category, Phase, Run, Start, Order };

/// Where the columns of a list stand, by the titles in its first line.
class ListColumns {
public:
    ListColumns() = default;
    /// Columns that stand where they are said to, for a list without titles.
    explicit ListColumns(std::map<ListColumn, std::size_t> places) : m_places(std::move(places)) {}

    /// By titles as organisers write them, in any order and among others; of several that could
    /// hold the same, the likeliest counts.
    [[nodiscard]] static ListColumns byTitle(const std::vector<std::string_view>& titles);

    [[nodiscard]] bool has(ListColumn column) const { return m_places.contains(column); }
    /// Whether there is any column that names an athlete.
    [[nodiscard]] bool hasName() const;

    /// The field of the reader's line, without double quotes; empty where there is none.
    [[nodiscard]] std::string text(const DelimitedReader& line, ListColumn column) const;
    /// The first name before the last one, or what stands for the whole name.
    [[nodiscard]] std::string name(const DelimitedReader& line) const;

private:
    std::map<ListColumn, std::size_t> m_places;
};

} // namespace kavela
