#pragma once

#include "boatmotion/imports/track.h"
#include "boatmotion/sessions.h"
#include "common/alerts.h"

#include <QStringList>

#include <variant>
#include <vector>

class QWidget;

namespace kavela::desktop {

/// A file of a watch or a phone that was taken in.
struct ImportedFile {
    QString path;
    /// A list of samples is a recording; a GPX, TCX or FIT file a track.
    std::variant<bmrawdata_v5, ImportedTrack> content;
};

/// How lists were read before; kept from one import to the next, and in windows to come where the
/// owner keeps it.
using CsvMappings = std::vector<std::string>;

/// The files that can be imported, as a filter of file dialogs.
[[nodiscard]] QString importFilter();

/// Whether a file looks like one that importFiles() takes, by its extension: gpx, tcx, fit, csv,
/// tsv or txt.
[[nodiscard]] bool isImportable(const QString& path);

/// Takes files in: what they are, their content tells. How a list of samples is read, the coach is
/// asked; a dialog that is cancelled leaves its file out. What cannot be read, and what was left
/// out of a file, is told by alerts.
[[nodiscard]] std::vector<ImportedFile> importFiles(const QStringList& paths, Alerts& alerts,
                                                    QWidget* over, CsvMappings& known);

/// Asks for files, beginning in a folder, and takes them in.
[[nodiscard]] std::vector<ImportedFile> askForImports(const QString& folder, Alerts& alerts,
                                                      QWidget* over, CsvMappings& known);

} // namespace kavela::desktop
