#pragma once

#include <string>

/// What other devices recorded of one and the same outing, to be imported: the phone's list holds
/// neither positions nor heart rates, the watch's track does.
namespace kavela::sample {

/// The track of the watch, as GPX: the two minutes of the outing, a point each second.
[[nodiscard]] std::string watchTrack();

/// The list of the phone's sensor logger: forty seconds of it, acceleration with gravity in m/s²
/// and rotation in rad/s, 50 lines a second.
[[nodiscard]] std::string phoneList();

} // namespace kavela::sample
