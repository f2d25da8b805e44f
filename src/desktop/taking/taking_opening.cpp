#include "desktop/taking/taking_document.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/kept_work.h"
#include "desktop/taking/taking_files.h"
#include "splitdata/loader.h"
#include "splittaking/messages.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

/// How a document comes from the disk: its file, or the work that was kept beside it.
namespace kavela::desktop {

namespace {

/// Which release wrote a file, and why it cannot be converted where it stands.
QString whyOlder(const RecognisedSplitFile& older, const QString& file) {
    const QString release =
        QString::fromUtf8(older.version->label.data(), std::ssize(older.version->label));
    const QFileInfo info(file);
    const QString which = TakingDocument::tr("%1 is of release %2.").arg(info.fileName(), release);
    return QFileInfo(info.absolutePath()).isWritable()
               ? which
               : which + ' ' +
                     TakingDocument::tr("Its folder %1 cannot be written, so that the analyzer "
                                        "shows it and leaves it as it is.")
                         .arg(info.absolutePath());
}

void tellNotCurrent(const RecognisedSplitFile& read, const Workspace& workspace, QWidget* over) {
    if (read.version) {
        workspace.showAlert({"", messages::OlderVersion}, over);
        return;
    }
    WorkspaceAlerts alerts(workspace, over);
    reportIncompatible(read, workspace.log(), alerts);
}

} // namespace

bool TakingDocument::openFolder(const QString& folder, QWidget* over) {
    const QString absolute = QDir(folder).absolutePath();
    if (const QString file = splitFileIn(absolute); !file.isEmpty())
        return openFile(file, over);
    const QString path = absolute + '/' + QFileInfo(absolute).fileName() + ".kvx";
    m_folder = absolute;
    splittakerdata031 document = newDocument();
    document.athletes = runsOf(filmsIn(absolute));
    begin(stateOf(std::move(document)), path);
    offerAutosave(over);
    return true;
}

bool TakingDocument::openFile(const QString& file, QWidget* over) {
    RecognisedSplitFile read =
        recogniseSplitFile(file.toStdString(), m_workspace.log(), m_workspace.clock());
    if (!read.isCurrent())
        return openCopy(read, file, over);
    begin(stateOf(std::move(read.document)), QFileInfo(file).absoluteFilePath());
    m_workspace.addRecentFile(m_path);
    offerAutosave(over);
    return true;
}

/// An older file stays as it is: the analyzer is where it is converted, with a backup. Where that
/// cannot be, as in a folder that cannot be written, a copy elsewhere is.
bool TakingDocument::openCopy(const RecognisedSplitFile& older, const QString& file,
                              QWidget* over) {
    if (!older.version) {
        tellNotCurrent(older, m_workspace, over);
        return false;
    }
    const QString told =
        QString(messages::OlderVersion) + "\n\n" + whyOlder(older, file) +
        tr(" \"Save as…\" writes a copy in the present release and opens it here; its films stay "
           "where they are.");
    if (!m_workspace.ask({"", told.toStdString()}, tr("Save as…"), over))
        return false;
    const QString copy =
        m_chooseCopy(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + '/' +
                     QFileInfo(file).completeBaseName() + ".kvx");
    if (copy.isEmpty() ||
        !written([&] { writeFileSafely(copy.toStdString(), encode(older.document)); }, over))
        return false;
    if (!openFile(copy, over))
        return false;
    (void)findFilms(QFileInfo(file).absolutePath()); // where they stay
    return true;
}

std::optional<splittakerdata031> TakingDocument::readCurrent(const QString& file, QWidget* over) {
    RecognisedSplitFile read =
        recogniseSplitFile(file.toStdString(), m_workspace.log(), m_workspace.clock());
    if (read.isCurrent())
        return std::move(read.document);
    tellNotCurrent(read, m_workspace, over);
    return std::nullopt;
}

splittakerdata031 TakingDocument::newDocument() const {
    splittakerdata031 document;
    document.info.date = m_workspace.clock()();
    document.info.session = "Race";
    document.info.title = QFileInfo(m_folder).fileName().toStdString();
    document.info.totalsplits = m_workspace.preferences().integer("predeterminatedsplits");
    return document;
}

void TakingDocument::begin(TakingState state, const QString& path) {
    m_keep.stop();
    m_path = path;
    m_folder = QFileInfo(path).absolutePath();
    m_readTime = lastWritten(path.toStdString());
    m_undo.clear();
    show(state);
}

void TakingDocument::offerAutosave(QWidget* over) {
    const auto work = m_autosave.find(m_path);
    if (!work)
        return;
    m_workspace.log()(messages::AutosaveFound);
    RecognisedSplitFile read;
    TakingState recovered;
    try {
        const JsonDocument kept = JsonDocument::fromText(*work);
        read = recogniseSplitDocument(kept, m_path.toStdString(), m_workspace.log(),
                                      m_workspace.clock());
        recovered = stateOf(std::move(read.document));
        takeStarts(recovered, kept);
    } catch (const DecodeError& error) {
        m_workspace.log()(error.what());
    }
    const bool isWanted =
        read.version && m_workspace.ask({"", messages::AskToLoadAutosave}, tr("Load"), over);
    if (!isWanted) {
        m_autosave.putAside(m_path);
        return;
    }
    m_undo.resetClean(); // dirty, and no undo makes it clean: its copy stays until it is saved
    show(recovered);
}

} // namespace kavela::desktop
