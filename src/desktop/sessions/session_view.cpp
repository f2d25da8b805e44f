#include "desktop/sessions/session_view.h"

#include "desktop/charts/sensor_series.h"
#include "desktop/charts/series_chart.h"
#include "desktop/sessions/course_map.h"
#include "desktop/sessions/gauge_row.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/replay_bar.h"
#include "desktop/sessions/session_tables.h"
#include "desktop/sessions/session_texts.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* ChartsKey = "charts/session";

/// A point for each stroke, a series for each side.
ChartContent rateScatter(const EditedSession& session, const SessionFigures& figures) {
    ChartContent content;
    content.title = SessionView::tr("Speed against stroke rate");
    content.xTitle = SessionView::tr("Stroke rate (1/min)");
    content.yTitle = SessionView::tr("Speed (m/s)");
    content.emptyText = SessionView::tr("The speed of the strokes is not known.");
    const auto points = ChartSeries::Form::Points;
    content.series = {
        {.name = SessionView::tr("Left"), .points = {}, .form = points},
        {.name = SessionView::tr("Right"), .points = {}, .form = points, .slot = 1},
        {.name = SessionView::tr("Side unknown"), .points = {}, .form = points, .slot = 2}};
    for (const StrokeFigures& stroke : figures.strokes) {
        const std::int64_t hand = session.session.strokesData[stroke.entry].stroke.hand;
        const std::size_t side = hand == LeftHand ? 0 : hand == RightHand ? 1 : 2;
        if (stroke.speed)
            content.series[side].points.emplace_back(stroke.rate, *stroke.speed);
    }
    std::erase_if(content.series, [](const ChartSeries& series) { return series.points.empty(); });
    return content;
}

QPushButton* smallButton(const QString& text, const QString& help) {
    auto* button = new QPushButton(text);
    button->setToolTip(help);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

SessionView::SessionView(Workspace& workspace, Replay& replay, QWidget* parent)
    : QWidget(parent),
      m_workspace(workspace),
      m_replay(replay),
      m_figures(std::make_shared<SessionFigures>()),
      m_gauges(new GaugeRow(workspace)),
      m_charts(new SessionCharts),
      m_scatter(new SeriesChart),
      m_map(new CourseMap),
      m_tables(new SessionTables) {
    auto* left = new QWidget;
    auto* charts = new QVBoxLayout(left);
    charts->setContentsMargins(0, 0, 0, 0);
    charts->addWidget(makeSelectionBar());
    charts->addWidget(m_charts, 2);
    charts->addWidget(m_scatter, 1);
    auto* right = new QSplitter(Qt::Vertical);
    right->addWidget(makeMapPart());
    right->addWidget(m_tables);
    shareSizes(*right, {300, 260});
    m_parts = new QSplitter;
    m_parts->addWidget(left);
    m_parts->addWidget(right);
    m_parts->setStretchFactor(0, 1);
    shareSizes(*m_parts, {700, 540});
    rememberSizes(*m_parts, workspace, "sessionParts");
    rememberSizes(*right, workspace, "sessionSide");
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                              theme::Spacing);
    whole->setSpacing(theme::Spacing);
    whole->addWidget(makeHead());
    whole->addWidget(m_gauges);
    whole->addWidget(m_parts, 1);
    whole->addWidget(new ReplayBar(replay));
    connectParts();
    showRememberedMeasures();
    followPreferences();
    select(std::nullopt);
}

SessionView::~SessionView() = default;

QWidget* SessionView::makeHead() {
    m_title = new QLabel;
    m_title->setObjectName("title");
    m_title->setFont(theme::titleFont(*this));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* edit = smallButton(tr("Information…"), tr("Athlete, place, kind and equipment"));
    connect(edit, &QPushButton::clicked, this, &SessionView::informationRequested);
    auto* head = new QWidget;
    auto* column = new QVBoxLayout(head);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    auto* row = new QHBoxLayout;
    row->setSpacing(theme::LargeSpacing);
    row->addWidget(m_title, 1);
    row->addWidget(edit);
    column->addLayout(row);
    column->addWidget(makeRemarks());
    return head;
}

