#include "desktop/losses/loss_rows.h"

#include "common/text.h"
#include "desktop/losses/loss_state.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "performance/loss_clips.h"
#include "performance/loss_counts.h"
#include "performance/loss_reasons.h"
#include "splitdata/annotation_labels.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace kavela::desktop {

namespace {

enum StretchColumn { SectionAt, KindAt, LostAt, PercentAt, TimeAt, ReferenceAt, FirstGateAt };
enum RunColumn {
    PlaceAt,
    CrewAt,
    PhaseAt,
    TickAt,
    TotalAt,
    GapAt,
    PaddlingAt,
    PenaltiesAt,
    TimingAt,
    ExpectedAt
};
enum GateColumn {
    GateAt,
    GateSectionAt,
    DirectionAt,
    StyleAt,
    GateLostAt,
    GateTimeAt,
    GateReferenceAt,
    EntranceAt,
    ExitAt
};
enum NoteColumn { FieldAt, WordsAt, CountAt, NoteLostAt, NoteGainedAt };
enum WayColumn { TitleAt, CostAt };

QString rowText(const char* text) {
    return QCoreApplication::translate("Losses", text);
}

Cell noCell() {
    return {.text = QStringLiteral("–")};
}

/// Hundredths as they add up on the screen.
Cell shownCell(std::int64_t hundredths) {
    return {.text = shownSigned(hundredths), .number = static_cast<double>(hundredths) / 100};
}

Cell signedCell(const std::optional<double>& seconds) {
    return seconds ? Cell{.text = shownSignedSeconds(*seconds), .number = seconds} : noCell();
}

Cell timeCell(const std::optional<double>& seconds) {
    return seconds ? Cell{.text = shownHundredths(*seconds), .number = seconds} : noCell();
}

Cell countCell(const std::optional<std::int64_t>& count) {
    return count ? Cell{.text = QString::number(*count), .number = static_cast<double>(*count)}
                 : noCell();
}

template <class Row>
Column<Row> words(const char* title, std::function<QString(const Row&)> text,
                  const char* tip = "") {
    return {.title = rowText(title), .tip = rowText(tip), .show = [text](const Row& row) {
                return Cell{.text = text(row)};
            }};
}

template <class Row>
Column<Row> numbers(const char* title, std::function<Cell(const Row&)> show, const char* tip = "") {
    return {.title = rowText(title),
            .tip = *tip ? rowText(tip) : QString(),
            .kind = ColumnKind::Number,
            .show = std::move(show)};
}

Column<StretchLine> gateColumn(std::size_t gate, std::size_t gates) {
    const QString title =
        gates == 1 ? rowText("Gate") : rowText("Gate %1 of the section").arg(gate + 1);
    return {.title = title,
            .tip = rowText("Lost in an upstream gate of the section"),
            .kind = ColumnKind::Number,
            .show = [gate](const StretchLine& line) {
                if (gate >= line.stretch.gates.size())
                    return Cell{};
                const GateLoss& loss = line.stretch.gates[gate];
                return Cell{
                    .text = rowText("%1:  %2").arg(loss.gate).arg(shownSignedSeconds(loss.loss)),
                    .number = loss.loss};
            }};
}

QString kindShown(StretchKind kind) {
    switch (kind) {
    case StretchKind::Upstream:
        return rowText("upstream");
    case StretchKind::Downstream:
        return rowText("downstream");
    case StretchKind::Mixed:
        return rowText("several sections");
    case StretchKind::Unknown:
        return rowText("not known");
    }
    return {};
}

QString fieldShown(const std::string& field) {
    struct Word {
        const char* field;
        const char* shown;
    };
    static constexpr std::array Words{Word{"combination", KAVELA_TEXT("Combination")},
                                      Word{"detail", "Part"},
                                      Word{"style", "Style"},
                                      Word{"water", "Water"},
                                      Word{"reason", "Reason"},
                                      Word{"versus", "Against"}};
    const auto found = std::ranges::find(Words, field, &Word::field);
    return found == Words.end() ? qtText(field) : rowText(found->shown);
}

/// What a run that nobody asked for by an id tells of one of its sums.
std::optional<Reason> told(const Why& why) {
    Reason reason = why.reason();
    return reason.rule ? std::optional(std::move(reason)) : std::nullopt;
}

/// The columns behind "Between": strokes, the reference's, penalty.
std::optional<Reason> whyCounted(const LossState& state, const Stretch& stretch,
                                 std::size_t column) {
    enum { OwnStrokes = 1, ReferenceStrokes, OwnPenalty };
    const auto& reference = state.losses().referenceRun;
    Why why;
    if (column == OwnStrokes)
        (void)stretchStrokes(state.facts(), state.run(), stretch.first, stretch.last, &why);
    else if (column == ReferenceStrokes && reference)
        (void)stretchStrokes(state.facts(), *reference, stretch.first, stretch.last, &why);
    else if (column == OwnPenalty)
        (void)stretchPenalties(state.facts(), state.run(), stretch.first, stretch.last, &why);
    return told(why);
}

} // namespace

