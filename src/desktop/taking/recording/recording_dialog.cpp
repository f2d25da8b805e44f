#include "desktop/taking/recording/recording_dialog.h"

#include "boatmotion/session_files.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "splitdata/run_timing.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>

#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::size_t EventSlot = 1;
constexpr std::size_t RunSlot = 2;
constexpr int MessageLines = 4;
constexpr QSize Usual(860, 560);
constexpr QMargins Frame(2, 30, 2, 2);        ///< pixels that most systems draw around a window
constexpr const char* Widest = "-0:00:00.00"; ///< a moment: the buttons beside it stay in place

QString clockText(const ClockFit& fit, double first, bool hasDrift) {
    const double later = fit.stampAt(0) - first; // seconds of the recording
    QString text =
        later >= 0
            ? RecordingDialog::tr("The film begins %1 after the recording.").arg(momentText(later))
            : RecordingDialog::tr("The film begins %1 before the recording.")
                  .arg(momentText(-later));
    if (hasDrift)
        text += ' ' + RecordingDialog::tr("Its clock gains %1 s in 100 s, which is taken out.")
                          .arg(shownNumber((fit.rate - 1) * 100, 2));
    return text;
}

QString joined(const QStringList& parts) {
    QStringList known = parts;
    known.removeAll(QString());
    return known.isEmpty() ? QStringLiteral("–") : known.join(" · ");
}

QString dayOf(std::optional<ReferenceDate> date) {
    return date && date->seconds > 0 ? QString::fromStdString(dayText(*date)) : QString();
}

QString whoseText(const bmrawdata_v5& recording) {
    return joined({QString::fromStdString(recording.athleteinfo.name), dayOf(recording.info.date),
                   QString::fromStdString(recording.info.location)});
}

QString whoseText(const RunFacts& run) {
    return joined({QString::fromStdString(crewText(run.crew)), dayOf(run.date),
                   QString::fromStdString(run.race)});
}

QString differenceText(const Difference& difference) {
    if (difference.isOtherAthlete && difference.isOtherDay)
        return RecordingDialog::tr("The recording is of another athlete and another day.");
    if (difference.isOtherAthlete)
        return RecordingDialog::tr("The recording is of another athlete.");
    return difference.isOtherDay ? RecordingDialog::tr("The recording is of another day.")
                                 : QString();
}

/// The free strips around a part of the screen.
std::array<QRect, 4> stripsAround(const QRect& kept, const QRect& screen) {
    return {QRect(QPoint(screen.left(), kept.bottom() + 1), screen.bottomRight()),
            QRect(QPoint(kept.right() + 1, screen.top()), screen.bottomRight()),
            QRect(screen.topLeft(), QPoint(screen.right(), kept.top() - 1)),
            QRect(screen.topLeft(), QPoint(kept.left() - 1, screen.bottom()))};
}

} // namespace

RecordingDialog::RecordingDialog(Film film, QWidget* parent)
    : QDialog(parent),
      m_film(std::move(film)),
      m_title(new QLabel),
      m_whose(new QLabel),
      m_other(new FaultLabel),
      m_note(new QLabel),
      m_clocks(new QLabel),
      m_fault(new FaultLabel),
      m_chart(new SensorChart),
      m_yaw(new SensorChart) {
    setWindowTitle(tr("Recording of a run"));
    setAcceptDrops(true);
    makeParts();
    showRecording();
    resize(Usual);
}

