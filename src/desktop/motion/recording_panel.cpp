#include "desktop/motion/recording_panel.h"

#include "desktop/motion/motion_recording.h"
#include "desktop/motion/mount_names.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/theme.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

NumberBox* numberBox(double low, double high, double step, int decimals, const QString& suffix) {
    auto* box = new NumberBox;
    box->setRange(low, high);
    box->setSingleStep(step);
    box->setDecimals(decimals);
    box->setSuffix(suffix);
    box->setKeyboardTracking(false);
    return box;
}

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
      m_shift(numberBox(-86400, 86400, 0.01, 2, tr(" s"))),
      m_mass(numberBox(20, 300, 0.5, 1, tr(" kg"))),
      m_drag(numberBox(0, 50, 0.1, 1, tr(" N·s²/m²"))),
      m_boat(new QComboBox),
      m_mount(new QComboBox),
      m_notes(new QLabel) {
    m_shift->setObjectName("shift");
    m_shift->setIsTime(true);
    m_shift->setToolTip(tr("Drag a curve with Shift, or press A, to move it in time"));
    m_mass->setObjectName("mass");
    m_mass->setToolTip(tr("Athlete, boat and kit"));
    m_drag->setObjectName("drag");
    m_drag->setToolTip(tr("Resistance of the hull over the square of its speed"));
    m_boat->setObjectName("boat");
    m_boat->addItem(tr("Kayak"), static_cast<int>(BoatClass::Kayak));
    m_boat->addItem(tr("Canoe"), static_cast<int>(BoatClass::Canoe));
    m_mount->setObjectName("mount");
    m_mount->setToolTip(tr("Which side of the phone points to the bow; used where the position "
                           "does not tell"));
    m_mount->addItem(tr("Found from the position"), -1);
    const QStringList sides = mountNames();
    for (int i = 0; i < sides.size(); ++i)
        m_mount->addItem(sides[i], i);
    m_notes->setWordWrap(true);
    m_notes->setForegroundRole(QPalette::PlaceholderText);
    auto* form = new QFormLayout;
    form->setSpacing(theme::SmallSpacing);
    form->addRow(tr("Later b&y"), m_shift);
    form->addRow(tr("&Mass in motion"), m_mass);
    form->addRow(tr("&Drag"), m_drag);
    form->addRow(tr("&Boat"), m_boat);
    form->addRow(tr("P&hone"), m_mount);
    // Not in the form: it would not give the words the lines that they need.
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(theme::SmallSpacing);
    whole->addLayout(form);
    whole->addWidget(m_notes);
    connect(m_shift, &NumberBox::valueChanged, this, &RecordingPanel::shiftEntered);
    for (const NumberBox* box : {m_mass, m_drag})
        connect(box, &NumberBox::valueChanged, this, &RecordingPanel::enterProfile);
    for (const QComboBox* box : {m_boat, m_mount})
        connect(box, &QComboBox::currentIndexChanged, this, &RecordingPanel::enterProfile);
}

void RecordingPanel::show(const MotionRecording* recording) {
    setEnabled(recording != nullptr);
    const QSignalBlocker shift(m_shift);
    const QSignalBlocker mass(m_mass);
    const QSignalBlocker drag(m_drag);
    const QSignalBlocker boat(m_boat);
    const QSignalBlocker mount(m_mount);
    m_profile = recording ? recording->profile : MotionProfile();
    m_shift->showValue(recording ? recording->shift : 0);
    m_mass->showValue(m_profile.mass);
    m_drag->showValue(m_profile.drag);
    m_boat->setCurrentIndex(m_boat->findData(static_cast<int>(m_profile.boat)));
    m_mount->setCurrentIndex(
        m_mount->findData(m_profile.mount ? static_cast<int>(*m_profile.mount) : -1));
    const QString notes = recording ? notesText(*recording) : QString();
    m_notes->setText(notes);
    m_notes->setVisible(!notes.isEmpty());
}

void RecordingPanel::enterProfile() {
    m_profile.mass = m_mass->value();
    m_profile.drag = m_drag->value();
    m_profile.boat = static_cast<BoatClass>(m_boat->currentData().toInt());
    const int side = m_mount->currentData().toInt();
    m_profile.mount = side < 0 ? std::nullopt : std::optional(static_cast<Mount>(side));
    emit profileEntered(m_profile);
}

} // namespace kavela::desktop