std::size_t mostGates(const RunLosses& losses) {
    std::size_t most = 1;
    for (const Stretch& stretch : losses.stretches)
        most = std::max(most, stretch.gates.size());
    return most;
}

std::vector<StretchLine> stretchLines(const LossState& state) {
    std::vector<StretchLine> lines;
    const RunLosses& losses = state.losses();
    for (std::size_t i = 0; i < losses.stretches.size(); ++i) {
        const Stretch& stretch = losses.stretches[i];
        const auto span = filmSpanOf(state.facts(), losses.run, stretch.first, stretch.last);
        lines.push_back({stretch, losses.shown.stretches[i], span.has_value()});
    }
    return lines;
}

StretchModel::Columns stretchColumns(std::size_t gates) {
    using Line = StretchLine;
    StretchModel::Columns columns{
        numbers<Line>("Section",
                      [](const Line& line) {
                          return Cell{.text = (line.hasClip ? QStringLiteral("▶ ") : QString()) +
                                              stretchTitle(line.stretch),
                                      .number = static_cast<double>(line.stretch.first),
                                      .tip = line.hasClip
                                                 ? rowText(KAVELA_TEXT("Enter plays both films"))
                                                 : rowText(KAVELA_TEXT("No film is known here"))};
                      }),
        words<Line>(KAVELA_TEXT("Kind"),
                    [](const Line& line) { return kindShown(line.stretch.kind); }),
        numbers<Line>(
            "Lost", [](const Line& line) { return shownCell(line.shown); },
            KAVELA_TEXT(
                "Own time less the reference's; all of them add up to what is shown on top")),
        numbers<Line>(
            "Lost, %",
            [](const Line& line) {
                return Cell{.text = shownPercent(line.stretch.percent).remove(QStringLiteral(" %")),
                            .number = line.stretch.percent};
            }),
        numbers<Line>("Time", [](const Line& line) { return timeCell(line.stretch.time); }),
        numbers<Line>("Reference",
                      [](const Line& line) { return timeCell(line.stretch.reference); }),
    };
    for (std::size_t gate = 0; gate < gates; ++gate)
        columns.push_back(gateColumn(gate, gates));
    columns.push_back(numbers<Line>(
        KAVELA_TEXT("Between"), [](const Line& line) { return signedCell(line.stretch.between); },
        KAVELA_TEXT("Lost outside the upstream gates")));
    columns.push_back(
        numbers<Line>("Strokes", [](const Line& line) { return countCell(line.stretch.strokes); }));
    columns.push_back(numbers<Line>(KAVELA_TEXT("Reference's strokes"), [](const Line& line) {
        return countCell(line.stretch.referenceStrokes);
    }));
    columns.push_back(numbers<Line>(
        "Penalty",
        [](const Line& line) { return line.stretch.pen ? countCell(line.stretch.pen) : Cell{}; },
        KAVELA_TEXT("Own seconds of penalty in the section")));
    return columns;
}