void RecordingDialog::makeParts() {
    m_title->setFont(theme::titleFont(*this));
    m_note->setFont(theme::captionFont(*this));
    m_note->setWordWrap(true);
    m_clocks->setWordWrap(true);
    m_whose->setObjectName("whose");
    m_whose->setTextFormat(Qt::PlainText);
    m_whose->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_other->setObjectName("other");
    m_choose = new QPushButton(tr("Choose a &recording…"));
    m_attach = new QPushButton(tr("&Attach the part of this run"));
    m_detach = new QPushButton(tr("Take o&ff what is attached"));
    auto* close = new QPushButton(tr("Close"));
    for (QPushButton* button : {m_choose, m_attach, m_detach, close})
        button->setAutoDefault(false);
    connect(m_choose, &QPushButton::clicked, this, &RecordingDialog::chooseRequested);
    connect(m_attach, &QPushButton::clicked, this, &RecordingDialog::attach);
    connect(m_detach, &QPushButton::clicked, this, [this] { m_film.detach(); });
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    for (SensorChart* chart : {m_chart, m_yaw}) {
        SensorChart* const other = chart == m_chart ? m_yaw : m_chart;
        connect(chart, &SensorChart::viewChanged, other, &SensorChart::setView);
        connect(chart, &SensorChart::hoveredAt, other, &SensorChart::showCursorAt);
        connect(chart, &SensorChart::hoverEnded, other, &SensorChart::hideCursor);
        connect(chart, &SensorChart::clickedAt, this, [this](double stamp) {
            m_cursor = stamp;
            showMarks();
            if (m_fit)
                m_film.show(m_fit->videoAt(stamp));
        });
    }
    auto* head = new QHBoxLayout;
    head->addWidget(m_title, 1);
    head->addWidget(m_choose);
    auto* whose = new QHBoxLayout;
    whose->addWidget(m_whose, 3);
    whose->addWidget(m_other, 2);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_detach);
    foot->addStretch(1);
    foot->addWidget(m_attach);
    foot->addWidget(close);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                              theme::LargeSpacing);
    whole->setSpacing(theme::Spacing);
    whole->addLayout(head);
    whole->addLayout(whose);
    whole->addWidget(m_chart, 3);
    whole->addWidget(m_yaw, 2);
    whole->addWidget(makeEvents());
    whole->addWidget(makeMessages());
    whole->addLayout(foot);
}

/// A place of its own for all that is told, always as high: nothing moves under the mouse.
QWidget* RecordingDialog::makeMessages() {
    auto* inside = new QWidget;
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_fault);
    column->addWidget(m_clocks);
    column->addWidget(m_note);
    column->addStretch();
    auto* area = new QScrollArea;
    area->setObjectName("messages");
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(inside);
    area->setFixedHeight(MessageLines * fontMetrics().lineSpacing() + theme::Spacing);
    return area;
}

QWidget* RecordingDialog::makeEvents() {
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::LargeSpacing);
    grid->setVerticalSpacing(theme::SmallSpacing);
    const QStringList titles{tr("Common moment"), tr("A later one, against drift")};
    for (int i = 0; i < 2; ++i) {
        Row& row = m_rows[i];
        const auto which = static_cast<Event>(i);
        row = {new QLabel, new QLabel, new QPushButton(tr("From the film")),
               new QPushButton(tr("From the chart")), new QPushButton(tr("Clear"))};
        connect(row.setVideo, &QPushButton::clicked, this, [=, this] { setVideo(which); });
        connect(row.setStamp, &QPushButton::clicked, this,
                [=, this] { setStamp(which, m_cursor); });
        connect(row.clear, &QPushButton::clicked, this, [=, this] { clear(which); });
        row.video->setMinimumWidth(fontMetrics().horizontalAdvance(tr("film %1").arg(Widest)));
        row.stamp->setMinimumWidth(fontMetrics().horizontalAdvance(tr("recording %1").arg(Widest)));
        grid->addWidget(new QLabel(titles[i]), i, 0);
        int column = 1;
        for (QWidget* part : std::initializer_list<QWidget*>{row.video, row.setVideo, row.stamp,
                                                             row.setStamp, row.clear}) {
            if (auto* const button = qobject_cast<QPushButton*>(part))
                button->setAutoDefault(false);
            grid->addWidget(part, i, column++);
        }
    }
    grid->setColumnStretch(6, 1);
    return box;
}

