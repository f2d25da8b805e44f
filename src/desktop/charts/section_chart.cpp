#include "desktop/charts/section_chart.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_markers.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QAction>
#include <QActionGroup>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kavela::desktop {

namespace {

constexpr double BoxWidth = 0.46; ///< of a section
constexpr double StripWidth = 0.5;
constexpr double SectionHeadroom = 0.06;
constexpr double LeastSectionSpan = 0.5; ///< seconds
constexpr double SectionDotSize = 5;
constexpr double SelectedSectionDotSize = 9;
constexpr double SectionDotReach = 8; ///< pixels from the cursor to a dot

/// Where the n-th dot of a strip stands between -0.5 and 0.5: the van der Corput sequence, which
/// keeps neighbours apart and always looks the same.
double scatter(std::size_t n) {
    double place = 0;
    double share = 0.5;
    for (std::size_t rest = n + 1; rest > 0; rest /= 2, share /= 2)
        place += share * static_cast<double>(rest % 2);
    return place - 0.5;
}

double middle(std::size_t section) {
    return static_cast<double>(section) + 0.5;
}

bool isOutlier(const SectionDistribution& section, double time) {
    return time < section.lowerWhisker || time > section.upperWhisker;
}

} // namespace

SectionChart::SectionChart(QWidget* parent) : Chart(parent), m_ticker(showSections(canvas())) {
    canvas().yAxis->setRangeReversed(true);
    makeOptions();
}

void SectionChart::makeOptions() {
    const auto addChoice = [this](QActionGroup& group, const QString& text, const QString& tip,
                                  auto choose, bool isChosen) {
        QAction* action = group.addAction(text);
        action->setCheckable(true);
        action->setChecked(isChosen);
        action->setToolTip(tip);
        connect(action, &QAction::triggered, this, choose);
        m_options << action;
    };
    auto& forms = *new QActionGroup(this);
    addChoice(
        forms, tr("Box"), tr("Quartiles, and the runs far from them"),
        [this] { setForm(Form::Box); }, true);
    addChoice(
        forms, tr("Strip"), tr("A dot for every run"), [this] { setForm(Form::Strip); }, false);
    auto* separator = new QAction(this);
    separator->setSeparator(true);
    m_options << separator;
    auto& scales = *new QActionGroup(this);
    addChoice(
        scales, tr("Behind best"), tr("Seconds behind the best of the section"),
        [this] { setScale(Scale::BehindBest); }, true);
    addChoice(
        scales, tr("Time"), tr("Seconds in the section"), [this] { setScale(Scale::Time); }, false);
}

QList<QAction*> SectionChart::options() const {
    return m_options;
}

void SectionChart::setForm(Form form) {
    m_form = form;
    m_options[form == Form::Box ? 0 : 1]->setChecked(true);
    invalidate();
}

void SectionChart::setScale(Scale scale) {
    m_scale = scale;
    m_options[scale == Scale::BehindBest ? 3 : 4]->setChecked(true);
    fit();
    invalidate();
}

QString SectionChart::emptyReason() const {
    if (race().size() == 0)
        return noRunsReason();
    if (timedSections(race().set()) == 0)
        return tr("No section has been timed yet.");
    return {};
}

double SectionChart::height(std::size_t section, double time) const {
    return m_scale == Scale::Time ? time : time - m_sections[section].minimum;
}

