#include "desktop/taking/notes/radio_box.h"

#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "splittaking/annotations/run_notes.h"
#include "video/sound_source.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>

namespace kavela::desktop {

RadioBox::RadioBox(RecordedSoundPlayer::MakeOutput makeOutput, SpeechRecorder::MakeInput makeInput)
    : m_player(new RecordedSoundPlayer(this, std::move(makeOutput))),
      m_recorder(new SpeechRecorder(this, std::move(makeInput))),
      m_list(new QListWidget),
      m_state(new QLabel) {
    m_list->setObjectName("radio");
    m_list->setMinimumHeight(grown(*this, 60));
    m_list->setMaximumHeight(grown(*this, 110));
    m_state->setObjectName("radioState");
    m_state->setWordWrap(true);
    m_state->setForegroundRole(QPalette::PlaceholderText);
    makeButtons();
    connect(m_list, &QListWidget::currentRowChanged, this, &RadioBox::showState);
    connect(m_list, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { play(m_list->row(item)); });
    connect(m_player, &RecordedSoundPlayer::changed, this, &RadioBox::showState);
    connect(m_recorder, &SpeechRecorder::heard, this, &RadioBox::showState);
    connect(m_recorder, &SpeechRecorder::isFull, this, &RadioBox::finish);
    showState();
}

void RadioBox::makeButtons() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(theme::SmallSpacing);
    auto* title = new QLabel(tr("Team radio"));
    title->setFont(theme::titleFont(*this));
    constexpr int Columns = 3;
    grid->addWidget(title, 0, 0, 1, Columns);
    grid->addWidget(m_list, 1, 0, 1, Columns);
    int place = 0;
    const auto add = [&](const QString& text, const char* name, const QString& tip, auto act) {
        auto* made = new QPushButton(text);
        made->setObjectName(name);
        made->setToolTip(tip);
        grid->addWidget(made, 2 + place / Columns, place % Columns);
        ++place;
        connect(made, &QPushButton::clicked, this, act);
        return made;
    };
    m_record = add(QString(), "radioRecord", tr("Records what you say about the run"),
                   [this] { toggleRecording(); });
    m_play = add(QString(), "radioPlay", tr("Plays the recording"), [this] {
        if (m_player->isPlaying())
            m_player->stop();
        else
            play(m_list->currentRow());
    });
    (void)add(tr("Attach…"), "radioAttach", tr("Takes a sound file into the split file"),
              [this] { chooseFile(); });
    m_ofOne = {
        m_play,
        add(tr("Save as…"), "radioSave", tr("Writes the recording into a file of its own"),
            [this] { save(); }),
        add(tr("Earlier"), "radioEarlier", tr("Moves the recording up"), [this] { move(-1); }),
        add(tr("Remove"), "radioRemove", tr("Takes the recording out of the split file"),
            [this] { emit removed(m_list->currentRow()); })};
    grid->addWidget(m_state, 2 + (place + Columns - 1) / Columns, 0, 1, Columns);
}

void RadioBox::setRecordings(std::span<const Blob> recordings) {
    if (std::ranges::equal(recordings, m_recordings))
        return;
    m_player->stop();
    m_recordings.assign(recordings.begin(), recordings.end());
    const int row = m_list->currentRow();
    m_list->clear();
    for (std::size_t k = 0; k < m_recordings.size(); ++k) {
        const auto extension = soundExtension(m_recordings[k]);
        m_list->addItem(tr("%1 · %2, %3")
                            .arg(k + 1)
                            .arg(QString::fromUtf8(extension.data() + 1,
                                                   static_cast<qsizetype>(extension.size()) - 1),
                                 locale().formattedDataSize(
                                     static_cast<qint64>(m_recordings[k].bytes.size()), 0)));
    }
    m_list->setCurrentRow(std::clamp(row, m_list->count() > 0 ? 0 : -1, m_list->count() - 1));
    showState();
}

void RadioBox::showState() {
    m_record->setText(m_recorder->isRecording() ? tr("Stop") : tr("Record"));
    m_play->setText(m_player->isPlaying() ? tr("Stop") : tr("Play"));
    for (QPushButton* const button : m_ofOne)
        button->setEnabled(m_list->currentRow() >= 0);
    m_state->setText(m_recorder->isRecording()
                         ? tr("Recording, %1 s").arg(static_cast<int>(m_recorder->seconds()))
                     : m_list->count() == 0
                         ? tr("Record what you say to the athlete, or attach a voice message.")
                         : QString());
    m_state->setVisible(!m_state->text().isEmpty());
}

void RadioBox::toggleRecording() {
    if (m_recorder->isRecording()) {
        finish();
        return;
    }
    m_player->stop();
    if (!m_recorder->start())
        emit told(tr("This computer has no microphone that can be used."));
    showState();
}

void RadioBox::finish() {
    if (!m_recorder->isRecording())
        return;
    const Blob recording = m_recorder->stop();
    showState();
    if (recording.bytes.empty())
        emit told(tr("The microphone gave no sound."));
    else
        emit added(recording);
}

void RadioBox::chooseFile() {
    const QString file = QFileDialog::getOpenFileName(
        this, tr("Attach a recording"), QString(),
        tr("Sounds (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;"
           "All files (*)"));
    if (!file.isEmpty())
        attach(file);
}

void RadioBox::attach(const QString& file) {
    const QFileInfo info(file);
    if (info.size() > MostBytes) {
        emit told(tr("%1 has %2: recordings up to %3 can be kept in a split file.")
                      .arg(info.fileName(), locale().formattedDataSize(info.size()),
                           locale().formattedDataSize(MostBytes)));
        return;
    }
    try {
        (void)SoundSource(file.toStdString()); // one that cannot be heard is no use
    } catch (const std::exception& error) {
        emit told(tr("%1 cannot be played: %2")
                      .arg(info.fileName(), QString::fromStdString(error.what())));
        return;
    }
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        emit told(tr("%1 cannot be read: %2").arg(info.fileName(), source.errorString()));
        return;
    }
    const QByteArray bytes = source.readAll();
    emit added({{bytes.begin(), bytes.end()}});
}

void RadioBox::play(int recording) {
    if (recording < 0 || recording >= m_list->count())
        return;
    const QString fault = m_player->play(m_recordings[static_cast<std::size_t>(recording)]);
    if (!fault.isEmpty())
        emit told(tr("Recording %1 cannot be played: %2").arg(recording + 1).arg(fault));
}

void RadioBox::move(int step) {
    const int from = m_list->currentRow();
    const int to = from + step;
    if (to < 0 || to >= m_list->count())
        return;
    m_list->setCurrentRow(to); // the one that moves stays selected
    emit moved(from, to);
}

void RadioBox::save() {
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    const Blob sound = m_recordings[static_cast<std::size_t>(row)]; // they may change meanwhile
    const std::string_view extension = soundExtension(sound);
    const QString name =
        tr("recording %1").arg(row + 1) +
        QString::fromUtf8(extension.data(), static_cast<qsizetype>(extension.size()));
    const QString file = QFileDialog::getSaveFileName(this, tr("Save the recording"), name);
    if (file.isEmpty())
        return;
    disk::writeAwaited(*this, file.toStdString(),
                       std::string(sound.bytes.begin(), sound.bytes.end()),
                       [this](const std::exception_ptr& fault) {
                           if (fault)
                               emit told(QString::fromStdString(messageOf(fault)));
                       });
}

} // namespace kavela::desktop
