#pragma once

#include "boatmotion/session_table.h"

#include <QString>

namespace kavela::desktop {

/// What stands where a value is not known.
inline constexpr char16_t Dash = u'–';

/// "52.5", or a dash.
[[nodiscard]] QString valueText(std::optional<double> value, int decimals);

/// "left", "right", or "side unknown".
[[nodiscard]] QString sideText(std::int64_t hand);

/// A cell of a table as the screen shows it.
[[nodiscard]] QString cellText(const kavela::Cell& cell, int decimals);

/// "Ann Lee · Home water · 2026-05-08 · Training": what is known of a session, on one line.
[[nodiscard]] QString sessionTitle(const infosessionSmart_v3& info);

/// What the coach has to know about the figures: sentences, empty for none.
[[nodiscard]] QStringList remarksOn(const EditedSession& session);

} // namespace kavela::desktop
