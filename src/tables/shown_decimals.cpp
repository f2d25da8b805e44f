#include "tables/shown_decimals.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace kavela {

namespace {

/// With more than thousandths it is a number that was reckoned, which nobody measured so.
constexpr std::size_t MostDecimals = 3;
constexpr std::string_view DecimalSigns = ".,";

/// How many decimals a text has that is digits, colons of a time and at most one decimal sign.
std::optional<std::size_t> decimalsIn(std::string_view text) {
    const std::string_view number =
        text.substr(std::min(text.find_first_not_of("+-"), text.size()));
    const std::size_t sign = number.find_first_of(DecimalSigns);
    const std::string_view whole = number.substr(0, sign);
    const std::string_view behind =
        sign == number.npos ? std::string_view() : number.substr(sign + 1);
    if (whole.empty() || whole.find_first_not_of("0123456789:") != whole.npos ||
        behind.find_first_not_of("0123456789") != behind.npos)
        return std::nullopt;
    return behind.size();
}

} // namespace

ShownDecimals::ShownDecimals(const GridColumn& column) {
    const bool isMeasured =
        column.kind == ListColumnKind::Decimal || column.kind == ListColumnKind::Time;
    if (!isMeasured || column.isDerived)
        return;
    for (const GridCell& cell : column.cells) {
        const auto decimals = cell.number ? decimalsIn(cell.text) : std::nullopt;
        if (!decimals || *decimals <= m_most || *decimals > MostDecimals)
            continue;
        m_most = *decimals;
        m_sign = cell.text[cell.text.find_first_of(DecimalSigns)];
    }
}

std::string ShownDecimals::textOf(const GridCell& cell) const {
    const auto decimals = cell.number && m_most > 0 ? decimalsIn(cell.text) : std::nullopt;
    if (!decimals || *decimals >= m_most)
        return cell.text;
    std::string text = cell.text;
    if (text.find_first_of(DecimalSigns) == text.npos)
        text += m_sign;
    return text.append(m_most - *decimals, '0');
}

} // namespace kavela
