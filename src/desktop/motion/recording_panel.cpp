#include "desktop/motion/recording_panel.h"

#include "desktop/motion/motion_recording.h"
#include "desktop/motion/mount_names.h"
#include "desktop/shell/theme.h"

#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace kavela::desktop {

namespace {

QString notesText(const MotionRecording& recording) {
    QStringList notes;
    if (recording.analysis)
        for (const std::string& note : notesOf(*recording.analysis))
            notes << QString::fromStdString(note);
    return notes.join('\n');
}

} // namespace

RecordingPanel::RecordingPanel(QWidget* parent)
    : QWidget(parent),
      m_form([this](const QString&, const auto& change) { edit(change); }),
      m_notes(new QLabel) {
    addFields();
    m_form.layout()->setSpacing(theme::SmallSpacing);
    m_notes->setWordWrap(true);
    m_notes->setForegroundRole(QPalette::PlaceholderText);
    // Not in the form: it would not give the words the lines that they need.
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(theme::SmallSpacing);
    whole->addWidget(&m_form);
    whole->addWidget(m_notes);
}

void RecordingPanel::addFields() {
    std::vector<std::pair<QString, std::optional<Mount>>> mounts{
        {tr("Found from the position"), std::nullopt}};
    const QStringList sides = mountNames();
    for (int i = 0; i < sides.size(); ++i)
        mounts.emplace_back(sides[i], static_cast<Mount>(i));
    m_form.number({.name = "shift",
                   .label = tr("Later b&y"),
                   .tip = tr("Drag a curve with Shift, or press A, to move it in time")},
                  {.least = -86400,
                   .most = 86400,
                   .decimals = 2,
                   .step = 0.01,
                   .unit = tr("s"),
                   .isTime = true},
                  &RecordingSetting::shift);
    m_form.number(
        {.name = "mass", .label = tr("&Mass in motion"), .tip = tr("Athlete, boat and kit")},
        {.least = 20, .most = 300, .decimals = 1, .step = 0.5, .unit = tr("kg")},
        [](auto& setting) -> auto& { return setting.profile.mass; });
    m_form.number(
        {.name = "drag",
         .label = tr("&Drag"),
         .tip = tr("Resistance of the hull over the square of its speed")},
        {.most = 50, .decimals = 1, .step = 0.1, .unit = tr("N·s²/m²")},
        [](auto& setting) -> auto& { return setting.profile.drag; });
    m_form.choice(
        {.name = "boat", .label = tr("&Boat")},
        std::vector<std::pair<QString, BoatClass>>{{tr("Kayak"), BoatClass::Kayak},
                                                   {tr("Canoe"), BoatClass::Canoe}},
        [](auto& setting) -> auto& { return setting.profile.boat; });
    m_form.choice(
        {.name = "mount",
         .label = tr("P&hone"),
         .tip = tr("Which side of the phone points to the bow; used where the position "
                   "does not tell")},
        mounts, [](auto& setting) -> auto& { return setting.profile.mount; });
}

void RecordingPanel::edit(const std::function<void(RecordingSetting&)>& change) {
    const double shift = m_setting.shift;
    change(m_setting);
    if (m_setting.shift != shift)
        emit shiftEntered(m_setting.shift);
    else
        emit profileEntered(m_setting.profile);
}

void RecordingPanel::show(const MotionRecording* recording) {
    setEnabled(recording != nullptr);
    m_setting =
        recording ? RecordingSetting{recording->shift, recording->profile} : RecordingSetting();
    m_form.show(recording ? &m_setting : nullptr, std::exchange(m_shown, recording) != recording);
    const QString notes = recording ? notesText(*recording) : QString();
    m_notes->setText(notes);
    m_notes->setVisible(!notes.isEmpty());
}

} // namespace kavela::desktop
