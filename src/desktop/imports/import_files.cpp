#include "desktop/imports/import_files.h"

#include "boatmotion/imports/sensor_csv.h"
#include "desktop/imports/csv_mapping_dialog.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include <optional>

namespace kavela::desktop {

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("importFiles", text);
}

bool holdsTrack(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray beginning = file.read(256);
    return looksLikeTrack({beginning.constData(), static_cast<std::size_t>(beginning.size())});
}

void tellNotes(const QString& path, const std::vector<std::string>& notes, Alerts& alerts) {
    if (notes.empty())
        return;
    std::string text;
    for (const std::string& note : notes)
        text += (text.empty() ? "" : "\n") + note;
    alerts.show({translated("Imported “%1”").arg(QFileInfo(path).fileName()).toStdString(), text});
}

std::optional<ImportedFile> importList(const QString& path, QWidget* over, CsvMappings& known) {
    CsvMappingDialog dialog(SensorCsv(path.toStdString()), over, known);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    known = dialog.remembered();
    // What was left out, the dialog has told.
    return ImportedFile{path, dialog.takeImport().session};
}

std::optional<ImportedFile> importFile(const QString& path, Alerts& alerts, QWidget* over,
                                       CsvMappings& known) {
    const auto refuse = [&](const std::string& reason) {
        alerts.show(
            {translated("“%1” cannot be imported").arg(QFileInfo(path).fileName()).toStdString(),
             reason});
    };
    try {
        if (!holdsTrack(path))
            return importList(path, over, known);
        ImportedTrack track = importTrack(path.toStdString());
        tellNotes(path, track.notes, alerts);
        if (track.isEmpty())
            return std::nullopt;
        return ImportedFile{path, std::move(track)};
    } catch (const FileError& error) {
        refuse(error.reason());
    } catch (const DecodeError& error) {
        refuse(error.what());
    }
    return std::nullopt;
}

} // namespace

QString importFilter() {
    return translated("Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)");
}

bool isImportable(const QString& path) {
    static const QStringList Suffixes{"gpx", "tcx", "fit", "csv", "tsv", "txt"};
    return Suffixes.contains(QFileInfo(path).suffix().toLower());
}

std::vector<ImportedFile> importFiles(const QStringList& paths, Alerts& alerts, QWidget* over,
                                      CsvMappings& known) {
    std::vector<ImportedFile> files;
    for (const QString& path : paths)
        if (auto file = importFile(path, alerts, over, known))
            files.push_back(std::move(*file));
    return files;
}

std::vector<ImportedFile> askForImports(const QString& folder, Alerts& alerts, QWidget* over,
                                        CsvMappings& known) {
    return importFiles(QFileDialog::getOpenFileNames(over,
                                                     translated("Import from a watch or a phone"),
                                                     folder, importFilter()),
                       alerts, over, known);
}

} // namespace kavela::desktop
