#pragma once

#include "report/typeface.h"

/// The small print that lists, tables and drawings of a page have in common.
namespace kavela::report {

constexpr TextStyle ListTitleStyle{10, true, Accent};
constexpr TextStyle HeadStyle{6.5, false, Quiet}; ///< above the columns of a list
constexpr TextStyle RowStyle{8, false, Ink};
constexpr TextStyle NoteStyle{7.5, false, Quiet};
constexpr TextStyle Caption{7, false, Quiet}; ///< within a drawing

/// Stands where there is no value.
inline const auto Dash = QStringLiteral("–");

} // namespace kavela::report
