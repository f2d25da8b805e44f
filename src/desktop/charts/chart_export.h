#pragma once

#include <QString>

#include <filesystem>
#include <string>

class QWidget;

/// The one way out of a chart, of either kind.
namespace kavela::desktop {

class SavedChart;

/// What a file of a chart holds, as its name asks: see saveChart().
[[nodiscard]] std::string chartFile(SavedChart& chart, const std::filesystem::path& path);

/// Saves a chart as its file name asks: a picture as ".png" or ".svg", the visible range of its
/// data as ".csv". Throws FileError, also for any other extension.
void saveChart(SavedChart& chart, const std::filesystem::path& path);

/// Put a chart into the clipboard: as a picture and a drawing, of which the other program takes
/// what it can; its visible values as tab-separated text with titles.
void copyPicture(SavedChart& chart);
void copyValues(SavedChart& chart);

/// Asks where to save a chart as "png", "svg" or "csv"; empty for nowhere. The name is proposed,
/// without an extension, in the folder or, if that is empty, where files were saved last.
[[nodiscard]] QString askChartPath(const QString& name, const QString& kind, const QString& folder,
                                   QWidget* over);

} // namespace kavela::desktop
