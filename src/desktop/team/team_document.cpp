#include "desktop/team/team_document.h"

#include "common/json_encode.h"
#include "desktop/shell/workspace.h"
#include "desktop/team/team_edits.h"
#include "results/phase_averages.h"
#include "results/team_file.h"

#include <QDir>
#include <QFileInfo>

namespace kavela::desktop {

FileReading TeamDocument::reading(const QString& path, QWidget* over) {
    return readingBy(path, over, tr("It is no team file, or a damaged one: %1"),
                     [path] { return readTeamFile(path.toStdString()); });
}

void TeamDocument::startNew(const QString& path, QWidget* over) {
    start({}, path, over);
}

void TeamDocument::createNew(const QString& folder, QWidget* over) {
    QString path = QDir(folder).filePath("Team.kvteam");
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QDir(folder).filePath(QString("Team %1.kvteam").arg(number));
    startNew(path, over);
}

void TeamDocument::editAthlete(std::size_t athlete, const QString& what,
                               const std::function<void(myTeamStruct&)>& change) {
    edit(what, [&](myTeamToSaveStruct& team) { change(team.realMyTeam.at(athlete)); });
}

void TeamDocument::editResults(std::size_t athlete, const std::string& category,
                               const QString& what,
                               const std::function<void(mtCatsStruct&)>& change) {
    editAthlete(athlete, what, [&](myTeamStruct& record) {
        change(categoryIn(record, category));
        recomputeAverages(record);
    });
}

void TeamDocument::recomputeAllAverages() {
    edit(tr("averages"), [](myTeamToSaveStruct& team) {
        for (myTeamStruct& athlete : team.realMyTeam)
            recomputeAverages(athlete);
    });
}

TeamDocument::Content TeamDocument::contentNow() const {
    return [team = shared()] { return encode(*team); };
}

bool TeamDocument::recover(const std::string& content) {
    try {
        auto recognised = recogniseTeamDocument(JsonDocument::fromText(content));
        if (!recognised.team)
            return false;
        startFrom(std::move(*recognised.team));
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

QString TeamDocument::summary() const {
    const std::size_t count = value().realMyTeam.size();
    return count == 1 ? tr("1 athlete") : tr("%n athletes", nullptr, static_cast<int>(count));
}

} // namespace kavela::desktop