/// On lines of their own, as many as they need: what a coach has to know is not cut.
QWidget* SessionView::makeRemarks() {
    auto* icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size, size));
    m_remarks = new QLabel;
    m_remarks->setObjectName("remarks");
    m_remarks->setForegroundRole(QPalette::PlaceholderText);
    m_remarks->setTextFormat(Qt::PlainText);
    m_remarks->setWordWrap(true);
    m_remarkRow = new QWidget;
    auto* row = new QHBoxLayout(m_remarkRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(m_remarks, 1);
    m_nameMount = new QToolButton;
    m_nameMount->setObjectName("nameMount");
    m_nameMount->setText(tr("Name the phone's mount"));
    m_nameMount->setPopupMode(QToolButton::InstantPopup);
    row->addWidget(m_nameMount, 0, Qt::AlignTop);
    return m_remarkRow;
}

QWidget* SessionView::makeSelectionBar() {
    m_selectionText = new QLabel;
    m_selectionText->setObjectName("selection");
    m_selectionText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_selectionBar = new QWidget;
    auto* row = new QHBoxLayout(m_selectionBar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_selectionText, 1);
    const auto add = [&](const QString& text, const QString& help, auto act) {
        auto* button = smallButton(text, help);
        connect(button, &QPushButton::clicked, this, act);
        row->addWidget(button);
    };
    add(tr("Zoom"), tr("Show the selected stretch alone"), &SessionView::zoomToSelection);
    add(tr("Keep"), tr("Cut the session to the selected stretch"), &SessionView::keepRequested);
    add(tr("Remove"), tr("Take the selected stretch out"), &SessionView::removeRequested);
    return m_selectionBar;
}

QWidget* SessionView::makeMapPart() {
    m_colouring = new QComboBox;
    m_colouring->setObjectName("colouring");
    m_colouring->addItem(tr("Speed"), static_cast<int>(CourseMap::Colouring::Speed));
    m_colouring->addItem(tr("Stroke rate"), static_cast<int>(CourseMap::Colouring::StrokeRate));
    m_colouring->setFocusPolicy(Qt::TabFocus);
    auto* label = new QLabel(tr("Colour of the course"));
    label->setForegroundRole(QPalette::PlaceholderText);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_colouring);
    row->addStretch();
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(row);
    column->addWidget(m_map, 1);
    return part;
}

void SessionView::connectParts() {
    connect(&m_replay, &Replay::momentChanged, this, [this](double moment) {
        showMoment(moment);
        m_tables->showCursorAt(moment);
    });
    const auto choose = [this](double moment) { m_replay.setMoment(moment); };
    connect(m_charts, &SessionCharts::momentChosen, this, choose);
    connect(m_map, &CourseMap::momentChosen, this, choose);
    connect(m_tables, &SessionTables::momentChosen, this, choose);
    connect(m_charts, &SessionCharts::hovered, this, [this](double moment) {
        if (!m_replay.isPlaying())
            showMoment(moment);
    });
    connect(m_charts, &SessionCharts::hoverEnded, this, [this] { showMoment(m_replay.moment()); });
    connect(m_charts, &SessionCharts::stretchSelected, this, [this](double from, double to) {
        select(MomentRange{from, to});
    });
    connect(m_colouring, &QComboBox::currentIndexChanged, this, [this] {
        m_map->setColouring(static_cast<CourseMap::Colouring>(m_colouring->currentData().toInt()));
    });
    connect(&m_workspace, &Workspace::preferenceChanged, this, &SessionView::followPreferences);
}

void SessionView::show(const EditedSession& session) {
    if (m_session.powerMeter.empty() && !session.powerMeter.empty())
        showPowerMeter();
    m_session = session;
    m_figures = std::make_shared<const SessionFigures>(figuresOf(session));
    m_gauges->show(session, *m_figures);
    m_charts->show(session, *m_figures);
    m_scatter->show(rateScatter(session, *m_figures));
    m_map->show(m_figures);
    m_tables->show(session, *m_figures);
    showTitle();
    const MomentRange moments = m_figures->moments;
    if (m_selection && (m_selection->from >= moments.to || m_selection->to <= moments.from))
        m_selection.reset();
    select(m_selection);
    m_replay.setRange(moments.from, moments.to);
}

void SessionView::showMoment(double moment) {
    m_gauges->showMoment(m_session, *m_figures, moment);
    m_charts->showCursorAt(moment);
    m_map->showCursorAt(moment);
}

void SessionView::showTitle() {
    m_title->setText(sessionTitle(m_session.session.info));
    const QStringList remarks = remarksOn(m_session);
    m_remarks->setText(remarks.join(' '));
    m_remarkRow->setVisible(!remarks.isEmpty());
    m_nameMount->setVisible(!m_session.isBowKnown && m_session.recording);
}

