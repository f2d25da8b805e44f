#include "desktop/opened_as.h"

#include "app/file_facts.h"
#include "common/text_file.h"
#include "desktop/imports/import_files.h"
#include "desktop/sessions/session_window.h"
#include "planning/planning_file.h"
#include "splittaking/results_import.h"
#include "splittaking/video_names.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace kavela::desktop {

namespace {

/// A split file of this release without runs for the other tools.
bool holdsOnlyCross(const FileFacts& facts) {
    return facts.current && facts.counts.at("runs") == 0 &&
           facts.counts.at("crossTimeTrials") + facts.counts.at("crossHeats") > 0;
}

/// A folder to be timed has films and no split file yet.
OpensAs folderOpensAs(const QDir& folder) {
    const bool hasRaces = !folder.entryList({"*.kvx"}, QDir::Files).isEmpty();
    const auto isFilm = [](const QString& name) { return isVideoFile(name.toStdString()); };
    return !hasRaces && std::ranges::any_of(folder.entryList(QDir::Files), isFilm)
               ? OpensAs::FolderOfFilms
               : OpensAs::FolderOfRaces;
}

bool isResultsList(const QString& path) {
    try {
        return !parseResults(readTextFile(path.toStdString())).results.empty();
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// Lists and tracks are no documents of ours, and would only be refused as such.
OpensAs importOpensAs(const QString& path) {
    if (isPowerMeterList(path))
        return OpensAs::PowerList;
    return isResultsList(path) ? OpensAs::ResultsList : OpensAs::Import;
}

/// Documents begin with a brace, lists and tracks do not, whatever their names end with.
bool beginsAsDocument(const QString& path) {
    QFile file(path);
    constexpr qint64 Beginning = 64;
    return file.open(QIODevice::ReadOnly) && file.read(Beginning).trimmed().startsWith('{');
}

OpensAs documentOpensAs(const QString& path) {
    static const std::map<std::string, OpensAs> Kinds{
        {"selection races", OpensAs::Selection}, {"team", OpensAs::Team},
        {"planning", OpensAs::Planning},         {"test results", OpensAs::Tests},
        {"raw session", OpensAs::Recording},     {"smart session", OpensAs::Session},
        {"test session", OpensAs::TestSession}};
    const FileFacts facts = factsOf(path.toStdString());
    if (facts.kind == "split file")
        return holdsOnlyCross(facts) ? OpensAs::Cross : OpensAs::Race;
    if (const auto kind = Kinds.find(facts.kind); kind != Kinds.end())
        return kind->second;
    if (path.endsWith(PlanningExtension)) // one that does not decode is told there
        return OpensAs::Planning;
    return facts.error ? OpensAs::Race : OpensAs::NotReady;
}

} // namespace

OpensAs opensAs(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir())
        return folderOpensAs(QDir(path));
    if (isVideoFile(info.fileName().toStdString()))
        return OpensAs::Film;
    return isImportable(path) && !beginsAsDocument(path) ? importOpensAs(path)
                                                         : documentOpensAs(path);
}

} // namespace kavela::desktop
