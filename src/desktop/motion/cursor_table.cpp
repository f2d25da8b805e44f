#include "desktop/motion/cursor_table.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/sensor_series.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QHeaderView>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

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

QString strokeText(const MotionAnalysis& analysis, double stamp, int row) {
    std::size_t index = 0;
    const Stroke* const stroke = strokeAt(analysis, stamp, index);
    if (!stroke)
        return QStringLiteral("–");
    switch (row) {
    case 0:
        return CursorTable::tr("%1, %2").arg(sideText(stroke->values.hand),
                                             QString::number(qRound(analysis.strokeRates[index])));
    case 1:
        return analysis.hasForce() ? QString::number(qRound(stroke->values.force))
                                   : QStringLiteral("–");
    default:
        return analysis.hasForce() ? QString::number(qRound(stroke->values.power))
                                   : QStringLiteral("–");
    }
}

QString turnText(const MotionAnalysis& analysis, double stamp) {
    const Turn* const turn = turnAt(analysis, stamp);
    if (!turn)
        return QStringLiteral("–");
    return CursorTable::tr("%1 %2°, %3 s")
        .arg(turn->angle > 0 ? CursorTable::tr("left") : CursorTable::tr("right"))
        .arg(qRound(std::abs(turn->angle) * DegreesPerRadian))
        .arg(shownNumber(turn->values.rotationTime, 1));
}

constexpr int StrokeRows = 3;
constexpr int EventRows = StrokeRows + 1;

} // namespace

CursorTable::CursorTable(QWidget* parent) : QTableWidget(parent) {
    setAccessibleName(tr("Values at the cursor"));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setShowGrid(false);
    setAlternatingRowColors(true);
    verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setTextElideMode(Qt::ElideMiddle); // names differ at their ends
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setHighlightSections(false);
    setFont(theme::captionFont(*this));
    const int height = fontMetrics().height() + theme::SmallSpacing;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

void CursorTable::setContent(std::vector<std::shared_ptr<MotionRecording>> recordings,
                             std::vector<CurveKind> kinds) {
    m_recordings = std::move(recordings);
    m_kinds = std::move(kinds);
    layOut();
    showAt(m_time);
}

void CursorTable::layOut() {
    setColumnCount(static_cast<int>(m_recordings.size()));
    setRowCount(m_recordings.empty() ? 0 : static_cast<int>(m_kinds.size()) + EventRows + 1);
    QStringList rows{tr("Time")};
    for (const CurveKind kind : m_kinds)
        rows << QStringLiteral("%1 (%2)").arg(shortTitleOf(kind), unitOf(kind));
    rows << tr("Stroke, rate") << tr("Force (N)") << tr("Power (W)") << tr("Turn");
    setVerticalHeaderLabels(rows);
    for (int column = 0; column < columnCount(); ++column) {
        const MotionRecording& recording = *m_recordings[static_cast<std::size_t>(column)];
        auto* head = new QTableWidgetItem(recording.label);
        head->setForeground(seriesStyle(recording.slot, palette()).colour);
        head->setToolTip(recording.label);
        setHorizontalHeaderItem(column, head);
        for (int row = 0; row < rowCount(); ++row) {
            auto* cell = new QTableWidgetItem;
            cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            setItem(row, column, cell);
        }
    }
}

QString CursorTable::textAt(int row, const MotionRecording& recording, double time) const {
    const double own = time - recording.shift;
    if (row == 0)
        return momentText(own);
    const auto kind = static_cast<std::size_t>(row) - 1;
    if (kind < m_kinds.size()) {
        const Curve& curve = recording.curve(m_kinds[kind]);
        if (curve.isEmpty())
            return QStringLiteral("–");
        const auto value =
            valueAt({.name = {}, .unit = {}, .times = curve.times, .values = curve.values}, own);
        return value ? sensorText(*value) : QStringLiteral("–");
    }
    if (!recording.analysis)
        return QStringLiteral("–");
    const int event = row - 1 - static_cast<int>(m_kinds.size());
    const double stamp = own + recording.facts.first;
    return event < StrokeRows ? strokeText(*recording.analysis, stamp, event)
                              : turnText(*recording.analysis, stamp);
}

void CursorTable::showAt(std::optional<double> time) {
    m_time = time;
    for (int column = 0; column < columnCount(); ++column)
        for (int row = 0; row < rowCount(); ++row)
            item(row, column)
                ->setText(time ? textAt(row, *m_recordings[static_cast<std::size_t>(column)], *time)
                               : QString());
}

void CursorTable::changeEvent(QEvent* event) {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        layOut();
        showAt(m_time);
    }
}

} // namespace kavela::desktop
