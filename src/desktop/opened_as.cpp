#include "desktop/opened_as.h"

#include "app/content_kind.h"
#include "app/file_facts.h"
#include "boatmotion/imports/sensor_csv.h"
#include "common/error.h"
#include "common/text_file.h"
#include "desktop/imports/import_files.h"
#include "desktop/sessions/session_imports.h"
#include "planning/planning_file.h"
#include "splittaking/results_import.h"
#include "splittaking/video_names.h"
#include "tables/sheet_reader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

/// A folder to be timed has films and no split file yet.
OpensAs folderOpensAs(const QDir& folder) {
    const bool hasRaces = !folder.entryList({"*.kvx"}, QDir::Files).isEmpty();
    const auto isFilm = [](const QString& name) { return isVideoFile(name.toStdString()); };
    return !hasRaces && std::ranges::any_of(folder.entryList(QDir::Files), isFilm)
               ? OpensAs::FolderOfFilms
               : OpensAs::FolderOfRaces;
}

/// Files a folder may hold before a coach is unlikely to want a tab for each.
constexpr int MostRacesOfAFolder = 24;

QStringList splitFilesIn(const QDir& folder) {
    QStringList files;
    for (const QFileInfo& file : folder.entryInfoList({"*.kvx"}, QDir::Files, QDir::Name))
        files.append(file.filePath());
    return files.mid(0, MostRacesOfAFolder);
}

Opening openingOf(const QDir& folder) {
    const OpensAs as = folderOpensAs(folder);
    return {.as = as, .races = as == OpensAs::FolderOfRaces ? splitFilesIn(folder) : QStringList()};
}

bool beginsWith(const QString& path, char first) {
    QFile file(path);
    constexpr qint64 Beginning = 64;
    return file.open(QIODevice::ReadOnly) && file.read(Beginning).trimmed().startsWith(first);
}

bool isResultsList(const QString& path) {
    try {
        return !parseResults(readTextFile(path.toStdString())).results.empty();
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// A start list, a ranking, whatever has titles of which none is a reading of a sensor. Without
/// titles only the coach can tell what the numbers are.
bool isOtherList(const QString& path) {
    if (!QStringList{"csv", "tsv", "txt"}.contains(QFileInfo(path).suffix().toLower()) ||
        beginsWith(path, '<')) // a track, whatever its name
        return false;
    try {
        const SensorCsv list(path.toStdString());
        const CsvMapping mapping = list.guess();
        const std::vector<std::string> titles = list.preview(mapping).titles;
        const auto isReading = [](CsvQuantity quantity) {
            return quantity != CsvQuantity::None && quantity != CsvQuantity::Time;
        };
        return std::ranges::any_of(titles, [](const auto& title) { return !title.empty(); }) &&
               std::ranges::none_of(mapping.columns, isReading);
    } catch (const DecodeError&) {
        return true;
    } catch (const FileError&) {
        return false; // the import will tell
    }
}

/// Lists and tracks are no documents of ours, and would only be refused as such.
OpensAs importOpensAs(const QString& path) {
    if (isPowerMeterList(path))
        return OpensAs::PowerList;
    return isResultsList(path) || isOtherList(path) ? OpensAs::ResultsList : OpensAs::Import;
}

bool isSpreadsheet(const QString& path) {
    QFile file(path);
    constexpr qint64 Beginning = 64;
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const ListFormat format = listFormatOf(file.read(Beginning).toStdString());
    return format == ListFormat::Spreadsheet || format == ListFormat::OldSpreadsheet;
}

/// One of an older release is brought to this one by the tool for races.
OpensAs splitFileOpensAs(const ContentKind& document, const QString& path) {
    const bool isForCross =
        document.hasCross && !document.hasRuns && kavela::factsOf(path.toStdString()).current;
    return isForCross ? OpensAs::Cross : OpensAs::Race;
}

std::optional<OpensAs> documentOpensAs(const ContentKind& document, const QString& path) {
    static const std::map<std::string_view, OpensAs> Kinds{{"selection races", OpensAs::Selection},
                                                           {"team", OpensAs::Team},
                                                           {"planning", OpensAs::Planning},
                                                           {"test results", OpensAs::Tests},
                                                           {"raw session", OpensAs::Recording},
                                                           {"smart session", OpensAs::Session},
                                                           {"test session", OpensAs::TestSession},
                                                           {"comparison", OpensAs::Comparison},
                                                           {"path", OpensAs::Tracking},
                                                           {"table", OpensAs::ResultsList}};
    if (document.kind == "split file")
        return splitFileOpensAs(document, path);
    const auto kind = Kinds.find(document.kind);
    return kind == Kinds.end() ? std::nullopt : std::optional(kind->second);
}

/// One that no tool knows, or that cannot be read, is told by the tool that its name belongs to.
OpensAs unknownOpensAs(const QString& path) {
    if (path.endsWith(PlanningExtension))
        return OpensAs::Planning;
    return kavela::factsOf(path.toStdString()).error ? OpensAs::Race : OpensAs::NotReady;
}

Opening documentOpensAs(const QString& path) {
    try {
        JsonDocument document = JsonDocument::fromFile(path.toStdString());
        if (const auto as = documentOpensAs(contentKind(document), path))
            return {*as, std::move(document)};
    } catch (const FileError&) {
        return {unknownOpensAs(path)};
    } catch (const DecodeError&) {
        return {unknownOpensAs(path)};
    }
    return {unknownOpensAs(path)};
}

} // namespace

void HeldDocuments::hold(const QString& path, std::optional<JsonDocument> document) {
    constexpr qint64 MostBytes = 200 << 20;
    m_bytes += QFileInfo(path).size();
    if (document && m_bytes <= MostBytes)
        m_documents.push_back(std::move(*document));
}

Opening opensAs(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir())
        return openingOf(QDir(path));
    if (isVideoFile(info.fileName().toStdString()))
        return {OpensAs::Film};
    // Documents begin with a brace, lists and tracks do not, whatever their names end with.
    if (isImportable(path) && !beginsWith(path, '{'))
        return {importOpensAs(path)};
    if (info.isFile() && isSpreadsheet(path))
        return {OpensAs::ResultsList};
    return documentOpensAs(path);
}

} // namespace kavela::desktop
