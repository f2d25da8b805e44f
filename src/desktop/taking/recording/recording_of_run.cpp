#include "desktop/taking/recording/recording_of_run.h"

#include "desktop/film/film_deck.h"
#include "desktop/motion/older_recordings.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_files.h"
#include "desktop/splitfile/taking_document.h"

namespace kavela::desktop {

RecordingOfRun::RecordingOfRun(const Desk& desk, QWidget* window)
    : RecordingDialog(filmOf(desk, this), window), m_desk(desk) {
    connect(this, &RecordingDialog::chooseRequested, this, &RecordingOfRun::chooseFile);
    connect(this, &RecordingDialog::failed, this, &RecordingOfRun::tellFailure);
    connect(this, &RecordingDialog::refusedAsOlder, this, &RecordingOfRun::convertOlder);
    connect(&m_desk.document, &TakingDocument::changed, this, &RecordingDialog::showRun);
}

/// The dialog may ask for it before this class is made.
RecordingDialog::Film RecordingOfRun::filmOf(const Desk& desk, RecordingOfRun* dialog) {
    return {
        .position = [desk] { return desk.deck.position(); },
        .show = [desk](double seconds) { desk.deck.seek(seconds); },
        .run =
            [desk] {
                return desk.run() < 0
                           ? RunFacts()
                           : factsOf(desk.document.run(desk.run()), desk.document.info());
            },
        .attach =
            [desk](AttachedPart part) {
                desk.document.editRun(desk.run(), tr("recording"),
                                      [&](athletedata031& run) { attachTo(run, std::move(part)); });
            },
        .detach =
            [desk] { desk.document.editRun(desk.run(), tr("recording taken off"), detachFrom); },
        .isAttached =
            [desk] {
                return desk.run() >= 0 &&
                       kavela::desktop::hasRecording(desk.document.run(desk.run()));
            },
        .isMeant =
            [desk, dialog](const Alert& question) {
                return desk.workspace.ask(question, tr("Attach it all the same"), dialog);
            }};
}

void RecordingOfRun::chooseFile() {
    const QStringList chosen =
        m_desk.files.choose(tr("Recording of the run"), tr("Recordings (*.kvb);;All files (*)"));
    if (!chosen.isEmpty())
        load(chosen.front());
}

void RecordingOfRun::tellFailure(const QString& title, const QString& reason) {
    m_desk.workspace.log()(title.toStdString() + ": " + reason.toStdString());
    m_desk.workspace.showAlert({title.toStdString(), reason.toStdString()}, this);
}

void RecordingOfRun::convertOlder(const QString& path) {
    convertOlderRecording(path, m_desk.workspace, this, m_converting,
                          [this](const std::optional<QString>& converted) {
                              if (converted)
                                  load(*converted);
                          });
}

} // namespace kavela::desktop