std::optional<Reason> whyOf(const LossState& state, const StretchLine& line, int column,
                            std::size_t gates) {
    const std::size_t section = line.stretch.first;
    const auto gate = static_cast<std::size_t>(std::max(column - FirstGateAt, 0));
    if (column == LostAt || column == TimeAt || column == ReferenceAt)
        return state.why(LossNumber::Loss, section);
    if (column == PercentAt)
        return state.why(LossNumber::Percent, section);
    if (column < FirstGateAt)
        return std::nullopt;
    if (gate < gates)
        return gate < line.stretch.gates.size()
                   ? state.why(LossNumber::Gate,
                               static_cast<std::size_t>(line.stretch.gates[gate].gate))
                   : std::nullopt;
    if (gate == gates)
        return state.why(LossNumber::Between, section);
    return whyCounted(state, line.stretch, static_cast<std::size_t>(column - FirstGateAt) - gates);
}

std::vector<RunLine> runLines(const LossState& state) {
    std::vector<RunLine> lines;
    const FactStore& facts = state.facts();
    for (const RunLosses& losses : state.group()) {
        const RunRow& row = facts.runs()[losses.run];
        lines.push_back({losses, runTitle(facts, losses.run).section(QStringLiteral(", "), 0, 0),
                         factText(facts, row.phase), state.rankOf(losses.run),
                         row.isComplete ? std::optional(row.total) : std::nullopt,
                         state.losses().referenceRun == losses.run});
    }
    return lines;
}

RunModel::Columns runColumns(std::function<void(std::size_t run)> makeReference) {
    using Line = RunLine;
    const auto part = [](const char* title, std::int64_t ShownLosses::*number) {
        return numbers<Line>(title, [number](const Line& line) {
            return line.losses.sum ? shownCell(line.losses.shown.*number) : noCell();
        });
    };
    Column<Line> reference{
        .title = rowText("Reference"),
        .tip = rowText(KAVELA_TEXT("A tick makes the run what all are held against")),
        .show = [](const Line& line) { return Cell{.isTicked = line.isReference}; }};
    reference.tick = [makeReference](std::size_t, const Line& line, bool isTicked) {
        if (isTicked)
            makeReference(line.losses.run);
    };
    return {
        numbers<Line>("Place", [](const Line& line) { return countCell(line.rank); }),
        words<Line>("Run", [](const Line& line) { return line.crew; }),
        words<Line>("Phase", [](const Line& line) { return line.phase; }),
        std::move(reference),
        numbers<Line>("Total", [](const Line& line) { return timeCell(line.total); }),
        part("Gap", &ShownLosses::gap),
        part(KAVELA_TEXT("Paddling"), &ShownLosses::paddling),
        part("Penalties", &ShownLosses::penalties),
        part(KAVELA_TEXT("Timing"), &ShownLosses::timing),
        numbers<Line>(
            KAVELA_TEXT("On expected time"),
            [](const Line& line) { return signedCell(line.losses.xTimeDiff); },
            KAVELA_TEXT("Time without penalties less the expected time")),
    };
}

std::optional<Reason> whyOf(const LossState& state, const RunLine& line, int column) {
    Why why;
    if (column == PlaceAt)
        (void)placeInGroup(state.facts(), state.rivals().groupOf(line.losses.run), line.losses.run,
                           &why);
    else if (column == TotalAt)
        (void)lossTotal(state.facts(), line.losses.run, &why);
    if (column == PlaceAt || column == TotalAt)
        return told(why);
    const auto number = [&]() -> LossNumber {
        switch (column) {
        case GapAt:
            return LossNumber::Gap;
        case PaddlingAt:
            return LossNumber::Paddling;
        case PenaltiesAt:
            return LossNumber::Penalties;
        case TimingAt:
            return LossNumber::Timing;
        case ExpectedAt:
            return LossNumber::ExpectedTime;
        default:
            return LossNumber::None;
        }
    }();
    return number == LossNumber::None ? std::nullopt : state.why(line.losses.run, number);
}

std::vector<GateLine> gateLines(const LossState& state) {
    std::vector<GateLine> lines;
    const auto add = [&](const GateLoss& gate, const QString& section) {
        lines.push_back({gate, section,
                         qtText(labelOf(LabelList::UpstreamDirection, gate.direction)),
                         qtText(labelOf(LabelList::UpstreamStyle, gate.style))});
    };
    for (const Stretch& stretch : state.losses().stretches)
        for (const GateLoss& gate : stretch.gates)
            add(gate, stretchTitle(stretch));
    for (const GateLoss& gate : state.losses().gatesElsewhere)
        add(gate, QStringLiteral("–"));
    std::ranges::stable_sort(lines, {}, [](const GateLine& line) { return line.gate.gate; });
    return lines;
}