void SessionView::showRememberedMeasures() {
    std::vector<SessionMeasure> measures;
    for (const QString& text : m_workspace.remembered(ChartsKey)) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (isNumber && number >= 0 && number <= static_cast<int>(SessionMeasure::Pitch))
            measures.push_back(static_cast<SessionMeasure>(number));
    }
    if (!measures.empty())
        m_charts->setMeasures(std::move(measures));
}

void SessionView::chooseMeasures(const std::vector<SessionMeasure>& measures) {
    QStringList numbers;
    for (const SessionMeasure measure : measures)
        numbers.append(QString::number(static_cast<int>(measure)));
    m_workspace.remember(ChartsKey, numbers);
    m_charts->setMeasures(measures);
}

/// Power-meter data is worth nothing unseen.
void SessionView::showPowerMeter() {
    std::vector<SessionMeasure> measures = m_charts->measures();
    if (m_isFullScreen || std::ranges::count(measures, SessionMeasure::Power) > 0)
        return;
    measures.push_back(SessionMeasure::Power);
    m_charts->setMeasures(std::move(measures));
}

void SessionView::setMountMenu(QMenu* menu) {
    m_nameMount->setMenu(menu);
}

QString SessionView::remarks() const {
    return m_remarks->text();
}

void SessionView::select(std::optional<MomentRange> range) {
    m_selection = range;
    m_charts->showSelection(range);
    m_selectionBar->setVisible(range.has_value());
    showSelectionText();
}

/// The means over the stretch: what a coach reads from it before cutting it.
void SessionView::showSelectionText() {
    if (!m_selection)
        return;
    double rates = 0;
    int strokes = 0;
    for (const StrokeFigures& stroke : m_figures->strokes)
        if (stroke.time >= m_selection->from && stroke.time < m_selection->to) {
            rates += stroke.rate;
            ++strokes;
        }
    const auto way = distanceBetween(m_figures->track, m_selection->from, m_selection->to);
    const double seconds = m_selection->to - m_selection->from;
    const auto rate = strokes > 0 ? std::optional(rates / strokes) : std::nullopt;
    const auto speed = way ? std::optional(*way / seconds) : std::nullopt;
    m_selectionText->setText(tr("%1 – %2: %3 s, %4 strokes, %5/min, %6 m, %7 m/s")
                                 .arg(momentText(m_selection->from - m_figures->moments.from, 1),
                                      momentText(m_selection->to - m_figures->moments.from, 1),
                                      valueText(seconds, 1), QString::number(strokes),
                                      valueText(rate, 0), valueText(way, 0), valueText(speed, 2)));
}

void SessionView::zoomToSelection() {
    if (m_selection)
        m_charts->showStretch(*m_selection);
}

void SessionView::goToStroke(int steps) {
    constexpr double SameStroke = 1e-6; // s: what is closer is the same moment
    const std::vector<StrokeFigures>& strokes = figures().strokes;
    const double here = m_replay.moment();
    const auto next =
        std::ranges::upper_bound(strokes, here + SameStroke, {}, &StrokeFigures::time);
    const auto before =
        std::ranges::lower_bound(strokes, here - SameStroke, {}, &StrokeFigures::time);
    if (steps > 0 && next != strokes.end())
        m_replay.setMoment(next->time);
    else if (steps < 0 && before != strokes.begin())
        m_replay.setMoment(std::prev(before)->time);
}

void SessionView::setFullScreen(bool isFull) {
    if (isFull == m_isFullScreen)
        return;
    m_isFullScreen = isFull;
    m_gauges->setLarge(isFull);
    m_tables->setVisible(!isFull);
    if (isFull)
        m_measuresBefore = m_charts->measures();
    else
        m_charts->setMeasures(m_measuresBefore);
    followPreferences();
}

void SessionView::followPreferences() {
    const Preferences& preferences = m_workspace.preferences();
    m_charts->setNormalized(preferences.boolean("normalizedBMvalues"));
    m_scatter->setVisible(m_isFullScreen && preferences.boolean("fullscreenBMScatter"));
    if (!m_isFullScreen)
        return;
    std::vector<SessionMeasure> measures;
    if (preferences.boolean("fullscreenBMRoll"))
        measures.push_back(SessionMeasure::Roll);
    if (preferences.boolean("fullscreenBMPitch"))
        measures.push_back(SessionMeasure::Pitch);
    if (preferences.boolean("fullscreenHR"))
        measures.push_back(SessionMeasure::HeartRate);
    m_charts->setMeasures(measures);
}

} // namespace kavela::desktop
