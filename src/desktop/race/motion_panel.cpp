#include "desktop/race/motion_panel.h"

#include "desktop/charts/sensor_chart.h"
#include "desktop/race/race_document.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace kavela::desktop {

namespace {

constexpr std::size_t MostRuns = 4; ///< whose curves can be told apart at this size
constexpr std::size_t MarkSlot = 6;

constexpr QChar PartMark = u'*'; ///< behind what is told of a part of a section alone
const QString Unknown = QStringLiteral("–");

template <class Number>
QString numberOrDash(const std::optional<Number>& number, int decimals = 0) {
    return number ? shownNumber(static_cast<double>(*number), decimals) : Unknown;
}

/// The run as it stands in its file, as far as its motion goes.
athletedata031 recordOf(const analyzerdata& run) {
    athletedata031 record;
    record.cat = run.category;
    record.sectioninfo.times = run.sectioninfo.times;
    record.bm = run.bm.list();
    record.hr = run.heart.list();
    record.gps = run.gps.list();
    record.watchmotion = run.watch.list();
    return record;
}

template <class List, class Value>
SensorSeries seriesOf(const QString& name, const QString& unit, const List& list, Value value,
                      std::size_t slot) {
    auto times = std::make_shared<std::vector<double>>();
    auto values = std::make_shared<std::vector<double>>();
    for (const auto& entry : list) {
        times->push_back(entry.time);
        values->push_back(value(entry));
    }
    return {name, unit, std::move(times), std::move(values), slot};
}

QLabel* wrappedLabel(const QFont& font) {
    auto* label = new QLabel;
    label->setFont(font);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

bool isPart(const NamedSection& section) {
    return section.motion.cover == MotionCover::Part;
}

QString coverText(const NamedSection& section) {
    const SectionMotion& motion = section.motion;
    if (isPart(section))
        return MotionPanel::tr("%1 s of %2 s are recorded.")
            .arg(QString::number(motion.covered, 'f', 1),
                 QString::number(motion.end - motion.start, 'f', 1));
    return motion.strokes ? QString() : MotionPanel::tr("Nothing of it is recorded.");
}

/// What is counted along a section says whether all of it was.
template <class Number>
Cell countedCell(const NamedSection& section, const std::optional<Number>& number) {
    QString text = numberOrDash(number);
    if (isPart(section) && text != Unknown)
        text += PartMark;
    return {.text = text, .tip = coverText(section)};
}

Cell speedCell(const NamedSection& section) {
    const SectionMotion& motion = section.motion;
    return {.text = numberOrDash(motion.meanSpeed, 2),
            .tip = MotionPanel::tr("greatest %1 m/s, %2 m")
                       .arg(numberOrDash(motion.maxSpeed, 2), numberOrDash(motion.distance))};
}

ColumnModel<NamedSection>::Columns motionColumns() {
    constexpr ColumnKind Number = ColumnKind::Number;
    const auto strokes = [](const NamedSection& section) {
        return countedCell(section, section.motion.strokes);
    };
    const auto rate = [](const NamedSection& section) {
        return countedCell(section, section.motion.strokeRate);
    };
    const auto heart = [](const NamedSection& section) {
        return Cell{.text = numberOrDash(section.motion.heartRate)};
    };
    return {textColumn<NamedSection>(MotionPanel::tr("Section"), &NamedSection::title),
            {.title = MotionPanel::tr("Strokes"), .kind = Number, .show = strokes},
            {.title = MotionPanel::tr("1/min"), .kind = Number, .show = rate},
            {.title = MotionPanel::tr("m/s"), .kind = Number, .show = speedCell},
            {.title = MotionPanel::tr("Heart"), .kind = Number, .show = heart}};
}

} // namespace

MotionPanel::MotionPanel(RaceDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_name(wrappedLabel(theme::titleFont(*this))),
      m_note(wrappedLabel(theme::captionFont(*this))),
      m_sections(motionColumns(), RowsKnownBy::Number),
      m_table(new ColumnTable(m_sections, "motion")),
      m_speed(new SensorChart),
      m_rate(new SensorChart),
      m_heart(new SensorChart) {
    m_table->setOnlyShown();
    m_table->stretch({0});
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_name);
    column->addWidget(m_note);
    column->addWidget(m_table, 2);
    const std::array charts{m_speed, m_rate, m_heart};
    const std::array titles{tr("Speed"), tr("Stroke rate"), tr("Heart rate")};
    for (std::size_t i = 0; i < charts.size(); ++i) {
        charts[i]->setTitle(titles[i]);
        charts[i]->setTimeAxisVisible(i + 1 == charts.size());
        column->addWidget(charts[i], 1);
        SensorChart* const next = charts[(i + 1) % charts.size()];
        connect(charts[i], &SensorChart::viewChanged, next, &SensorChart::setView);
        connect(charts[i], &SensorChart::hoveredAt, next, &SensorChart::showCursorAt);
        connect(charts[i], &SensorChart::hoverEnded, next, &SensorChart::hideCursor);
    }
    column->addStretch(0);
    refresh();
}

void MotionPanel::showRuns(std::vector<std::size_t> runs) {
    m_runs = std::move(runs);
    if (isVisible())
        refresh();
}

void MotionPanel::forget() {
    m_motions.clear();
    m_runs.clear();
}

void MotionPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

const RunMotion& MotionPanel::motionOf(std::size_t run) {
    const auto known = m_motions.find(run);
    if (known != m_motions.end())
        return known->second;
    const analyzerdata& record = m_document.shownSet().alldata[run];
    return m_motions.emplace(run, runMotion(recordOf(record), m_document.info())).first->second;
}

QString MotionPanel::sectionTitle(std::size_t section) const {
    const auto& titles = m_document.info().splitTitles;
    return section < titles.size() && !titles[section].empty()
               ? QString::fromStdString(titles[section])
               : QString::number(section + 1);
}

void MotionPanel::refresh() {
    std::vector<std::size_t> recorded;
    for (const std::size_t run : m_runs) {
        const analyzerdata& record = m_document.shownSet().alldata[run];
        const bool hasAny = !record.bm.empty() || !record.heart.empty() || !record.gps.empty();
        if (hasAny && recorded.size() < MostRuns)
            recorded.push_back(run);
    }
    const bool isShown = !recorded.empty();
    for (QWidget* part : std::initializer_list<QWidget*>{m_name, m_table, m_speed, m_rate, m_heart})
        part->setVisible(isShown);
    m_note->setForegroundRole(isShown ? QPalette::WindowText : QPalette::PlaceholderText);
    if (!isShown) {
        m_note->setText(m_runs.empty()
                            ? tr("Select a run to see its strokes, speed and heart rate.")
                            : tr("No recording is attached to this run. Split taking attaches one "
                                 "(Ctrl+B)."));
        m_note->show();
        return;
    }
    fillTable(recorded.front());
    fillCharts(recorded);
}

void MotionPanel::fillTable(std::size_t run) {
    const RunMotion& motion = motionOf(run);
    m_name->setText(QString::fromStdString(m_document.shownSet().alldata[run].name));
    QStringList notes{QString::fromStdString(motion.reason)};
    for (const std::string& note : motion.notes)
        notes.append(QString::fromStdString(note));
    for (const std::string& note : motion.coverNotes)
        notes.append(QString::fromStdString(note));
    if (motion.whole.cover == MotionCover::Part)
        notes.append(tr("%1 of the part that is recorded; strokes of the whole run are not known.")
                         .arg(PartMark));
    notes.removeAll(QString());
    m_note->setText(notes.join('\n'));
    m_note->setVisible(!notes.isEmpty());
    std::vector<NamedSection> sections;
    for (const SectionMotion& section : motion.sections)
        sections.push_back({sectionTitle(sections.size()), section});
    sections.push_back({tr("Run"), motion.whole});
    m_sections.show(std::move(sections));
}

void MotionPanel::fillCharts(const std::vector<std::size_t>& runs) {
    std::vector<SensorSeries> speed;
    std::vector<SensorSeries> rate;
    std::vector<SensorSeries> heart;
    double longest = 0;
    for (std::size_t slot = 0; slot < runs.size(); ++slot) {
        const RunMotion& motion = motionOf(runs[slot]);
        const QString name = QString::fromStdString(m_document.shownSet().alldata[runs[slot]].name);
        const auto value = [](const TimedValue& entry) { return entry.value; };
        speed.push_back(seriesOf(name, "m/s", motion.speed, value, slot));
        rate.push_back(seriesOf(
            name, "1/min", motion.strokes, [](const RunStroke& stroke) { return stroke.rate; },
            slot));
        heart.push_back(seriesOf(name, "1/min", motion.heart, value, slot));
        longest = std::max(longest, motion.seconds);
    }
    std::vector<SensorMark> marks;
    const RunMotion& first = motionOf(runs.front());
    for (std::size_t k = 0; k < first.sections.size(); ++k)
        marks.push_back(
            {first.sections[k].start, first.sections[k].start, sectionTitle(k), MarkSlot});
    const auto fill = [&](SensorChart& chart, std::vector<SensorSeries> series) {
        const bool hasAny = std::ranges::any_of(
            series, [](const SensorSeries& each) { return !each.times->empty(); });
        chart.setVisible(hasAny);
        chart.setSeries(std::move(series));
        chart.setMarks(marks);
        chart.setLimits(0, longest);
        chart.fit();
    };
    fill(*m_speed, std::move(speed));
    fill(*m_rate, std::move(rate));
    fill(*m_heart, std::move(heart));
}

} // namespace kavela::desktop
