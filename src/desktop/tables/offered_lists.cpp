#include "desktop/tables/offered_lists.h"

#include "common/reference_date.h"
#include "common/text.h"
#include "common/text_file.h"
#include "desktop/shell/qt_text.h"
#include "performance/race_tables.h"
#include "splitdata/loader.h"
#include "tables/list_source.h"
#include "tables/table_error.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace kavela::desktop {

namespace {

QString translatedList(const char* text) {
    return QCoreApplication::translate("TablesWindow", text);
}

QString titleOfRaceTable(const std::string& name) {
    if (name == "resultsCSVdata")
        return translatedList("Results list");
    return name == "officialresults" ? translatedList("Attached document")
                                     : translatedList("Table kept with the race");
}

void addRaceTable(OfferedLists& offered, const infodata031& info, const std::string& name) {
    const QString title = titleOfRaceTable(name);
    try {
        for (ListGrid& grid : raceTableLists(info, name)) {
            const bool isSheet = !grid.isText();
            const std::string own = isSheet ? name + '/' + grid.name : name;
            const QString shown =
                isSheet ? title + QStringLiteral(": ") + qtText(grid.name) : title;
            offered.lists.push_back({own, shown, std::move(grid)});
        }
    } catch (const TableError& error) {
        offered.left.append(title + QStringLiteral(": ") + QString::fromStdString(error.what()));
    }
}

OfferedLists listsOfRace(const QString& path) {
    const RecognisedSplitFile read = recogniseSplitFile(
        path.toStdString(), [](std::string_view) {}, systemNow);
    if (!read.version)
        throw TableError(incompatibleText(path.toStdString(), read.failures));
    OfferedLists offered;
    for (const std::string& name : raceTableNames(read.document.info))
        addRaceTable(offered, read.document.info, name);
    if (!offered.lists.empty())
        return offered;
    if (!offered.left.isEmpty())
        throw TableError(offered.left.join('\n').toStdString());
    throw TableError(say("The race carries no results list. Open the list itself; \"Keep with the "
                         "race\" puts it there."));
}

} // namespace

bool isRaceFile(const QString& path) {
    return QFileInfo(path).suffix().compare("kvx", Qt::CaseInsensitive) == 0;
}

bool isTableWorkFile(const QString& path) {
    return QFileInfo(path).suffix().toLower() == QString::fromLatin1(TableWorkExtension);
}

OfferedLists offeredLists(const QString& path) {
    if (isRaceFile(path))
        return listsOfRace(path);
    std::string bytes = readListBytes(path.toStdString());
    if (isTableWork(bytes)) {
        OfferedLists saved;
        saved.work = readTableWork(bytes);
        return saved;
    }
    return offeredLists(std::move(bytes));
}

OfferedLists offeredLists(std::string bytes) {
    OfferedLists offered;
    for (ListGrid& grid : readLists(std::move(bytes))) {
        const std::string name = grid.name;
        offered.lists.push_back({name, qtText(name), std::move(grid)});
    }
    return offered;
}

QString listFilter() {
    return translatedList("Lists (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;All files (*)");
}

bool isListFile(const QString& path) {
    static const QStringList Suffixes{"csv", "tsv", "txt", "xlsx", "ods", "kvx", "kvtable"};
    return Suffixes.contains(QFileInfo(path).suffix().toLower());
}

} // namespace kavela::desktop
