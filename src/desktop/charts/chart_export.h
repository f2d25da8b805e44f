#pragma once

#include <filesystem>

namespace kavela::desktop {

class Chart;

/// Saves a chart as its file name asks: a picture as ".png" or ".svg", the visible range of its
/// data as ".csv". Throws FileError, also for any other extension.
void saveChart(Chart& chart, const std::filesystem::path& path);

} // namespace kavela::desktop
