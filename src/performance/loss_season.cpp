#include "performance/loss_season.h"

#include "analysis/cell_text.h"
#include "common/text.h"
#include "performance/loss_rules.h"
#include "splitdata/annotation_labels.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <span>
#include <utility>

namespace kavela {

namespace {

constexpr std::size_t MostClips = 3;
constexpr std::size_t MostToTrain = 3;
constexpr std::array<std::string_view, 3> Verdicts{KAVELA_TEXT("losing"), KAVELA_TEXT("gaining"),
                                                   KAVELA_TEXT("unclear")};
constexpr std::array<std::string_view, 5> SeasonFields{"kind", "third", "upstream", "direction",
                                                       "style"};
/// The keys that have an order of their own; labels come as they are met.
constexpr std::array<std::string_view, 4> SeasonKinds{KAVELA_TEXT("upstream"),
                                                      KAVELA_TEXT("downstream"),
                                                      KAVELA_TEXT("mixed"), KAVELA_TEXT("unknown")};
constexpr std::array<std::string_view, 3> ThirdNames{
    KAVELA_TEXT("first third"), KAVELA_TEXT("second third"), KAVELA_TEXT("last third")};

/// What the runs have of one row.
struct SeasonColumn {
    SeasonLossRow row;
    std::vector<double> losses;     ///< by run that has something of it
    std::vector<double> references; ///< the same
    std::vector<std::size_t> runs;  ///< the same, of the store
};

struct SeasonPart {
    std::string_view field;
    std::string key;
    std::string text;
    double loss = 0;
    double reference = 0;
    LossClip clip;
};

/// Collects what runs lost into rows.
class SeasonColumns {
public:
    void add(const RunLosses& losses) {
        for (const Stretch& stretch : losses.stretches) {
            addStretch(losses, stretch);
            for (const GateLoss& gate : stretch.gates)
                addGate(losses, gate, stretch.first, stretch.last);
        }
        for (const GateLoss& gate : losses.gatesElsewhere)
            addGate(losses, gate, 0, 0);
    }

    [[nodiscard]] std::vector<SeasonColumn> result() {
        std::ranges::stable_sort(m_columns, {}, [](const SeasonColumn& column) {
            return std::pair(placeOf(SeasonFields, column.row.field), placeOfKey(column.row));
        });
        return std::move(m_columns);
    }

private:
    template <class List>
    static std::size_t placeOf(const List& list, std::string_view word) {
        return static_cast<std::size_t>(std::ranges::find(list, word) - list.begin());
    }

    /// Kinds and thirds in their own order, labels in that of their list.
    static std::size_t placeOfKey(const SeasonLossRow& row) {
        if (row.field == "kind")
            return placeOf(SeasonKinds, row.key);
        if (row.field == "third")
            return static_cast<std::size_t>(row.key.front() - '0');
        const LabelList list =
            row.field == "style" ? LabelList::UpstreamStyle : LabelList::UpstreamDirection;
        return static_cast<std::size_t>(
            codeOf(list, row.key).value_or(static_cast<std::int64_t>(labelsOf(list).size())));
    }

    void addStretch(const RunLosses& losses, const Stretch& stretch) {
        const LossClip clip{losses.run,   losses.referenceRun, stretch.first,
                            stretch.last, std::nullopt,        stretch.loss};
        const std::string kind(kindText(stretch.kind));
        add({"kind", kind, std::string(translated(kind)), stretch.loss, stretch.reference, clip});
        const auto third = static_cast<std::size_t>(std::clamp(stretch.third, 1, 3));
        add({"third", std::to_string(third), std::string(translated(ThirdNames[third - 1])),
             stretch.loss, stretch.reference, clip});
    }

    void addGate(const RunLosses& losses, const GateLoss& gate, std::size_t first,
                 std::size_t last) {
        const LossClip clip{losses.run, losses.referenceRun, first, last, gate.gate, gate.loss};
        add({"upstream", "all", say("all gates"), gate.loss, gate.reference, clip});
        const auto addLabel = [&](std::string_view field, LabelList list, std::int16_t code) {
            const auto labels = labelsOf(list);
            const bool isKnown = code >= 0 && static_cast<std::size_t>(code) < labels.size();
            add({field,
                 isKnown ? std::string(labels[static_cast<std::size_t>(code)].id)
                         : std::to_string(code),
                 labelOf(list, code), gate.loss, gate.reference, clip});
        };
        addLabel("direction", LabelList::UpstreamDirection, gate.direction);
        addLabel("style", LabelList::UpstreamStyle, gate.style);
    }