void RecordingDialog::load(const QString& path) {
    struct Read {
        std::unique_ptr<LoadedRecording> recording;
        QString fault;
        bool isOlder = false;
    };
    const QString name = QFileInfo(path).fileName();
    m_choose->setEnabled(false);
    m_title->setText(tr("Reading %1…").arg(name));
    m_work.run(
        [path, name] {
            Read read;
            try {
                read.recording = std::make_unique<LoadedRecording>(
                    loadedRecording(name.toStdString(), readRawSession(path.toStdString())));
            } catch (const OlderRecording&) {
                read.isOlder = true;
            } catch (const std::exception& error) {
                read.fault = QString::fromUtf8(error.what());
            }
            return read;
        },
        [this, path, name, wanted = ++m_wanted](Read read) {
            if (wanted != m_wanted)
                return;
            m_choose->setEnabled(true);
            if (read.recording) {
                setRecording(std::move(*read.recording));
                emit loaded();
                return;
            }
            showRecording();
            if (read.isOlder)
                emit refusedAsOlder(path);
            else
                emit failed(tr("“%1” cannot be opened").arg(name), read.fault);
        });
}

void RecordingDialog::setRecording(LoadedRecording recording) {
    m_recording = std::make_unique<LoadedRecording>(std::move(recording));
    m_events = {};
    m_cursor = m_recording->first();
    showRecording();
}

CommonEvents::Event& RecordingDialog::event(Event event) {
    return event == First ? m_events.first : m_events.second;
}

void RecordingDialog::setVideo(Event which) {
    event(which).video = m_film.position();
    showFit();
}

void RecordingDialog::setStamp(Event which, double stamp) {
    if (m_recording)
        event(which).stamp = stamp;
    showFit();
}

void RecordingDialog::clear(Event which) {
    event(which) = {};
    showFit();
}

void RecordingDialog::showRecording() {
    for (QWidget* part : std::initializer_list<QWidget*>{m_rows[0].setStamp, m_rows[1].setStamp,
                                                         m_rows[0].setVideo, m_rows[1].setVideo})
        part->setEnabled(m_recording != nullptr);
    if (!m_recording) {
        m_title->setText(tr("No recording yet"));
        m_note->setText(tr("Choose the recording (.kvb) of the run, or drop it here."));
        m_chart->setEmptyText(tr("The boat's acceleration stands here."));
        m_yaw->setVisible(false);
        showFit();
        return;
    }
    m_title->setText(QString::fromStdString(m_recording->name));
    m_note->setText(QString::fromStdString(m_recording->note) +
                    (m_recording->note.empty() ? "" : "\n") +
                    tr("Find a moment that film and recording both show, such as the first stroke "
                       "or a hit on the boat: go there in the film, click it in the chart, and set "
                       "both."));
    const bool hasAnalysis = !m_recording->yawRate->empty();
    m_chart->setSeries({{hasAnalysis ? tr("Forward acceleration") : tr("Acceleration"), "m/s²",
                         m_recording->times, m_recording->forward, 0}});
    m_yaw->setVisible(hasAnalysis);
    if (hasAnalysis)
        m_yaw->setSeries({{tr("Yaw rate"), "rad/s", m_recording->times, m_recording->yawRate, 3}});
    const double first = m_recording->first();
    for (SensorChart* chart : {m_chart, m_yaw}) {
        chart->setTimeText([first](double stamp) { return momentText(stamp - first); });
        chart->setLimits(first, m_recording->last());
        chart->fit();
    }
    showFit();
}

void RecordingDialog::startRun() {
    m_events = {};
    showFit();
}

void RecordingDialog::showFit() {
    const double first = m_recording ? m_recording->first() : 0;
    for (int i = 0; i < 2; ++i) {
        const CommonEvents::Event& shown = event(static_cast<Event>(i));
        m_rows[i].video->setText(shown.video ? tr("film %1").arg(momentText(*shown.video))
                                             : tr("film –"));
        m_rows[i].stamp->setText(shown.stamp
                                     ? tr("recording %1").arg(momentText(*shown.stamp - first))
                                     : tr("recording –"));
        m_rows[i].clear->setEnabled(shown.video || shown.stamp);
    }
    m_fit.reset();
    QString fault;
    try {
        m_fit = m_events.fit();
    } catch (const ClockError& error) {
        fault = error.what();
    }
    m_fault->tell(fault);
    showRun();
}

