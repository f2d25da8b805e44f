#include "desktop/race/read_race.h"

#include "analysis/open_race.h"
#include "desktop/race/race_document.h"
#include "desktop/shell/qt_text.h"

#include <QFileInfo>

#include <exception>
#include <filesystem>
#include <utility>

namespace kavela::desktop {

namespace {

QString upgradeNoteOf(const OpenedRace& race) {
    if (race.foundAs == &documentVersions().front())
        return {};
    const QString version = QString::fromUtf8(race.foundAs->label.data(),
                                              static_cast<qsizetype>(race.foundAs->label.size()));
    if (race.backup.empty())
        return RaceDocument::tr("A file of version %1. It could not be rewritten in the current "
                                "version and stays as it is.")
            .arg(version);
    return RaceDocument::tr("A file of version %1, rewritten in the current one. The previous file "
                            "is kept as %2.")
        .arg(version, qtText(race.backup.filename().string()));
}

void readUpgraded(ReadRace& race, const Clock& clock) {
    const std::filesystem::path file = race.path.toStdString();
    auto opened = openRace(file, race.notes.log(), race.notes, clock);
    if (!opened)
        return;
    race.stamp = FileStamp(race.path);
    race.upgradeNote = upgradeNoteOf(*opened);
    race.info = opened->document.info;
    race.set = makeRaceSet(std::move(opened->document), file);
    race.isRead = true;
}

} // namespace

std::shared_ptr<ReadRace> readRace(const QString& path, const Clock& clock) {
    const auto race = std::make_shared<ReadRace>();
    race->path = QFileInfo(path).absoluteFilePath();
    try {
        readUpgraded(*race, clock);
    } catch (const std::exception& fault) { // nobody would hear of it on another thread
        race->notes.show({"", fault.what()});
    }
    return race;
}

} // namespace kavela::desktop