    void add(SeasonPart part) {
        auto column = std::ranges::find_if(m_columns, [&](const SeasonColumn& candidate) {
            return candidate.row.field == part.field && candidate.row.key == part.key;
        });
        if (column == m_columns.end()) {
            column = m_columns.emplace(m_columns.end());
            column->row.field = part.field;
            column->row.key = std::move(part.key);
            column->row.text = std::move(part.text);
        }
        if (column->runs.empty() || column->runs.back() != part.clip.run) {
            column->runs.push_back(part.clip.run);
            column->losses.push_back(0);
            column->references.push_back(0);
        }
        column->losses.back() += part.loss;
        column->references.back() += part.reference;
        column->row.clips.push_back(part.clip);
    }

    std::vector<SeasonColumn> m_columns;
};

double totalOfAll(std::span<const double> values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}

LossVerdict verdictOf(const std::optional<Interval>& interval) {
    if (interval && interval->low > 0)
        return LossVerdict::Losing;
    if (interval && interval->high < 0)
        return LossVerdict::Gaining;
    return LossVerdict::Unclear;
}

void tellUncertain(Why& why, const std::optional<Interval>& interval, std::size_t runs) {
    if (interval)
        why.uncertain(*interval, sayCount(static_cast<std::int64_t>(runs), "90 % interval, {} run",
                                          "90 % interval, {} runs"));
    else
        why.note("Too few runs for an interval.");
}

/// Tells what a run lost in a row.
void tellRuns(const FactStore& facts, const SeasonColumn& column, Why& why) {
    for (std::size_t i = 0; i < column.runs.size(); ++i) {
        why.input("lost", column.losses[i], lossPlace(facts, column.runs[i]));
        why.input("reference", column.references[i]);
    }
}

void tellRunCount(const FactStore& facts, const SeasonColumn& column, Why* why) {
    for (std::size_t i = 0; why && i < column.runs.size(); ++i)
        why->input(std::string(facts.text(facts.runs()[column.runs[i]].phase)), 1,
                   lossPlace(facts, column.runs[i]));
    if (why)
        why->result(ruleOf(LossRule::SeasonRuns), static_cast<double>(column.runs.size()),
                    std::to_string(column.runs.size()));
}

void tellLoss(const FactStore& facts, const SeasonColumn& column, double loss, Why* why) {
    if (!why)
        return;
    tellRuns(facts, column, *why);
    why->result(ruleOf(LossRule::SeasonLoss), loss, signedHundredths(loss));
}

void addPercent(const FactStore& facts, const SeasonColumn& column, SeasonLossRow& row, Why* why) {
    const RatioOf ratio = ratioOf(column.losses, column.references);
    row.percent = ratio.percent;
    row.interval = ratio.interval;
    row.verdict = verdictOf(ratio.interval);
    if (!why)
        return;
    tellRuns(facts, column, *why);
    tellUncertain(*why, ratio.interval, ratio.n);
    why->result(ruleOf(LossRule::SeasonPercent), row.percent,
                fmt::format("{:+.1f} %", row.percent));
}

void addPerRun(const FactStore& facts, const SeasonColumn& column, SeasonLossRow& row, Why* why) {
    row.perRun = row.loss / static_cast<double>(row.runs);
    if (!why)
        return;
    tellRuns(facts, column, *why);
    tellUncertain(*why, meanOf(column.losses).interval, row.runs);
    why->result(ruleOf(LossRule::SeasonPerRun), row.perRun, signedHundredths(row.perRun));
}

void addShare(const FactStore& facts, const SeasonColumn& column, SeasonLossRow& row,
              double wholeGap, Why* why) {
    if (wholeGap == 0)
        return;
    row.share = row.loss / wholeGap;
    if (!why)
        return;
    tellRuns(facts, column, *why);
    why->input("gap of all runs", wholeGap);
    why->result(ruleOf(LossRule::SeasonShare), *row.share,
                fmt::format("{:.0f} %", *row.share * 100));
}

/// The clips that show most, the greatest loss first.
std::vector<LossClip> greatestClips(std::vector<LossClip> clips) {
    std::ranges::stable_sort(clips, std::ranges::greater{}, &LossClip::loss);
    clips.resize(std::min(clips.size(), MostClips));
    std::erase_if(clips, [](const LossClip& clip) { return clip.loss <= 0; });
    return clips;
}

SeasonLossRow rowOf(const FactStore& facts, const SeasonColumn& column, double wholeGap,
                    const SeasonLossQuestion& question, Why* why) {
    SeasonLossRow row = column.row;
    const bool isAsked = row.field == question.field && row.key == question.key;
    const auto asked = [&](SeasonLossNumber number) {
        return isAsked && number == question.number ? why : nullptr;
    };
    row.runs = column.runs.size();
    row.loss = totalOfAll(column.losses);
    row.reference = totalOfAll(column.references);
    tellRunCount(facts, column, asked(SeasonLossNumber::Runs));
    tellLoss(facts, column, row.loss, asked(SeasonLossNumber::Loss));
    addPercent(facts, column, row, asked(SeasonLossNumber::Percent));
    addPerRun(facts, column, row, asked(SeasonLossNumber::PerRun));
    addShare(facts, column, row, wholeGap, asked(SeasonLossNumber::Share));
    row.clips = greatestClips(std::move(row.clips));
    return row;
}

/// A mean over whole runs, and what went into it.
MeanOf seasonMean(const FactStore& facts, std::span<const RunLosses> whole, double LossSum::*figure,
                  LossRule rule, Why* why) {
    std::vector<double> values;
    for (const RunLosses& losses : whole) {
        values.push_back((*losses.sum).*figure);
        if (why)
            why->input("run", values.back(), lossPlace(facts, losses.run));
    }
    MeanOf mean = meanOf(values);
    if (why && !values.empty()) {
        tellUncertain(*why, mean.interval, mean.n);
        why->result(ruleOf(rule), mean.mean, signedHundredths(mean.mean));
    }
    return mean;
}

/// Losing rows by what they cost in a run; nothing else is advised.
std::vector<std::size_t> rowsToTrain(std::span<const SeasonLossRow> rows) {
    std::vector<std::size_t> losing;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].verdict == LossVerdict::Losing)
            losing.push_back(i);
    std::ranges::stable_sort(losing, std::ranges::greater{},
                             [&](std::size_t row) { return rows[row].perRun; });
    losing.resize(std::min(losing.size(), MostToTrain));
    return losing;
}

