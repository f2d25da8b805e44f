#include "desktop/season/season_notes.h"

#include "desktop/season/season_window.h"
#include "desktop/shell/qt_text.h"

namespace kavela::desktop {

QString comparedFilesText(std::size_t files) {
    if (files == 0)
        return SeasonWindow::tr("No split files: winners and rivals are the team's own");
    return files == 1
               ? SeasonWindow::tr("Races from 1 split file")
               : SeasonWindow::tr("Races from %n split files", nullptr, static_cast<int>(files));
}

QStringList seasonNotes(const ShownSeason& shown) {
    const auto runs = shown.season.spread.runs;
    QStringList notes{runs == 1
                          ? SeasonWindow::tr("1 run compared")
                          : SeasonWindow::tr("%n runs compared", nullptr, static_cast<int>(runs))};
    for (const std::string& twin : shown.season.data.twins)
        notes << SeasonWindow::tr("several athletes are called %1: their runs cannot be told apart")
                     .arg(qtText(twin));
    if (!shown.unknown.empty())
        notes << SeasonWindow::tr("nobody in these races is called %1").arg(joined(shown.unknown));
    if (const std::size_t left = shown.season.places.leftOut.size(); left > 0)
        notes << SeasonWindow::tr("too few runs to expect a place of %1 of the field").arg(left);
    return notes;
}

} // namespace kavela::desktop
