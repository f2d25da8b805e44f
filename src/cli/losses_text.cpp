#include "cli/losses_text.h"

#include "analysis/cell_text.h"
#include "common/display_text.h"
#include "common/number_text.h"
#include "common/text.h"
#include "performance/loss_charts.h"
#include "performance/loss_ways.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

namespace kavela::cli {

namespace {

constexpr std::string_view LossBold = "\x1b[1m";
constexpr std::string_view LossDim = "\x1b[2m";
constexpr std::string_view LossRed = "\x1b[31m";
constexpr std::string_view LossGreen = "\x1b[32m";
constexpr std::string_view LossPlain = "\x1b[0m";
constexpr std::string_view Bar = " | ";
constexpr std::string_view LossMargin = "  ";

std::string shownText(std::string_view text) {
    return printable(validUtf8(text));
}

std::string referenceHeading(const LossReference& reference) {
    switch (reference.kind) {
    case LossReferenceKind::Winner:
        return say("on the winner");
    case LossReferenceKind::Fastest:
        return say("on the fastest");
    case LossReferenceKind::Ideal:
        return say("on the ideal run");
    case LossReferenceKind::Median:
        return say("on the finalists' median");
    case LossReferenceKind::Own:
        return say("on the own fastest other run");
    case LossReferenceKind::Run:
        return say("on run {}", reference.run);
    }
    return {};
}

/// Writes the runs of a file one below the other.
class LossWriter {
public:
    LossWriter(const FactStore& facts, const Terminal& terminal)
        : m_facts(facts), m_terminal(terminal) {}

    void add(std::span<const RunLosses> runs) {
        const RunLosses* before = nullptr;
        for (const RunLosses& losses : runs) {
            if (!before || !isSameHeading(*before, losses))
                addHeading(losses);
            before = &losses;
            addRun(losses);
        }
    }

    void addLine(const std::string& text) { m_text += text + '\n'; }

    [[nodiscard]] std::string take() { return std::move(m_text); }

private:
    [[nodiscard]] const RunRow& row(std::size_t run) const { return m_facts.runs()[run]; }

    [[nodiscard]] bool isSameHeading(const RunLosses& a, const RunLosses& b) const {
        const bool isOwn = a.reference.kind == LossReferenceKind::Own;
        return row(a.run).categoryKey == row(b.run).categoryKey &&
               row(a.run).phaseKey == row(b.run).phaseKey &&
               (isOwn || a.referenceRun == b.referenceRun) &&
               (isOwn || a.hasReference == b.hasReference);
    }

    void addHeading(const RunLosses& losses) {
        const RunRow& run = row(losses.run);
        std::string heading = shownText(m_facts.text(run.category));
        if (run.phase != 0)
            heading += (heading.empty() ? "" : " · ") + shownText(m_facts.text(run.phase));
        heading += (heading.empty() ? "" : " · ") + referenceHeading(losses.reference);
        if (losses.reference.kind != LossReferenceKind::Own)
            heading = withReference(heading, losses);
        addLine('\n' + styled(LossBold, heading));
    }

    /// Who it is and the total, as far as there is something.
    [[nodiscard]] std::string withReference(std::string text, const RunLosses& losses) const {
        if (losses.referenceRun)
            text += ", " + shownText(m_facts.text(row(*losses.referenceRun).crew));
        if (losses.referenceTotal)
            text += ", " + saidNumber(hundredthsText(*losses.referenceTotal));
        return losses.hasReference ? text : say("{}: there is none", text);
    }

    void addRun(const RunLosses& losses) {
        const RunRow& run = row(losses.run);
        std::string head = fmt::format("{:>3}  {}", run.number,
                                       styled(LossBold, shownText(m_facts.text(run.crew))));
        if (losses.sum)
            head += std::string(LossMargin) + signedInColour(losses.shown.gap);
        else if (!run.isComplete)
            head += std::string(LossMargin) + styled(LossDim, say("no total"));
        else if (losses.hasReference)
            head += std::string(LossMargin) + saidNumber(hundredthsText(run.total)) +
                    styled(LossDim, say(", no totals to compare"));
        if (losses.hasReference && losses.reference.kind == LossReferenceKind::Own)
            head += styled(LossDim, withReference({}, losses));
        addLine(head);
        if (losses.referenceRun == losses.run)
            return;
        addWrapped(waterfallWords(losses));
        for (const Stretch& stretch : losses.stretches)
            addGates(stretch);
        addElsewhere(losses);
        addExplained(losses);
    }

    /// The parts of the gap, each in one piece.
    [[nodiscard]] std::vector<std::string> waterfallWords(const RunLosses& losses) const {
        std::vector<std::string> words;
        if (losses.sum)
            words.push_back(saidNumber(hundredthsText(losses.sum->reference)));
        for (std::size_t i = 0; i < losses.stretches.size(); ++i)
            words.push_back(sectionsText(losses.stretches[i].first, losses.stretches[i].last) +
                            ' ' + saidNumber(signedText(losses.shown.stretches[i])));
        if (!losses.sum)
            return words;
        if (losses.shown.penalties != 0)
            words.push_back(say("penalties {}", saidNumber(signedText(losses.shown.penalties))));
        if (losses.shown.timing != 0)
            words.push_back(say("timing {}", saidNumber(signedText(losses.shown.timing))));
        words.push_back(saidNumber(hundredthsText(losses.sum->own)));
        return words;
    }