void RecordingDialog::showMarks() {
    if (!m_recording)
        return;
    std::vector<SensorMark> marks{{m_cursor, m_cursor, {}, EventSlot}};
    for (int i = 0; i < 2; ++i)
        if (const auto stamp = event(static_cast<Event>(i)).stamp)
            marks.push_back({*stamp, *stamp, QString::number(i + 1), EventSlot});
    const RunFacts run = m_film.run();
    if (run.span && m_fit)
        marks.push_back({m_fit->stampAt(run.span->start), m_fit->stampAt(run.span->end),
                         QString::fromStdString(crewText(run.crew)), RunSlot});
    m_chart->setMarks(marks);
    m_yaw->setMarks(marks);
}

void RecordingDialog::showRun() {
    const RunFacts run = m_film.run();
    showWhose(run);
    m_attach->setEnabled(m_fit && run.span);
    m_attach->setToolTip(
        run.span ? QString() : tr("The run has to be marked first: its start and its splits."));
    m_detach->setEnabled(m_film.isAttached());
    QStringList told;
    if (m_fit) {
        told << clockText(*m_fit, m_recording->first(),
                          m_events.first.isWhole() && m_events.second.isWhole());
        for (const std::string& note : coverNotes(m_recording->session, *m_fit, run))
            told << QString::fromStdString(note);
    }
    m_clocks->setText(told.join('\n'));
    showMarks();
}

/// Whose recording it is, beside whose run: a wrong one is seen before it is attached.
void RecordingDialog::showWhose(const RunFacts& run) {
    const QString recording = m_recording ? whoseText(m_recording->session) : QStringLiteral("–");
    m_whose->setText(tr("Recording: %1").arg(recording) + '\n' + tr("Run: %1").arg(whoseText(run)));
    m_whose->setToolTip(m_whose->text());
    m_other->tell(m_recording ? differenceText(differenceOf(m_recording->session, run))
                              : QString());
}

bool RecordingDialog::isMeantFor(const RunFacts& run) const {
    const Difference difference = differenceOf(m_recording->session, run);
    if (!difference.isAny())
        return true;
    return m_film.isMeant(
        {differenceText(difference).toStdString(), m_whose->text().toStdString()});
}

void RecordingDialog::attach() {
    const RunFacts run = m_film.run();
    if (!m_recording || !m_fit || !run.span)
        return;
    try {
        AttachedPart part = partOf(m_recording->session, *m_fit, run.span->start, run.span->end);
        if (part.isEmpty()) {
            m_fault->tell(tr("Nothing of the recording lies within the run."));
            return;
        }
        m_fault->tell({});
        if (!isMeantFor(run))
            return;
        m_film.attach(std::move(part));
        const QString crew = QString::fromStdString(crewText(run.crew));
        m_clocks->setText(tr("The part of %1 is attached.").arg(crew) + '\n' + m_clocks->text());
    } catch (const ClockError& error) {
        m_fault->tell(error.what());
    }
}

void RecordingDialog::placeBeside(const QRect& kept, const QRect& screen) {
    const QSize least = minimumSizeHint();
    const auto areaOf = [](const QRect& rect) { return qint64(rect.width()) * rect.height(); };
    QRect best;
    for (const QRect& strip : stripsAround(kept, screen)) {
        const QRect inside = strip.marginsRemoved(Frame);
        const bool fits = inside.width() >= least.width() && inside.height() >= least.height();
        if (fits && areaOf(inside) > areaOf(best))
            best = inside;
    }
    const bool isBeside = best.isValid();
    if (!isBeside)
        best = screen.marginsRemoved(Frame);
    QRect place(best.topLeft(), Usual.boundedTo(best.size()).expandedTo(least));
    if (!isBeside)
        place.moveBottom(best.bottom());
    setGeometry(place);
}

void RecordingDialog::dragEnterEvent(QDragEnterEvent* event) {
    acceptFiles(*event);
}

void RecordingDialog::dropEvent(QDropEvent* event) {
    if (const QStringList files = droppedFiles(*event); !files.isEmpty())
        load(files.front());
}

} // namespace kavela::desktop
