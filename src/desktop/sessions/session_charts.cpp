#include "desktop/sessions/session_charts.h"

#include "desktop/charts/sensor_chart.h"
#include "desktop/sessions/session_series.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <ranges>

namespace kavela::desktop {

namespace {

constexpr int LaneHeight = 92; // pixels at least
constexpr int AxisHeight = 26; // pixels of the time axis
constexpr std::size_t MarkSlot = 6;
constexpr std::size_t SelectionSlot = 2;

constexpr std::array AllMeasures{
    SessionMeasure::StrokeRate, SessionMeasure::Force, SessionMeasure::Impulse,
    SessionMeasure::Power,      SessionMeasure::Speed, SessionMeasure::HeartRate,
    SessionMeasure::Phases,     SessionMeasure::Roll,  SessionMeasure::Pitch};

/// Why a chart has nothing to show.
QString emptyTextOf(SessionMeasure measure, const EditedSession& session,
                    const SessionFigures& figures) {
    const bool needsStrokes = measure != SessionMeasure::HeartRate &&
                              measure != SessionMeasure::Speed && measure != SessionMeasure::Pitch;
    const bool needsBow = measure != SessionMeasure::HeartRate &&
                          measure != SessionMeasure::Speed && measure != SessionMeasure::StrokeRate;
    if (measure == SessionMeasure::HeartRate)
        return SessionCharts::tr("none was recorded");
    if (measure == SessionMeasure::Pitch && figures.turns.empty())
        return SessionCharts::tr("there are no turns");
    if (needsStrokes && figures.strokes.empty())
        return SessionCharts::tr("there are no strokes");
    if (needsBow && !session.isBowKnown)
        return SessionCharts::tr("not known, since nothing tells which side of the phone points "
                                 "to the bow");
    return SessionCharts::tr("not known, since there are no positions that tell the speed");
}

bool hasValues(const std::vector<SensorSeries>& series) {
    return std::ranges::any_of(series, [](const auto& curve) { return !curve.times->empty(); });
}

} // namespace

SessionCharts::SessionCharts(QWidget* parent) : QWidget(parent) {
    auto* inside = new QWidget;
    m_column = new QVBoxLayout(inside);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(inside);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
    for (const SessionMeasure measure : AllMeasures)
        addLane(measure);
    m_empty = new QLabel;
    m_empty->setObjectName("emptyCharts");
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    m_empty->setTextFormat(Qt::PlainText);
    m_empty->setWordWrap(true);
    m_empty->setContentsMargins(theme::LargeSpacing, theme::SmallSpacing, theme::LargeSpacing, 0);
    m_column->addWidget(m_empty);
    setMeasures({SessionMeasure::StrokeRate, SessionMeasure::Force, SessionMeasure::Impulse,
                 SessionMeasure::Speed, SessionMeasure::HeartRate, SessionMeasure::Phases});
}

QString SessionCharts::nameOf(SessionMeasure measure) {
    switch (measure) {
    case SessionMeasure::StrokeRate:
        return tr("Stroke rate");
    case SessionMeasure::Force:
        return tr("Force");
    case SessionMeasure::Impulse:
        return tr("Impulse");
    case SessionMeasure::Power:
        return tr("Power");
    case SessionMeasure::Speed:
        return tr("Speed");
    case SessionMeasure::HeartRate:
        return tr("Heart rate");
    case SessionMeasure::Phases:
        return tr("Phases");
    case SessionMeasure::Roll:
        return tr("Roll");
    case SessionMeasure::Pitch:
        return tr("Pitch");
    }
    return {};
}

void SessionCharts::addLane(SessionMeasure measure) {
    auto* chart = new SensorChart;
    chart->setTitle(nameOf(measure));
    chart->setDragZooms(false);
    chart->setMinimumHeight(grown(*chart, LaneHeight));
    m_column->addWidget(chart, 1);
    const auto begin = [this] { return m_figures.moments.from; };
    connect(chart, &SensorChart::viewChanged, this, [this, chart](double from, double to) {
        for (const Lane& lane : m_lanes)
            if (lane.chart != chart)
                lane.chart->setView(from, to);
    });
    connect(chart, &SensorChart::hoveredAt, this,
            [this, begin](double time) { emit hovered(begin() + time); });
    connect(chart, &SensorChart::hoverEnded, this, &SessionCharts::hoverEnded);
    connect(chart, &SensorChart::clickedAt, this,
            [this, begin](double time) { emit momentChosen(begin() + time); });
    connect(chart, &SensorChart::rangeSelected, this, [this, begin](double from, double to) {
        emit stretchSelected(begin() + from, begin() + to);
    });
    m_lanes.push_back({measure, chart});
}

SensorChart& SessionCharts::chart(SessionMeasure measure) const {
    return *std::ranges::find(m_lanes, measure, &Lane::measure)->chart;
}

void SessionCharts::setMeasures(std::vector<SessionMeasure> measures) {
    m_measures = std::move(measures);
    fillLanes();
    showMarks();
}

/// The time axis stands under the last chart alone.
void SessionCharts::showLanes() {
    bool isLast = true;
    for (const Lane& lane : std::views::reverse(m_lanes)) {
        lane.chart->setVisible(isShown(lane.measure));
        if (!isShown(lane.measure))
            continue;
        lane.chart->setTimeAxisVisible(isLast);
        lane.chart->setMinimumHeight(grown(*lane.chart, LaneHeight + (isLast ? AxisHeight : 0)));
        isLast = false;
    }
}

void SessionCharts::setNormalized(bool isNormalized) {
    m_isNormalized = isNormalized;
    fillLanes();
}

void SessionCharts::show(const EditedSession& session, const SessionFigures& figures) {
    const bool isOther = figures.moments.from != m_figures.moments.from ||
                         figures.moments.to != m_figures.moments.to;
    m_session = session;
    m_figures = figures;
    fillLanes();
    showMarks();
    if (isOther)
        fit();
}

std::vector<SensorSeries> SessionCharts::seriesOf(SessionMeasure measure) const {
    std::vector<SensorSeries> series = seriesFor(measure, m_session, m_figures);
    if (!hasValues(series))
        return {};
    return m_isNormalized ? normalized(std::move(series)) : series;
}

bool SessionCharts::isShown(SessionMeasure measure) const {
    return std::ranges::count(m_measures, measure) > 0 &&
           std::ranges::find(m_lanes, measure, &Lane::measure)->hasValues;
}

void SessionCharts::fillLanes() {
    for (Lane& lane : m_lanes) {
        if (std::ranges::count(m_measures, lane.measure) == 0)
            continue;
        std::vector<SensorSeries> series = seriesOf(lane.measure);
        lane.hasValues = !series.empty();
        lane.chart->setSeries(std::move(series));
        lane.chart->setLimits(0, std::max(1.0, m_figures.moments.to - m_figures.moments.from));
    }
    showLanes();
    tellEmpty();
}

/// A chart of nothing would take the room of one that tells something.
void SessionCharts::tellEmpty() {
    std::vector<std::pair<QString, QStringList>> reasons; // with the charts that they leave empty
    for (const Lane& lane : m_lanes) {
        if (std::ranges::count(m_measures, lane.measure) == 0 || lane.hasValues)
            continue;
        const QString reason = emptyTextOf(lane.measure, m_session, m_figures);
        auto known = std::ranges::find(reasons, reason, &std::pair<QString, QStringList>::first);
        if (known == reasons.end())
            known = reasons.insert(reasons.end(), {reason, {}});
        known->second.append(nameOf(lane.measure));
    }
    QStringList lines;
    for (const auto& [reason, names] : reasons)
        lines.append(names.join(", ") + ": " + reason);
    m_empty->setText(lines.join('\n'));
    m_empty->setVisible(!lines.isEmpty());
}

void SessionCharts::showSelection(std::optional<MomentRange> range) {
    m_selection = range;
    showMarks();
}

/// Marks are numbered by the segment that begins there.
void SessionCharts::showMarks() {
    const double begin = m_figures.moments.from;
    std::vector<SensorMark> marks;
    if (m_selection)
        marks.push_back({m_selection->from - begin, m_selection->to - begin, {}, SelectionSlot});
    const std::vector<double>& moments = m_session.marks;
    for (std::size_t i = 0; i < moments.size(); ++i) {
        const bool isEnd = i > 0 && i + 1 == moments.size();
        marks.push_back({moments[i] - begin, moments[i] - begin,
                         isEnd ? tr("end") : QString::number(i + 1), MarkSlot});
    }
    bool isFirst = true; // of the charts that are seen: it alone bears the numbers
    for (const Lane& lane : m_lanes) {
        lane.chart->setMarks(marks);
        if (!isFirst || !isShown(lane.measure))
            continue;
        isFirst = false;
        for (SensorMark& mark : marks)
            mark.text.clear();
    }
}

void SessionCharts::showStretch(MomentRange range) {
    const double begin = m_figures.moments.from;
    for (const Lane& lane : m_lanes)
        lane.chart->setView(range.from - begin, range.to - begin);
}

void SessionCharts::fit() {
    for (const Lane& lane : m_lanes)
        lane.chart->fit();
}

void SessionCharts::showCursorAt(double moment) {
    for (const Lane& lane : m_lanes)
        lane.chart->showCursorAt(moment - m_figures.moments.from);
}

} // namespace kavela::desktop