    /// Words with bars between them, broken between words at the width of the terminal.
    void addWrapped(const std::vector<std::string>& words) {
        constexpr std::string_view Indent = "     ";
        std::string line(Indent);
        for (const std::string& word : words) {
            const bool isFirst = line.size() == Indent.size();
            const int width = displayWidth(line) + displayWidth(word) + (isFirst ? 0 : 3);
            if (!isFirst && m_terminal.width > 0 && width > m_terminal.width) {
                addLine(line);
                line = std::string(Indent) + word;
            } else {
                line += isFirst ? word : std::string(Bar) + word;
            }
        }
        if (line.size() > Indent.size())
            addLine(line);
    }

    void addGates(const Stretch& stretch) {
        if (stretch.gates.empty())
            return;
        std::vector<std::string> words{sectionsText(stretch.first, stretch.last)};
        for (const GateLoss& gate : stretch.gates)
            words.push_back(gateText(gate));
        words.push_back(say("between {}", saidNumber(signedHundredths(stretch.between))));
        if (stretch.strokes && stretch.referenceStrokes)
            words.push_back(say("strokes {} on {}", *stretch.strokes, *stretch.referenceStrokes));
        addWrapped(words);
    }

    void addElsewhere(const RunLosses& losses) {
        if (losses.gatesElsewhere.empty())
            return;
        std::vector<std::string> words{say("in no stretch")};
        for (const GateLoss& gate : losses.gatesElsewhere)
            words.push_back(gateText(gate));
        addWrapped(words);
    }

    static std::string gateText(const GateLoss& gate) {
        return say("gate {} {}", gate.gate, saidNumber(signedHundredths(gate.loss)));
    }

    void addExplained(const RunLosses& losses) {
        if (!losses.explained || !losses.noted || *losses.noted == 0)
            return;
        addLine(
            styled(LossDim,
                   say("     Explained by notes: {} of {} ({:.0f} %)",
                       saidNumber(hundredthsText(*losses.noted)),
                       saidNumber(hundredthsText(static_cast<double>(losses.shown.paddling) / 100)),
                       *losses.explained * 100)));
    }

    [[nodiscard]] std::string signedInColour(std::int64_t hundredths) const {
        const std::string text = saidNumber(signedText(hundredths));
        return hundredths == 0 ? text : styled(hundredths > 0 ? LossRed : LossGreen, text);
    }

    [[nodiscard]] std::string styled(std::string_view code, const std::string& text) const {
        return m_terminal.hasColours ? std::string(code) + text + std::string(LossPlain) : text;
    }

    const FactStore& m_facts;
    Terminal m_terminal;
    std::string m_text;
};

std::string fileHeading(const FactStore& facts) {
    const FileRow& file = facts.files().front();
    std::string text;
    for (const TextId id : {file.title != 0 ? file.title : file.event, file.session, file.place})
        if (id != 0)
            text += (text.empty() ? "" : " · ") + shownText(facts.text(id));
    return text;
}

std::string wayCostsText(const FactStore& facts, std::span<const WayCost> ways) {
    std::string text;
    for (const WayCost& way : ways)
        if (way.cost && *way.cost > 0)
            text += fmt::format("  {:>6}  {}, {}\n", saidNumber(signedHundredths(*way.cost)),
                                shownText(way.title),
                                shownText(facts.text(facts.runs()[way.run].crew)));
    return text.empty() ? text : '\n' + say("Ways: chosen against the fastest timed") + '\n' + text;
}

} // namespace

std::string lossesText(const FactStore& facts, std::span<const RunLosses> runs,
                       const Terminal& terminal) {
    LossWriter writer(facts, terminal);
    writer.addLine(fileHeading(facts));
    writer.add(runs);
    std::vector<std::size_t> all;
    for (const RunLosses& losses : runs)
        all.push_back(losses.run);
    return writer.take() + lossNotesText(lossNotesOf(facts, all)) +
           wayCostsText(facts, wayCostsOf(facts, all));
}

std::string lossNotesText(const LossNotes& notes) {
    constexpr int FieldWidth = 13;
    constexpr int KeyWidth = 34;
    constexpr int NumberWidth = 9;
    if (notes.rows.empty() && notes.unfinished == 0)
        return {};
    std::string text = '\n' + say("Noted") + "\n  " + fitted("", FieldWidth + KeyWidth);
    for (const std::string& title : {say("Notes"), say("Lost"), say("Gained")})
        text += rightAligned(title, NumberWidth);
    text += '\n';
    std::string field;
    for (const LossNoteRow& row : notes.rows) {
        text += "  " + fitted(row.field == field ? "" : row.field, FieldWidth) +
                fitted(row.text.empty() ? say("not noted") : shownText(row.text), KeyWidth) +
                rightAligned(std::to_string(row.count), NumberWidth) +
                rightAligned(saidNumber(signedHundredths(row.lost)), NumberWidth) +
                rightAligned(saidNumber(signedHundredths(row.gained)), NumberWidth) + '\n';
        field = row.field;
    }
    if (notes.unfinished > 0)
        text += "  " + say("not finished: {}", notes.unfinished) + '\n';
    return text;
}

} // namespace kavela::cli