GateModel::Columns gateColumns() {
    using Line = GateLine;
    return {
        numbers<Line>("Gate", [](const Line& line) { return countCell(line.gate.gate); }),
        words<Line>("Section", [](const Line& line) { return line.section; }),
        words<Line>("Direction", [](const Line& line) { return line.direction; }),
        words<Line>("Style", [](const Line& line) { return line.style; }),
        numbers<Line>("Lost", [](const Line& line) { return signedCell(line.gate.loss); }),
        numbers<Line>("Time", [](const Line& line) { return timeCell(line.gate.time); }),
        numbers<Line>("Reference", [](const Line& line) { return timeCell(line.gate.reference); }),
        numbers<Line>(
            "Entrance", [](const Line& line) { return signedCell(line.gate.entrance); },
            KAVELA_TEXT("Lost up to the pole line")),
        numbers<Line>(
            "Exit", [](const Line& line) { return signedCell(line.gate.exit); },
            KAVELA_TEXT("Lost from the pole line on")),
    };
}

std::optional<Reason> whyOf(const LossState& state, const GateLine& line, int column) {
    const auto gate = static_cast<std::size_t>(line.gate.gate);
    switch (column) {
    case GateLostAt:
    case GateTimeAt:
    case GateReferenceAt:
        return state.why(LossNumber::Gate, gate);
    case EntranceAt:
        return state.why(LossNumber::Entrance, gate);
    case ExitAt:
        return state.why(LossNumber::Exit, gate);
    default:
        return std::nullopt;
    }
}

std::vector<NoteLine> noteLines(const LossState& state) {
    std::vector<NoteLine> lines;
    if (!state.hasRun())
        return lines;
    const std::array run{state.run()};
    for (LossNoteRow& note : lossNotesOf(state.facts(), run).rows)
        lines.push_back({std::move(note)});
    return lines;
}

NoteModel::Columns noteColumns() {
    using Line = NoteLine;
    return {
        words<Line>("By", [](const Line& line) { return fieldShown(line.note.field); }),
        words<Line>(KAVELA_TEXT("Noted"),
                    [](const Line& line) {
                        return line.note.text.empty() ? rowText(KAVELA_TEXT("not noted"))
                                                      : qtText(line.note.text).simplified();
                    }),
        numbers<Line>(
            "Notes",
            [](const Line& line) { return countCell(static_cast<std::int64_t>(line.note.count)); }),
        numbers<Line>("Lost", [](const Line& line) { return signedCell(line.note.lost); }),
        numbers<Line>("Gained", [](const Line& line) { return signedCell(line.note.gained); }),
    };
}

/// Of this run alone, while an id means all runs.
std::optional<Reason> whyOf(const LossState& state, const NoteLine& line, int column) {
    if (column < CountAt)
        return std::nullopt;
    const LossNoteNumber number = column == CountAt        ? LossNoteNumber::Count
                                  : column == NoteGainedAt ? LossNoteNumber::Gained
                                                           : LossNoteNumber::Lost;
    const std::array run{state.run()};
    Why why;
    (void)lossNotesOf(state.facts(), run, {line.note.field, line.note.key, number}, &why);
    return told(why);
}

std::vector<WayLine> wayLines(const LossState& state) {
    std::vector<WayLine> lines;
    if (!state.hasRun())
        return lines;
    const std::array run{state.run()};
    for (WayCost& way : wayCostsOf(state.facts(), run))
        lines.push_back({std::move(way)});
    return lines;
}

WayModel::Columns wayColumns() {
    using Line = WayLine;
    return {
        words<Line>("Way", [](const Line& line) { return qtText(line.way.title).simplified(); }),
        numbers<Line>(
            KAVELA_TEXT("Cost"), [](const Line& line) { return signedCell(line.way.cost); },
            KAVELA_TEXT("Seconds of the chosen way over the fastest one timed")),
    };
}

std::optional<Reason> whyOf(const LossState& state, const WayLine& line, int column) {
    return column == CostAt ? explainLoss(state.facts(), state.reference(),
                                          wayCostId(line.way.run, line.way.entry))
                            : std::nullopt;
}

} // namespace kavela::desktop
