#include "desktop/taking/taking_document.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_files.h"
#include "report/pdf_file.h"
#include "report/race_report.h"
#include "splittaking/messages.h"
#include "splittaking/perfect_time.h"
#include "splittaking/table_export.h"

#include <QFileInfo>

/// How the document reaches the disk.
namespace kavela::desktop {

namespace fs = std::filesystem;

void TakingDocument::logPerfectTime() const {
    (void)finished(true);
}

/// The document as it is written: with the perfect time and the expected times of its runs.
splittakerdata031 TakingDocument::finished(bool isLogged) const {
    splittakerdata031 document = documentOf(m_state);
    recomputeExpected(document,
                      isLogged ? m_workspace.log() : DiagnosticLog([](std::string_view) {}));
    document.info.lastSavedDate = m_workspace.clock()();
    return document;
}

bool TakingDocument::mayOverwrite(QWidget* over) const {
    const auto now = lastWritten(m_path.toStdString());
    if (!now || now == m_readTime)
        return true;
    return m_workspace.ask(
        {"", tr("The file was changed by another program since it was opened. Saving replaces "
                "what that program wrote.")
                 .toStdString()},
        tr("Save all the same"), over);
}

/// A split file may hold runs, a cross race, or both.
bool TakingDocument::holdsNothing() const {
    return m_state.runs.empty() && cross().timetrials.empty() && cross().eliphase.empty() &&
           cross().crossinfo.gates.empty();
}

bool TakingDocument::save(QWidget* over) {
    if (holdsNothing()) {
        m_workspace.showAlert({"", messages::NothingToSave}, over);
        return false;
    }
    splittakerdata031 document = finished(false);
    const fs::path file = m_path.toStdString();
    if (!mayOverwrite(over) || !writeSplitFile(document, file, over))
        return false;
    noteWritten();
    const Preferences& preferences = m_workspace.preferences();
    (void)writeBeside(std::move(document), file, preferences.boolean("savetoCSV"),
                      preferences.boolean("savetoPDF"), over);
    return true;
}

bool TakingDocument::exportTo(const QString& file, bool alsoCsv, bool alsoPdf, QWidget* over) {
    if (holdsNothing()) {
        m_workspace.showAlert({"", messages::NothingToExport}, over);
        return false;
    }
    if (!splitFileIn(QFileInfo(file).path()).isEmpty() &&
        !m_workspace.ask({"", messages::AskToOverwrite}, tr("Overwrite"), over))
        return false;
    splittakerdata031 document = finished(false);
    if (!writeSplitFile(document, file.toStdString(), over))
        return false;
    if (QFileInfo(file) == QFileInfo(m_path))
        noteWritten(); // who exports onto the document's own file has saved it
    return writeBeside(std::move(document), file.toStdString(), alsoCsv, alsoPdf, over);
}

/// The document's own file holds the work as it is now.
void TakingDocument::noteWritten() {
    m_readTime = lastWritten(m_path.toStdString());
    m_undo.setClean();
    m_keep.stop();
    keepWork(); // forgets it, but for start marks that the file cannot hold
    m_workspace.addRecentFile(m_path);
    emit saved();
}

bool TakingDocument::writeSplitFile(const splittakerdata031& document, const fs::path& file,
                                    QWidget* over) const {
    return written([&] { writeFileSafely(file, encode(document)); }, over);
}

/// Table and report are of runs.
bool TakingDocument::writeBeside(splittakerdata031 document, const fs::path& file, bool csv,
                                 bool pdf, QWidget* over) const {
    if (document.athletes.empty())
        return true;
    return written(
        [&] {
            fs::path beside = file;
            if (csv)
                writeFileSafely(beside.replace_extension(".csv"), splitTableCsv(document));
            if (!pdf)
                return;
            const report::ReportHeading heading = report::reportHeading(document.info);
            const RaceSet set = makeRaceSet(std::move(document), file);
            report::writePdf(report::RaceReport(heading, set, {}, report::ReportContent::Race),
                             beside.replace_extension(".pdf"));
        },
        over);
}

bool TakingDocument::written(const std::function<void()>& write, QWidget* over) const {
    try {
        write();
        return true;
    } catch (const FileError& error) {
        tellNotWritten(error.reason(), over);
    } catch (const EncodeError& error) {
        tellNotWritten(error.what(), over);
    }
    return false;
}

void TakingDocument::tellNotWritten(const std::string& reason, QWidget* over) const {
    m_workspace.log()("Failed to create file");
    m_workspace.log()(reason);
    m_workspace.showAlert({"Failed to create file", reason}, over);
}

} // namespace kavela::desktop