/// The runs that can be held against their reference as a whole.
std::vector<RunLosses> wholeRuns(const FactStore& facts, std::span<const std::size_t> runs,
                                 const LossReference& reference) {
    std::vector<RunLosses> whole = lossesOf(facts, LossRivals(facts), runs, reference);
    std::erase_if(whole, [&](const RunLosses& losses) {
        return !facts.runs()[losses.run].isComplete || !losses.sum;
    });
    return whole;
}

} // namespace

std::string_view verdictText(LossVerdict verdict) {
    return translated(Verdicts[static_cast<std::size_t>(verdict)]);
}

std::vector<std::size_t> seasonRuns(const FactStore& facts, const SeasonLossQuery& query) {
    std::vector<std::size_t> runs;
    for (std::size_t run = 0; run < facts.runs().size(); ++run) {
        const RunRow& row = facts.runs()[run];
        const bool isCategory =
            query.categoryKey.empty() || facts.text(row.categoryKey) == query.categoryKey;
        if (isCategory && facts.text(row.crewKey) == query.crewKey)
            runs.push_back(run);
    }
    return runs;
}

SeasonLosses seasonLosses(const FactStore& facts, const SeasonLossQuery& query,
                          const SeasonLossQuestion& question, Why* why) {
    const std::vector<std::size_t> runs = seasonRuns(facts, query);
    const std::vector<RunLosses> whole = wholeRuns(facts, runs, query.reference);
    const auto asked = [&](SeasonLossNumber number) {
        return number == question.number ? why : nullptr;
    };
    SeasonLosses season;
    SeasonColumns columns;
    double wholeGap = 0;
    for (const RunLosses& losses : whole) {
        season.runs.push_back(losses.run);
        columns.add(losses);
        wholeGap += losses.sum->gap;
    }
    season.gap =
        seasonMean(facts, whole, &LossSum::gap, LossRule::SeasonGap, asked(SeasonLossNumber::Gap));
    season.penalties = seasonMean(facts, whole, &LossSum::penalties, LossRule::SeasonPenalties,
                                  asked(SeasonLossNumber::Penalties));
    for (const SeasonColumn& column : columns.result())
        season.rows.push_back(rowOf(facts, column, wholeGap, question, why));
    season.train = rowsToTrain(season.rows);
    season.notes = lossNotesOf(facts, runs);
    return season;
}

} // namespace kavela
