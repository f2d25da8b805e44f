#include "desktop/motion/cursor_table.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/sensor_series.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QEvent>
#include <QHeaderView>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

const QString Nothing = QStringLiteral("–");

const Stroke* strokeAt(const MotionAnalysis& analysis, double stamp, std::size_t& index) {
    const auto after = std::ranges::upper_bound(analysis.strokes, stamp, {}, &Stroke::catchTime);
    if (after == analysis.strokes.begin())
        return nullptr;
    const Stroke& stroke = *std::prev(after);
    index = static_cast<std::size_t>(after - analysis.strokes.begin()) - 1;
    return stamp <= stroke.catchTime + stroke.cycle ? &stroke : nullptr;
}

const Turn* turnAt(const MotionAnalysis& analysis, double stamp) {
    const auto found = std::ranges::find_if(
        analysis.turns, [&](const Turn& turn) { return stamp >= turn.start && stamp <= turn.end; });
    return found == analysis.turns.end() ? nullptr : &*found;
}

QString sideText(std::int64_t hand) {
    if (hand == LeftHand)
        return CursorTable::tr("left");
    return hand == RightHand ? CursorTable::tr("right") : CursorTable::tr("side unknown");
}

using Text = std::function<QString(const MotionRecording& recording, double time)>;

/// What the stroke at a moment says; nothing between strokes.
template <class Says>
Text ofStroke(Says says) {
    return [says](const MotionRecording& recording, double time) {
        std::size_t index = 0;
        const MotionAnalysis* const analysis = recording.analysis.get();
        const Stroke* const stroke =
            analysis ? strokeAt(*analysis, time + recording.facts.first, index) : nullptr;
        return stroke ? says(*analysis, *stroke, index) : Nothing;
    };
}

QString sideAndRate(const MotionAnalysis& analysis, const Stroke& stroke, std::size_t index) {
    return CursorTable::tr("%1, %2").arg(sideText(stroke.values.hand),
                                         QString::number(qRound(analysis.strokeRates[index])));
}

/// A value that needs the force.
Text ofForce(double smartStraight_v3::*value) {
    return ofStroke([value](const MotionAnalysis& analysis, const Stroke& stroke, std::size_t) {
        return analysis.hasForce() ? QString::number(qRound(stroke.values.*value)) : Nothing;
    });
}

QString turnText(const MotionRecording& recording, double time) {
    const Turn* const turn =
        recording.analysis ? turnAt(*recording.analysis, time + recording.facts.first) : nullptr;
    if (!turn)
        return Nothing;
    return CursorTable::tr("%1 %2°, %3 s")
        .arg(turn->angle > 0 ? CursorTable::tr("left") : CursorTable::tr("right"))
        .arg(qRound(std::abs(turn->angle) * DegreesPerRadian))
        .arg(shownNumber(turn->values.rotationTime, 1));
}

QString curveText(const Curve& curve, double time) {
    if (curve.isEmpty())
        return Nothing;
    const auto value =
        valueAt({.name = {}, .unit = {}, .times = curve.times, .values = curve.values}, time);
    return value ? sensorText(*value) : Nothing;
}

std::vector<CursorRow> rowsOf(const std::vector<CurveKind>& kinds) {
    std::vector<CursorRow> rows;
    rows.push_back({CursorTable::tr("Time"),
                    [](const MotionRecording&, double time) { return momentText(time); }});
    for (const CurveKind kind : kinds)
        rows.push_back({QStringLiteral("%1 (%2)").arg(shortTitleOf(kind), unitOf(kind)),
                        [kind](const MotionRecording& recording, double time) {
                            return curveText(recording.curve(kind), time);
                        }});
    rows.push_back({CursorTable::tr("Stroke, rate"), ofStroke(sideAndRate)});
    rows.push_back({CursorTable::tr("Force (N)"), ofForce(&smartStraight_v3::force)});
    rows.push_back({CursorTable::tr("Power (W)"), ofForce(&smartStraight_v3::power)});
    rows.push_back({CursorTable::tr("Turn"), turnText});
    return rows;
}

} // namespace

CursorTable::CursorTable(QWidget* parent)
    : CursorTable(new Values({}, [](const CursorRow& row) { return row.title; }), parent) {}

CursorTable::CursorTable(Values* values, QWidget* parent)
    : ColumnTable(*values, "", parent), m_values(values) {
    values->setParent(this);
    values->setRowTitles([values](int place) {
        return place < 0 ? QString() : values->row(place).title; // one is just leaving
    });
    setAccessibleName(tr("Values at the cursor"));
    setSelectionBehavior(SelectItems);
    setSelectionMode(ContiguousSelection);
    setSortingEnabled(false);
    QHeaderView* const titles = horizontalHeader();
    titles->setSectionsMovable(false);
    titles->setSectionResizeMode(QHeaderView::Stretch);
    titles->setTextElideMode(Qt::ElideMiddle); // names differ at their ends
    verticalHeader()->show();
    verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setHighlightSections(false);
    setFont(theme::captionFont(*this));
    const int height = fontMetrics().height() + theme::SmallSpacing;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

/// A column that was hidden would else hide another recording.
void CursorTable::setContent(std::vector<std::shared_ptr<MotionRecording>> recordings,
                             const std::vector<CurveKind>& kinds) {
    const bool isOther = std::exchange(m_recordings, std::move(recordings)) != m_recordings;
    showColumns();
    for (int column = 0; isOther && column < m_values->columnCount(); ++column)
        showColumn(column);
    m_values->show(m_recordings.empty() ? std::vector<CursorRow>() : rowsOf(kinds));
}

void CursorTable::showColumns() {
    Values::Columns columns;
    for (const auto& recording : m_recordings)
        columns.push_back({.title = recording->label,
                           .tip = recording->label,
                           .colour = seriesStyle(recording->slot, palette()).colour,
                           .kind = ColumnKind::Number,
                           .show = [this, recording](const CursorRow& row) {
                               return Cell{m_time ? row.text(*recording, *m_time - recording->shift)
                                                  : QString()};
                           }});
    m_values->setColumns(std::move(columns));
}

void CursorTable::showAt(std::optional<double> time) {
    m_time = time;
    m_values->refresh();
}

void CursorTable::changeEvent(QEvent* event) {
    ColumnTable::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showColumns();
}

} // namespace kavela::desktop
