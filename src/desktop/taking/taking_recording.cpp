#include "desktop/film/film_deck.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/recording/recording_dialog.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/run_timing.h"

#include <QFileDialog>

namespace kavela::desktop {

RecordingDialog& TakingWindow::recording() {
    if (m_recording)
        return *m_recording;
    m_recording = new RecordingDialog(
        {[this] { return m_deck->position(); }, [this](double seconds) { m_deck->seek(seconds); },
         [this] { return m_run < 0 ? std::nullopt : runSpan(m_document.run(m_run)); },
         [this] {
             return m_run < 0 ? QString()
                              : QString::fromStdString(crewText(m_document.run(m_run).names));
         },
         [this](AttachedPart part) {
             m_document.editRun(m_run, tr("recording"),
                                [&](athletedata031& run) { attachTo(run, std::move(part)); });
         },
         [this] { m_document.editRun(m_run, tr("recording taken off"), detachFrom); },
         [this] { return m_run >= 0 && hasRecording(m_document.run(m_run)); }},
        this);
    connect(m_recording, &RecordingDialog::chooseRequested, this, [this] {
        const QStringList chosen =
            m_chooseFiles(tr("Recording of the run"), tr("Recordings (*.kvb);;All files (*)"));
        if (!chosen.isEmpty())
            m_recording->load(chosen.front());
    });
    connect(m_recording, &RecordingDialog::failed, this,
            [this](const QString& title, const QString& reason) {
                m_workspace.log()(title.toStdString() + ": " + reason.toStdString());
                m_workspace.showAlert({title.toStdString(), reason.toStdString()}, m_recording);
            });
    connect(&m_document, &TakingDocument::changed, m_recording, &RecordingDialog::showRun);
    return *m_recording;
}

void TakingWindow::openRecording(const QString& path) {
    recording().show();
    recording().raise();
    if (!path.isEmpty())
        recording().load(path);
}

} // namespace kavela::desktop
