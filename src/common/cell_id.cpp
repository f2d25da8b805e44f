#include "common/cell_id.h"

#include <charconv>

namespace kavela {

std::optional<CellId> parsedCellId(std::string_view id) {
    constexpr std::string_view Start = "cell/";
    if (!id.starts_with(Start))
        return std::nullopt;
    id.remove_prefix(Start.size());
    CellId cell;
    const char* const end = id.data() + id.size();
    const auto [rest, fault] = std::from_chars(id.data(), end, cell.row);
    if (fault != std::errc() || rest == end || *rest != '/')
        return std::nullopt;
    cell.column = {rest + 1, static_cast<std::size_t>(end - rest - 1)};
    return cell;
}

} // namespace kavela
