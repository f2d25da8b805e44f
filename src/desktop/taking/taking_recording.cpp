#include "desktop/film/film_deck.h"
#include "desktop/film/film_grid.h"
#include "desktop/motion/older_recordings.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/recording/recording_dialog.h"
#include "desktop/taking/taking_window.h"

#include <QScreen>

namespace kavela::desktop {

RecordingDialog& TakingWindow::recording() {
    if (m_recording)
        return *m_recording;
    m_recording = new RecordingDialog(
        {.position = [this] { return m_deck->position(); },
         .show = [this](double seconds) { m_deck->seek(seconds); },
         .run =
             [this] {
                 return m_run < 0 ? RunFacts() : factsOf(m_document.run(m_run), m_document.info());
             },
         .attach =
             [this](AttachedPart part) {
                 m_document.editRun(m_run, tr("recording"),
                                    [&](athletedata031& run) { attachTo(run, std::move(part)); });
             },
         .detach = [this] { m_document.editRun(m_run, tr("recording taken off"), detachFrom); },
         .isAttached = [this] { return m_run >= 0 && hasRecording(m_document.run(m_run)); },
         .isMeant =
             [this](const Alert& question) {
                 return workspace().ask(question, tr("Attach it all the same"), m_recording);
             }},
        this);
    connect(m_recording, &RecordingDialog::chooseRequested, this, [this] {
        const QStringList chosen =
            m_chooseFiles(tr("Recording of the run"), tr("Recordings (*.kvb);;All files (*)"));
        if (!chosen.isEmpty())
            m_recording->load(chosen.front());
    });
    connect(m_recording, &RecordingDialog::failed, this,
            [this](const QString& title, const QString& reason) {
                workspace().log()(title.toStdString() + ": " + reason.toStdString());
                workspace().showAlert({title.toStdString(), reason.toStdString()}, m_recording);
            });
    connect(m_recording, &RecordingDialog::refusedAsOlder, this, [this](const QString& path) {
        if (const auto converted = convertOlderRecording(path, workspace(), m_recording))
            m_recording->load(*converted);
    });
    connect(&m_document, &TakingDocument::changed, m_recording, &RecordingDialog::showRun);
    return *m_recording;
}

void TakingWindow::openRecording(const QString& path) {
    if (!recording().isVisible()) {
        // The dialog asks for moments of the film, which therefore has to be seen.
        const QRect film(m_films->mapToGlobal(QPoint()), m_films->size());
        recording().placeBeside(film, screen()->availableGeometry());
    }
    recording().show();
    recording().raise();
    if (!path.isEmpty())
        recording().load(path);
}

} // namespace kavela::desktop
