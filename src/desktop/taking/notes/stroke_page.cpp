#include "desktop/taking/notes/stroke_page.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/code_combo.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/refusals.h"

#include <QFormLayout>
#include <QLabel>

namespace kavela::desktop {

namespace {

QString rateText(const std::optional<double>& perMinute) {
    return perMinute ? shownNumber(*perMinute, 1) : QStringLiteral("–");
}

/// The hand of the stroke after the last one before a moment: left begins.
HandCode otherHand(const athletedata031& run, const CMTime& moment) {
    HandCode next = HandCode::Left;
    for (const strokessdata025& stroke : run.strokes)
        if (!stroke.cmtimes.empty() && orderOf(stroke.cmtimes.front(), moment) < 0)
            next = stroke.hand == static_cast<std::int64_t>(HandCode::Left) ? HandCode::Right
                                                                            : HandCode::Left;
    return next;
}

Column<StrokeRow> strokeColumn(const QString& title, std::size_t SectionStrokes::*count) {
    return {.title = title, .kind = ColumnKind::Number, .show = [count](const StrokeRow& row) {
                return Cell{.text = QString::number(row.strokes.*count),
                            .number = static_cast<double>(row.strokes.*count)};
            }};
}

std::vector<Column<StrokeRow>> strokeColumns() {
    return {textColumn<StrokeRow>(StrokePage::tr("Section"), &StrokeRow::section),
            strokeColumn(StrokePage::tr("Left"), &SectionStrokes::left),
            strokeColumn(StrokePage::tr("Right"), &SectionStrokes::right),
            numberColumn<StrokeRow>(
                StrokePage::tr("Strokes/min"),
                [](const StrokeRow& row) { return row.strokes.perMinute; },
                [](double rate) { return shownNumber(rate, 1); })};
}

} // namespace

StrokePage::StrokePage(NoteDesk& desk)
    : NotePage(desk),
      m_rate(new QLabel),
      m_style(new CodeCombo(LabelList::StrokeStyle)),
      m_sections(strokeColumns(), RowsKnownBy::Number) {
    m_rate->setObjectName("strokeRate");
    m_style->setObjectName("strokeStyle");
    auto* hint = new QLabel(tr("A marks a stroke on the left, D on the right, M with the other "
                               "hand than before."));
    hint->setWordWrap(true);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    form->addRow(hint);
    form->addRow(tr("Rate now"), m_rate);
    form->addRow(tr("Style"), m_style);
    form->addRow(filmTable(m_sections, "strokeSections"));
    connect(m_style, &CodeCombo::codeChosen, this, &StrokePage::changeStyle);
}

void StrokePage::refresh() {
    std::vector<StrokeRow> rows;
    const athletedata031* const run = m_desk.record();
    if (!run || (m_chosen && *m_chosen >= run->strokes.size()))
        m_chosen.reset();
    if (run) {
        const auto& titles = m_desk.document.info().splitTitles;
        const auto sections = strokesBySection(*run);
        for (std::size_t i = 0; i < sections.size(); ++i) {
            const auto title = QString::fromStdString(entryOrZero(titles, i));
            rows.push_back({title.isEmpty() ? 'S' + QString::number(i + 1) : title, sections[i]});
        }
    }
    m_sections.show(std::move(rows));
    showFrame();
}

void StrokePage::showFrame() {
    const athletedata031* const run = m_desk.record();
    const auto moment = m_desk.moment();
    const auto rate = run && moment ? strokeRateAt(run->strokes, *moment) : std::nullopt;
    m_rate->setText(tr("%1 per minute, %2 strokes")
                        .arg(rateText(rate))
                        .arg(run ? run->strokes.size() : std::size_t{0}));
}

void StrokePage::mark(const Stamps& stamps) {
    markHand(stamps, otherHand(*m_desk.record(), stamps.front()));
}

void StrokePage::markHand(const Stamps& stamps, HandCode hand) {
    const bool isLeft = hand == HandCode::Left;
    if (refuses(refusalOfStroke(*m_desk.record(), stamps.front(), hand)))
        return;
    edit(isLeft ? tr("left stroke") : tr("right stroke"),
         [&](athletedata031& run) { (void)addStroke(run, stamps, hand, m_style->code()); });
    emit marked(MarkKind::Stroke, stamps.front());
    emit flashed(isLeft ? tr("Left") : tr("Right"));
}

void StrokePage::choose(const LaneMark& mark) {
    m_chosen = mark.handle.record;
    m_style->setCode(m_desk.record()->strokes.at(*m_chosen).style);
}

void StrokePage::swapChosen() {
    if (m_chosen)
        edit(tr("other hand"), [&](athletedata031& run) { swapHand(run, *m_chosen); });
}

/// The style is that of the chosen stroke, and of those that are marked next.
void StrokePage::changeStyle(std::int64_t style) {
    if (m_chosen)
        edit(tr("style of the stroke"),
             [&](athletedata031& run) { run.strokes.at(*m_chosen).style = style; });
}

} // namespace kavela::desktop