void SectionChart::fill() {
    m_sections = sectionDistributions(race().set(), penaltiesIncluded());
    m_dots.clear();
    const QString what = m_scale == Scale::Time ? tr("Seconds in each section")
                                                : tr("Seconds behind the best of each section");
    canvas().setCaptions(tr("Times of %1 by section").arg(runsText(race().size())),
                         what + (penaltiesIncluded() ? tr(", penalties included") : QString()) +
                             leftOutNote());
    canvas().xAxis->grid()->setPen(Qt::NoPen);
    canvas().xAxis->grid()->setSubGridPen(Qt::NoPen);
    canvas().yAxis->setLabel(tr("\u2190 slower      faster \u2192"));
    QStringList titles;
    for (std::size_t i = 0; i < m_sections.size(); ++i)
        titles << race().sectionTitle(i);
    m_ticker->setTitles(titles);

    if (m_form == Form::Box)
        addBoxes();
    else
        addStrips();
    addSelectedRuns();
    setLimits();
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

void SectionChart::addBoxes() {
    auto* boxes = new QCPStatisticalBox(canvas().xAxis, canvas().yAxis);
    const QColor line = theme::quietText(palette());
    boxes->setWidth(BoxWidth);
    boxes->setWhiskerWidth(BoxWidth / 2);
    boxes->setPen(QPen(line, 1));
    boxes->setWhiskerPen(QPen(line, 1));
    boxes->setWhiskerBarPen(QPen(line, 1));
    boxes->setMedianPen(QPen(palette().color(QPalette::WindowText), 2, Qt::SolidLine, Qt::FlatCap));
    boxes->setBrush(gridColour(palette()));
    std::vector<Dot> outliers;
    for (std::size_t i = 0; i < m_sections.size(); ++i) {
        const SectionDistribution& section = m_sections[i];
        if (section.values.empty())
            continue;
        boxes->addData(middle(i), height(i, section.lowerWhisker), height(i, section.lowerQuartile),
                       height(i, section.median), height(i, section.upperQuartile),
                       height(i, section.upperWhisker));
        for (const SectionValue& value : section.values)
            if (isOutlier(section, value.time) && !isSelected(value.run))
                outliers.push_back({{middle(i), height(i, value.time)}, i, value.run});
    }
    addDots(outliers, {QCPScatterStyle::ssCircle, QPen(line), QBrush(Qt::NoBrush), SectionDotSize});
}

void SectionChart::addStrips() {
    std::vector<Dot> dots;
    for (std::size_t i = 0; i < m_sections.size(); ++i)
        for (std::size_t n = 0; n < m_sections[i].values.size(); ++n) {
            const SectionValue& value = m_sections[i].values[n];
            if (!isSelected(value.run))
                dots.push_back(
                    {{middle(i) + StripWidth * scatter(n), height(i, value.time)}, i, value.run});
        }
    addDots(dots, backgroundDot(palette(), SectionDotSize));
    addMedians();
}

void SectionChart::addMedians() {
    constexpr double Half = StripWidth / 2 + 0.05;
    QCPGraph* medians = canvas().addGraph();
    medians->setPen(QPen(palette().color(QPalette::WindowText), 2, Qt::SolidLine, Qt::FlatCap));
    for (std::size_t i = 0; i < m_sections.size(); ++i) {
        if (m_sections[i].values.empty())
            continue;
        const double median = height(i, m_sections[i].median);
        medians->addData(middle(i) - Half, median);
        medians->addData(middle(i) + Half, median);
        // No number: the line is interrupted.
        medians->addData(static_cast<double>(i + 1), std::numeric_limits<double>::quiet_NaN());
    }
}

void SectionChart::addDots(const std::vector<Dot>& dots, const QCPScatterStyle& style) {
    QCPGraph* graph = canvas().addGraph();
    graph->setLineStyle(QCPGraph::lsNone);
    graph->setScatterStyle(style);
    QVector<QCPGraphData> points;
    for (const Dot& dot : dots)
        points.append({dot.place.x(), dot.place.y()});
    graph->data()->set(points);
    m_dots.insert(m_dots.end(), dots.begin(), dots.end());
}

void SectionChart::addSelectedRuns() {
    std::vector<SeriesLabel> labels;
    for (const SelectedRun& selected : selectedRuns()) {
        SeriesLabel label = labelOf(selected);
        std::vector<Dot> dots;
        for (std::size_t i = 0; i < m_sections.size(); ++i) {
            const double time = comparedTime(race().run(selected.run), i, penaltiesIncluded());
            if (time != 0)
                dots.push_back({{middle(i), height(i, time)}, i, selected.run});
        }
        if (!dots.empty())
            label.end = dots.back().place;
        labels.push_back(label);
        if (label.isHidden)
            continue;
        addDots(dots, markerOf(selected.style, SelectedSectionDotSize));
        QCPGraph& graph = *canvas().graph();
        graph.setName(label.name);
        graph.setLineStyle(QCPGraph::lsLine);
        QColor faint = selected.style.colour;
        faint.setAlphaF(0.55F);
        graph.setPen(QPen(faint, 1.2, selected.style.line));
    }
    seriesLabels().setLabels(std::move(labels));
}

void SectionChart::setLimits() {
    double fastest = std::numeric_limits<double>::max();
    double slowest = std::numeric_limits<double>::lowest();
    for (std::size_t i = 0; i < m_sections.size(); ++i) {
        if (m_sections[i].values.empty())
            continue;
        fastest = std::min(fastest, height(i, m_sections[i].minimum));
        slowest = std::max(slowest, height(i, m_sections[i].maximum));
    }
    const double span = std::max(slowest - fastest, LeastSectionSpan);
    canvas().setLimits({0, static_cast<double>(m_sections.size())},
                       {fastest - span * SectionHeadroom, fastest + span * (1 + SectionHeadroom)});
}

const SectionChart::Dot* SectionChart::dotAt(const QPointF& position) const {
    const Dot* nearest = nullptr;
    double least = SectionDotReach;
    // The selected runs lie on top, and stand last in the list.
    for (const Dot& dot : m_dots) {
        const QPointF place = canvas().toPixel(dot.place.x(), dot.place.y());
        const double distance = QLineF(place, position).length();
        if (distance <= least) {
            least = distance;
            nearest = &dot;
        }
    }
    return nearest;
}

QString SectionChart::readOutOf(std::size_t section) const {
    const SectionDistribution& s = m_sections[section];
    const QString title = race().sectionTitle(section);
    if (s.values.empty())
        return readOutText(title, {readOutRow({tr("Not timed")})});
    const auto row = [](const QString& name, double time) {
        return readOutRow({name, shownHundredths(time)});
    };
    return readOutText(
        title, {readOutRow({race().label(s.values.front().run), shownHundredths(s.minimum)}),
                row(tr("Quarter of the runs under"), s.lowerQuartile), row(tr("Median"), s.median),
                row(tr("Quarter of the runs over"), s.upperQuartile), row(tr("Slowest"), s.maximum),
                readOutRow({tr("Runs"), QString::number(s.values.size())})});
}

QString SectionChart::readOutOf(std::size_t section, std::size_t run) const {
    const SectionDistribution& s = m_sections[section];
    const double time = comparedTime(race().run(run), section, penaltiesIncluded());
    const auto faster = std::ranges::count_if(
        s.values, [&](const SectionValue& value) { return value.time < time; });
    return readOutText(
        race().label(run),
        {readOutRow({race().sectionTitle(section), shownHundredths(time)}),
         readOutRow({tr("Behind the best"), shownHundredths(time - s.minimum)}),
         readOutRow({tr("Place"), tr("%1 of %2").arg(faster + 1).arg(s.values.size())})});
}

void SectionChart::hoverAt(const QPointF& position) {
    if (const Dot* dot = dotAt(position)) {
        readOut().showAt(position, readOutOf(dot->section, dot->run));
        return;
    }
    const double x = canvas().xAxis->pixelToCoord(position.x());
    const auto sections = static_cast<double>(m_sections.size());
    const bool isOverSection = canvas().axisRect()->rect().contains(position.toPoint()) && x >= 0 &&
                               x < sections && std::abs(x - std::floor(x) - 0.5) <= StripWidth / 2;
    if (isOverSection)
        readOut().showAt(position, readOutOf(static_cast<std::size_t>(x)));
    else
        leaveCursor();
}

std::vector<QPointF> SectionChart::stops() const {
    const QCPRange heights = canvas().yAxis->range();
    std::vector<QPointF> stops;
    for (std::size_t i = 0; i < m_sections.size(); ++i) // below the dots: the section is meant
        stops.emplace_back(static_cast<double>(i) + 0.5, heights.upper - heights.size() / 50);
    return stops;
}

void SectionChart::clickAt(const QPointF& position) {
    if (const Dot* dot = dotAt(position))
        emit runActivated(dot->run);
}

QString SectionChart::csvOfSection(std::size_t section) const {
    const SectionDistribution& s = m_sections[section];
    QStringList fields{QString::number(section + 1), race().sectionTitle(section),
                       QString::number(s.values.size())};
    for (const double figure : {s.minimum, s.lowerQuartile, s.median, s.upperQuartile, s.maximum})
        fields << (s.values.empty() ? QString() : csvNumber(figure));
    for (const SelectedRun& selected : selectedRuns()) {
        const double time = comparedTime(race().run(selected.run), section, penaltiesIncluded());
        if (isShown(seriesId(selected.run)))
            fields << (time == 0 ? QString() : csvNumber(time));
    }
    return csvLine(fields);
}

QString SectionChart::csvText() const {
    QStringList header{tr("Section"),        tr("Title"),  tr("Runs"),           tr("Fastest"),
                       tr("Lower quartile"), tr("Median"), tr("Upper quartile"), tr("Slowest")};
    for (const SelectedRun& selected : selectedRuns())
        if (isShown(seriesId(selected.run)))
            header << race().label(selected.run);
    QString text = csvLine(header);
    const QCPRange shown = canvas().xAxis->range();
    for (std::size_t i = 0; i < m_sections.size(); ++i)
        if (static_cast<double>(i) < shown.upper && static_cast<double>(i + 1) > shown.lower)
            text += csvOfSection(i);
    return text;
}

} // namespace kavela::desktop
