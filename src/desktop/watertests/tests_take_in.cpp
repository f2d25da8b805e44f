#include "boatmotion/session_files.h"
#include "common/json_decode.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/split_files_read.h"
#include "desktop/watertests/take_recording_dialog.h"
#include "desktop/watertests/take_run_dialog.h"
#include "desktop/watertests/tests_window.h"

#include <QFileDialog>
#include <QFileInfo>

/// Taking tests in, as the window does it.
namespace kavela::desktop {

namespace {

bool hasSuffix(const QString& path, const char* suffix) {
    return QFileInfo(path).suffix().toLower() == suffix;
}

/// A recording of version 4 is brought to the present one in memory. Throws FileError and
/// DecodeError.
bmrawdata_v5 rawRecording(const QString& path) {
    const JsonDocument json = JsonDocument::fromFile(path.toStdString());
    bmrawdata_v4 old;
    Fault fault;
    if (bmrawdata_v5 session; tryDecode(json.root(), session, fault))
        return session;
    if (Fault other; tryDecode(json.root(), old, other))
        return upgradedRawSession(std::move(old));
    throw DecodeError(std::move(fault));
}

} // namespace

void TestsWindow::askForSplitFile() {
    takeIn(QFileDialog::getOpenFileNames(this, tr("Take tests in from a split file"), ownFolder(),
                                         tr("Split files (*.kvx);;All files (*)")));
}

void TestsWindow::askForRecording() {
    takeIn(QFileDialog::getOpenFileNames(this, tr("Take a test in from a recording"), ownFolder(),
                                         tr("Recordings (*.kvb);;All files (*)")));
}

void TestsWindow::takeFiles(const QStringList& paths) {
    QStringList sources;
    QStringList others;
    for (const QString& path : paths)
        (hasSuffix(path, "kvx") || hasSuffix(path, "kvb") ? sources : others).append(path);
    if (!others.isEmpty())
        emit openRequested(others);
    takeIn(sources);
}

void TestsWindow::takeIn(const QStringList& paths) {
    if (!commit())
        return;
    QStringList splitFiles;
    for (const QString& path : paths) {
        if (hasSuffix(path, "kvb"))
            readRecording(path);
        else
            splitFiles.append(path);
    }
    readSplitFiles(m_takingIn, workspace(), splitFiles, this,
                   [this](std::vector<RecognisedSplitFile> files) {
                       for (RecognisedSplitFile& file : files)
                           takeIn(std::move(file));
                   });
}

void TestsWindow::takeIn(RecognisedSplitFile file) {
    if (!isSplitFile(file, workspace(), this))
        return;
    const QFileInfo info(qtText(file.path.string()));
    if (file.document.athletes.empty()) {
        tell(tr("“%1” cannot be taken in").arg(info.fileName()), tr("There are no runs in it."));
        return;
    }
    TakeRunDialog dialog(std::move(file.document), info.absolutePath().toStdString(), this);
    if (dialog.exec() == QDialog::Accepted)
        addAndChoose(tr("tests taken in"), dialog.tests());
}

/// A recording may be large.
void TestsWindow::readRecording(const QString& path) {
    OtherEnds otherwise;
    otherwise.failed = [this, path](const std::exception_ptr& fault) { tellNotTaken(path, fault); };
    const QString name = QFileInfo(path).fileName();
    m_takingIn.runAwaited(
        [path] { return rawRecording(path); },
        [this, path](bmrawdata_v5 recording) { takeIn(path, std::move(recording)); },
        std::move(otherwise), {this, ToolWindow::tr("Reading %1…").arg(name)});
}

/// What is in it may tell nothing.
void TestsWindow::takeIn(const QString& path, bmrawdata_v5 recording) {
    const std::exception_ptr fault = faultOf([&] {
        TakeRecordingDialog dialog(std::move(recording), chosenAthlete(), this);
        if (dialog.exec() == QDialog::Accepted)
            addAndChoose(tr("test taken in"), {dialog.test()});
    });
    if (fault)
        tellNotTaken(path, fault);
}

void TestsWindow::tellNotTaken(const QString& path, const std::exception_ptr& fault) {
    const QString title = tr("“%1” cannot be taken in").arg(QFileInfo(path).fileName());
    try {
        std::rethrow_exception(fault);
    } catch (const FileError& error) {
        tell(title, QString::fromStdString(error.reason()));
    } catch (const DecodeError& error) {
        tell(title, tr("It is no raw recording, or a damaged one: %1")
                        .arg(QString::fromStdString(error.what())));
    } catch (const MotionError& error) {
        tell(title, QString::fromStdString(error.what()));
    }
}

} // namespace kavela::desktop
