#pragma once

#include <QString>

#include <filesystem>

class QWidget;

namespace kavela::desktop {

class ChartFrame;

/// Saves a chart as its file name asks: a picture as ".png" or ".svg", the visible range of its
/// data as ".csv". Throws FileError, also for any other extension.
void saveChart(ChartFrame& chart, const std::filesystem::path& path);

/// Asks where to save a chart; empty for nowhere. The name is proposed, without an extension.
[[nodiscard]] QString askChartPath(const QString& name, QWidget* over);

} // namespace kavela::desktop
