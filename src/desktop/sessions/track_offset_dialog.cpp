#include "desktop/sessions/track_offset_dialog.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <cmath>

namespace kavela::desktop {

namespace {

const QString Format = QStringLiteral("yyyy-MM-dd HH:mm:ss");

QDateTime timeOf(double date) {
    return QDateTime::fromMSecsSinceEpoch(std::llround((date + SecondsFrom1970To2001) * 1000));
}

QString spanText(const DateSpan& span) {
    const QDateTime first = timeOf(span.first);
    const QDateTime last = timeOf(span.last);
    const bool isOneDay = first.date() == last.date();
    return first.toString(Format) + " – " +
           last.toString(isOneDay ? QStringLiteral("HH:mm:ss") : Format);
}

} // namespace

TrackOffsetDialog::TrackOffsetDialog(const bmrawdata_v5& recording, const ImportedTrack& track,
                                     double offset, QWidget* parent)
    : QDialog(parent),
      m_recording(recording),
      m_track(track),
      m_recorded(spanOf(recording)),
      m_tracked(spanOf(track)),
      m_begin(new QDateTimeEdit),
      m_overlap(new QLabel) {
    setWindowTitle(tr("Track of a watch"));
    m_begin->setObjectName("begin");
    m_begin->setDisplayFormat(Format);
    m_begin->setDateTime(timeOf(m_tracked.first + offset));
    m_overlap->setObjectName("overlap");
    m_overlap->setWordWrap(true);
    layOut();
    connect(m_begin, &QDateTimeEdit::dateTimeChanged, this, &TrackOffsetDialog::showOverlap);
    showOverlap();
}

void TrackOffsetDialog::layOut() {
    auto* why = new QLabel(tr("The clock of the watch is perhaps wrong. Say when the track began "
                              "in truth."));
    why->setWordWrap(true);
    auto* together = new QPushButton(tr("With the &recording"));
    together->setObjectName("together");
    together->setToolTip(tr("Both were started at the same moment"));
    together->setAutoDefault(false);
    connect(together, &QPushButton::clicked, this,
            [this] { m_begin->setDateTime(timeOf(m_recorded.first)); });
    auto* begin = new QHBoxLayout;
    begin->addWidget(m_begin, 1);
    begin->addWidget(together);
    auto* form = new QFormLayout(this);
    form->setSpacing(theme::Spacing);
    form->addRow(why);
    form->addRow(tr("Recording"), new QLabel(spanText(m_recorded)));
    form->addRow(tr("Track, by its clock"), new QLabel(spanText(m_tracked)));
    form->addRow(tr("The track &began"), begin);
    form->addRow(m_overlap);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_join = buttons->addButton(tr("Join it"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    m_join->setDefault(true); // once it is part of the dialog: a button asks that for it
    setMinimumWidth(grown(*this, 460));
}

double TrackOffsetDialog::offset() const {
    const QDateTime before = timeOf(m_tracked.first);
    // Untouched it is exactly as the clock says, whose fractions the field does not show.
    return static_cast<double>(before.msecsTo(m_begin->dateTime())) / 1000;
}

void TrackOffsetDialog::showOverlap() {
    const JoinedTrack joined = joinable(m_recording, m_track, offset());
    QStringList lines{tr("%1 of %2 positions and %3 of %4 heart rates lie in the recording, or a "
                         "minute around it.")
                          .arg(joined.fixes)
                          .arg(m_track.gps.size())
                          .arg(joined.heart)
                          .arg(m_track.heart.size())};
    for (const std::string& note : joined.notes)
        lines.append(QString::fromStdString(note));
    m_overlap->setText(lines.join('\n'));
    m_join->setEnabled(joined.fixes + joined.heart > 0);
}

} // namespace kavela::desktop
