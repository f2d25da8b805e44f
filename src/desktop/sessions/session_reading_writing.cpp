#include "desktop/motion/older_recordings.h"
#include "desktop/sessions/power_meter_dialog.h"
#include "desktop/sessions/session_view.h"
#include "desktop/sessions/session_window.h"

#include "boatmotion/conversion.h"
#include "boatmotion/session_files.h"
#include "common/error.h"
#include "common/safe_file.h"
#include "common/text_file.h"
#include "desktop/shell/workspace.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

namespace kavela::desktop {

namespace {

constexpr int FileToldMilliseconds = 10000;

bool isRecording(const QString& path) {
    return QFileInfo(path).suffix().compare("kvb", Qt::CaseInsensitive) == 0;
}

EditedSession readSession(const QString& path) {
    const std::string file = path.toStdString();
    return isRecording(path) ? analysedSession(readRawSession(file), std::nullopt)
                             : editedSession(readSmartSession(file));
}

std::string reasonOf(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const FileError& error) {
        return error.reason();
    } catch (const std::exception& error) {
        return error.what();
    }
}

bool isOlderRecording(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const OlderRecording&) {
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace

/// Nothing of a file is taken over before all of it is there.
void SessionWindow::read(const QString& path, const Opened& opened) {
    workOn(
        isRecording(path) ? QString(conversion_messages::Converting) : tr("Reading…"),
        [path] { return readSession(path); },
        [this, path, opened](EditedSession session) {
            if (session.recording)
                workspace().log()(conversion_messages::Count +
                                  QFileInfo(path).fileName().toStdString() + ' ' +
                                  std::to_string(session.recording->boatmotion.size()));
            showRead(std::move(session), path);
            opened(true);
        },
        [this, path, opened](const std::exception_ptr& fault) {
            if (isOlderRecording(fault))
                readConverted(path, opened);
            else
                tellNotRead(path, fault, opened);
        });
}

/// A recording of version 4 is read from the file that it was converted to, which then is the one
/// that was opened.
void SessionWindow::readConverted(const QString& path, const Opened& opened) {
    convertOlderRecording(path, workspace(), this, m_work,
                          [this, opened](const std::optional<QString>& converted) {
                              if (converted)
                                  read(*converted, opened);
                              else
                                  opened(false);
                              goOn();
                          });
}

void SessionWindow::tellNotRead(const QString& path, const std::exception_ptr& fault,
                                const Opened& opened) {
    const std::string reason = reasonOf(fault);
    const QString name = QFileInfo(path).fileName();
    const QString title = isRecording(path) ? QString(conversion_messages::NotConverted)
                                            : tr("“%1” cannot be opened").arg(name);
    workspace().log()(title.toStdString());
    workspace().log()(path.toStdString() + ": " + reason);
    tell(title, isRecording(path) ? name + ": " + QString::fromStdString(reason)
                                  : QString::fromStdString(reason));
    opened(false);
}

QString SessionWindow::askForFile(const QString& title, const QString& filter) {
    return QFileDialog::getOpenFileName(this, title, QFileInfo(m_document->path()).path(),
                                        filter + ";;" + tr("All files (*)"));
}

void SessionWindow::askForRecording() {
    const QString path = askForFile(tr("Import .kvb file"), tr("Recordings (*.kvb)"));
    if (!path.isEmpty())
        (void)open(path); // told there
}

void SessionWindow::askForSession() {
    const QString path = askForFile(tr("Import .sbm file"), tr("Sessions (*.sbm *.bms)"));
    if (!path.isEmpty())
        (void)open(path);
}

void SessionWindow::askForPowerMeter() {
    const QString path = askForFile(tr("Import power-meter data"), tr("Lists (*.csv *.txt)"));
    if (!path.isEmpty())
        importPowerMeter(path);
}

bool SessionWindow::importPowerMeter(const QString& path) {
    const QString title = tr("“%1” cannot be read").arg(QFileInfo(path).fileName());
    if (!hasSession()) {
        tell(title, tr("Import a recording or a session first: power-meter data belongs to its "
                       "strokes."));
        return false;
    }
    try {
        const PowerMeterList list = parsePowerMeter(readTextFile(path.toStdString()));
        PowerMeterDialog dialog(QFileInfo(path).fileName(), list, m_document->value(), this);
        if (dialog.exec() != QDialog::Accepted || dialog.samples().empty())
            return false;
        m_document->edit(tr("import of power-meter data"),
                         [&](EditedSession& session) { session.powerMeter = dialog.samples(); });
        return true;
    } catch (const FileError& error) {
        tell(title, QString::fromStdString(error.reason()));
    } catch (const DecodeError& error) {
        tell(title, QString::fromStdString(error.what()));
    }
    return false;
}

void SessionWindow::analyseAgain() {
    analyseWith(tr("new analysis"), m_document->value().mount);
}

void SessionWindow::nameMount(std::optional<Mount> mount) {
    analyseWith(tr("mount of the phone"), mount);
}

void SessionWindow::analyseWith(const QString& what, std::optional<Mount> mount) {
    if (isBusy() || !m_document->value().recording)
        return;
    analyse(
        [held = m_document->held(), mount] { return analysedSession(recordingOf(*held), mount); },
        [this, what](EditedSession again) { takeAnalysis(what, std::move(again)); });
}

void SessionWindow::analyse(std::function<EditedSession()> work,
                            std::function<void(EditedSession)> done) {
    workOn(conversion_messages::Converting, std::move(work), std::move(done),
           [this](const std::exception_ptr& fault) {
               tell(conversion_messages::NotConverted, QString::fromStdString(messageOf(fault)));
           });
}

/// Marks and power-meter data stay.
void SessionWindow::takeAnalysis(const QString& what, EditedSession again) {
    m_document->edit(what, [&](EditedSession& session) {
        again.powerMeter = std::move(session.powerMeter);
        setMarks(again, std::move(session.marks));
        session = std::move(again);
    });
}

/// One mark makes no segment, and power-meter data belongs in the session or not: what has to be
/// settled before a file is written.
bool SessionWindow::mayWrite() {
    if (m_document->value().marks.size() == 1) {
        tell(TooFewMarksTitle, TooFewMarks);
        return false;
    }
    if (m_document->value().powerMeter.empty())
        return true;
    const auto isWanted = askForPowerMeterData();
    if (isWanted && *isWanted)
        m_document->edit(tr("power of the power meter"),
                         [](EditedSession& session) { applyPowerMeter(session); });
    return isWanted.has_value();
}

std::optional<bool> SessionWindow::askForPowerMeterData() {
    if (m_askPowerMeter)
        return m_askPowerMeter(AskToSavePowerMeter);
    QMessageBox box(QMessageBox::Question, tr("Save the session"), AskToSavePowerMeter,
                    QMessageBox::Cancel, this);
    QPushButton* const with = box.addButton(tr("Save with it"), QMessageBox::AcceptRole);
    const QPushButton* const without =
        box.addButton(tr("Save without it"), QMessageBox::DestructiveRole);
    box.setDefaultButton(with);
    box.exec();
    if (box.clickedButton() == with)
        return true;
    return box.clickedButton() == without ? std::optional(false) : std::nullopt;
}

/// Power-meter data that was left out is still here and in no file: it is work not saved.
void SessionWindow::wasSaved() {
    tellSaved(m_document->path());
    if (m_document->value().powerMeter.empty())
        return;
    m_document->undoStack().resetClean();
    statusBar()->showMessage(tr("Saved without the power meter's data, which are still here."),
                             FileToldMilliseconds);
}

QString SessionWindow::askWhereTo(const QString& title, const QString& filter,
                                  const QString& suffix, const QString& proposal) {
    QFileDialog dialog(this, title, QFileInfo(proposal).path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(QFileInfo(proposal).fileName());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

bool SessionWindow::saveSessionTo(const QString& path) {
    if (!mayWrite() || !m_document->saveAs(path, this))
        return false;
    wasSaved();
    return true;
}

void SessionWindow::tellSaved(const QString& path) {
    workspace().log()(conversion_messages::Saved);
    statusBar()->showMessage(QString(conversion_messages::Saved) + ' ' +
                                 QDir::toNativeSeparators(path),
                             FileToldMilliseconds);
}

void SessionWindow::askAndSaveRecording() {
    if (!m_document->value().recording)
        return;
    const QFileInfo source(m_recordingPath);
    const QString path =
        askWhereTo(tr("Save the edited .kvb file"), tr("Recordings (*.kvb)"), "kvb",
                   source.dir().filePath(source.completeBaseName() + "_edited.kvb"));
    if (!path.isEmpty())
        saveRecording(path);
}

bool SessionWindow::saveRecording(const QString& path) {
    std::string reason;
    try {
        saveRawSession(recordingOf(m_document->value()), path.toStdString());
        tellSaved(path);
        return true;
    } catch (const FileError& error) {
        reason = error.reason();
    } catch (const EncodeError& error) {
        reason = error.what();
    }
    workspace().log()(conversion_messages::NotSaved);
    workspace().log()(reason);
    workspace().showAlert({conversion_messages::NotSaved, reason}, this);
    return false;
}

void SessionWindow::exportTable(SessionTables::Page page, const QString& path) const {
    if (const SessionGrid* const grid = m_view->tables().gridOf(page))
        writeFileSafely(path.toStdString(), csvOf(*grid));
}

void SessionWindow::askAndExport(SessionTables::Page page) {
    const QFileInfo file(m_document->path());
    const QString ending = page == SessionTables::StrokePage    ? "_strokes.csv"
                           : page == SessionTables::TurnPage    ? "_turns.csv"
                           : page == SessionTables::SegmentPage ? "_segments.csv"
                                                                : "_distance.csv";
    const QString path = askWhereTo(tr("Export the table"), tr("Semicolon-separated text (*.csv)"),
                                    "csv", file.dir().filePath(file.completeBaseName() + ending));
    if (path.isEmpty())
        return;
    try {
        exportTable(page, path);
        tellSaved(path);
    } catch (const FileError& error) {
        workspace().log()(error.what());
        workspace().showAlert({conversion_messages::NotSaved, error.reason()}, this);
    }
}

} // namespace kavela::desktop
