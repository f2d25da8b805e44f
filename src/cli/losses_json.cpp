#include "cli/losses_json.h"

#include "cli/console.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "performance/loss_ways.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

namespace kavela::cli {

namespace {

struct LossReferenceJson {
    std::string kind;
    std::optional<std::int64_t> run;
    std::optional<double> total;
};
BOOST_DESCRIBE_STRUCT(LossReferenceJson, (), (kind, run, total))

struct GateLossJson {
    std::int64_t gate = 0;
    std::int64_t direction = 0;
    std::int64_t style = 0;
    double time = 0;
    double reference = 0;
    double loss = 0;
    std::optional<double> entrance;
    std::optional<double> exit;
};
BOOST_DESCRIBE_STRUCT(GateLossJson, (),
                      (gate, direction, style, time, reference, loss, entrance, exit))

struct LossStretchJson {
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::string kind;
    std::int64_t third = 0;
    double time = 0;
    double reference = 0;
    double loss = 0;
    double percent = 0;
    std::int64_t pen = 0;
    double between = 0;
    std::optional<std::int64_t> strokes;
    std::optional<std::int64_t> referenceStrokes;
    std::vector<GateLossJson> gates;
};
BOOST_DESCRIBE_STRUCT(LossStretchJson, (),
                      (first, last, kind, third, time, reference, loss, percent, pen, between,
                       strokes, referenceStrokes, gates))

struct LossInterestJson {
    double time = 0;
    std::optional<double> gap;
};
BOOST_DESCRIBE_STRUCT(LossInterestJson, (), (time, gap))

struct RunLossesJson {
    std::int64_t run = 0;
    std::vector<std::string> names;
    std::string category;
    std::string phase;
    bool complete = false;
    bool official = false;
    LossReferenceJson reference;
    std::optional<double> gap;
    std::optional<double> paddling;
    std::optional<double> penalties;
    std::optional<double> timing;
    std::optional<std::vector<std::int64_t>> shown;
    std::vector<LossStretchJson> stretches;
    std::vector<GateLossJson> gatesElsewhere;
    std::optional<double> explained;
    std::optional<double> xTimeDiff;
    std::vector<LossInterestJson> interests;
};
BOOST_DESCRIBE_STRUCT(RunLossesJson, (),
                      (run, names, category, phase, complete, official, reference, gap, paddling,
                       penalties, timing, shown, stretches, gatesElsewhere, explained, xTimeDiff,
                       interests))

struct LossNoteRowJson {
    std::string field;
    std::string key;
    std::int64_t count = 0;
    double lost = 0;
    double gained = 0;
};
BOOST_DESCRIBE_STRUCT(LossNoteRowJson, (), (field, key, count, lost, gained))

struct LossNotesJson {
    std::int64_t unfinished = 0;
    std::vector<LossNoteRowJson> rows;
};
BOOST_DESCRIBE_STRUCT(LossNotesJson, (), (unfinished, rows))

struct WayCostJson {
    std::int64_t run = 0;
    std::string title;
    std::optional<double> cost;
};
BOOST_DESCRIBE_STRUCT(WayCostJson, (), (run, title, cost))

struct LossesJson {
    std::string file;
    std::string reference;
    std::vector<RunLossesJson> runs;
    LossNotesJson annotated;
    std::vector<WayCostJson> ways;
};
BOOST_DESCRIBE_STRUCT(LossesJson, (), (file, reference, runs, annotated, ways))

struct LossMeanJson {
    std::int64_t n = 0;
    std::optional<double> mean;
    std::optional<double> low;
    std::optional<double> high;
};
BOOST_DESCRIBE_STRUCT(LossMeanJson, (), (n, mean, low, high))

struct SeasonLossRowJson {
    std::string field;
    std::string key;
    std::int64_t runs = 0;
    double loss = 0;
    double reference = 0;
    double percent = 0;
    std::optional<double> low;
    std::optional<double> high;
    double perRun = 0;
    std::optional<double> share;
    std::string verdict;
};
BOOST_DESCRIBE_STRUCT(SeasonLossRowJson, (),
                      (field, key, runs, loss, reference, percent, low, high, perRun, share,
                       verdict))

struct SeasonLossesJson {
    std::string athlete;
    std::string reference;
    std::int64_t runs = 0;
    LossMeanJson gap;
    LossMeanJson penalties;
    std::vector<SeasonLossRowJson> rows;
    LossNotesJson annotated;
};
BOOST_DESCRIBE_STRUCT(SeasonLossesJson, (),
                      (athlete, reference, runs, gap, penalties, rows, annotated))

std::vector<GateLossJson> gateLossesJson(std::span<const GateLoss> gates) {
    std::vector<GateLossJson> json;
    for (const GateLoss& gate : gates)
        json.push_back({gate.gate, gate.direction, gate.style, gate.time, gate.reference, gate.loss,
                        gate.entrance, gate.exit});
    return json;
}

LossStretchJson lossStretchJson(const Stretch& stretch) {
    return {whole(stretch.first),
            whole(stretch.last),
            std::string(kindText(stretch.kind)),
            stretch.third,
            stretch.time,
            stretch.reference,
            stretch.loss,
            stretch.percent,
            stretch.pen,
            stretch.between,
            stretch.strokes,
            stretch.referenceStrokes,
            gateLossesJson(stretch.gates)};
}

/// The shown parts in hundredths: the stretches, the penalties, the timing.
std::vector<std::int64_t> shownJson(const ShownLosses& shown) {
    std::vector<std::int64_t> parts = shown.stretches;
    parts.push_back(shown.penalties);
    parts.push_back(shown.timing);
    return parts;
}

LossReferenceJson lossReferenceJson(const FactStore& facts, const RunLosses& losses) {
    LossReferenceJson json;
    json.kind = kindText(losses.reference.kind);
    if (losses.referenceRun)
        json.run = facts.runs()[*losses.referenceRun].number;
    json.total = losses.referenceTotal;
    return json;
}

RunLossesJson runLossesJson(const FactStore& facts, const RunLosses& losses) {
    const RunRow& row = facts.runs()[losses.run];
    RunLossesJson json;
    json.run = row.number;
    for (const std::string& name : facts.lines(row.names))
        json.names.push_back(validUtf8(name));
    json.category = facts.text(row.category);
    json.phase = facts.text(row.phase);
    json.complete = row.isComplete;
    json.official = row.isOfficial;
    json.reference = lossReferenceJson(facts, losses);
    if (losses.sum) {
        json.gap = losses.sum->gap;
        json.paddling = losses.sum->paddling;
        json.penalties = losses.sum->penalties;
        json.timing = losses.sum->timing;
        json.shown = shownJson(losses.shown);
    }
    for (const Stretch& stretch : losses.stretches)
        json.stretches.push_back(lossStretchJson(stretch));
    json.gatesElsewhere = gateLossesJson(losses.gatesElsewhere);
    json.explained = losses.explained;
    json.xTimeDiff = losses.xTimeDiff;
    for (const InterestGap& interest : losses.interests)
        json.interests.push_back({interest.time, interest.gap});
    return json;
}

LossNotesJson lossNotesJson(const LossNotes& notes) {
    LossNotesJson json;
    json.unfinished = whole(notes.unfinished);
    for (const LossNoteRow& row : notes.rows)
        json.rows.push_back({row.field, row.key, whole(row.count), row.lost, row.gained});
    return json;
}

LossMeanJson lossMeanJson(const MeanOf& mean) {
    LossMeanJson json;
    json.n = whole(mean.n);
    if (mean.n > 0)
        json.mean = mean.mean;
    if (mean.interval) {
        json.low = mean.interval->low;
        json.high = mean.interval->high;
    }
    return json;
}

SeasonLossRowJson seasonLossRowJson(const SeasonLossRow& row) {
    SeasonLossRowJson json{row.field,
                           row.key,
                           whole(row.runs),
                           row.loss,
                           row.reference,
                           row.percent,
                           std::nullopt,
                           std::nullopt,
                           row.perRun,
                           row.share,
                           std::string(verdictText(row.verdict))};
    if (row.interval) {
        json.low = row.interval->low;
        json.high = row.interval->high;
    }
    return json;
}

} // namespace

std::string lossesJson(const FactStore& facts, const LossReference& reference,
                       std::span<const RunLosses> runs) {
    LossesJson json;
    json.file = validUtf8(facts.text(facts.files().front().path));
    json.reference = textOf(reference);
    std::vector<std::size_t> all;
    for (const RunLosses& losses : runs) {
        json.runs.push_back(runLossesJson(facts, losses));
        all.push_back(losses.run);
    }
    json.annotated = lossNotesJson(lossNotesOf(facts, all));
    for (const WayCost& way : wayCostsOf(facts, all))
        json.ways.push_back({facts.runs()[way.run].number, way.title, way.cost});
    return encode(json) + '\n';
}

std::string seasonLossesJson(const std::string& athlete, const LossReference& reference,
                             const SeasonLosses& season) {
    SeasonLossesJson json;
    json.athlete = athlete;
    json.reference = textOf(reference);
    json.runs = whole(season.runs.size());
    json.gap = lossMeanJson(season.gap);
    json.penalties = lossMeanJson(season.penalties);
    for (const SeasonLossRow& row : season.rows)
        json.rows.push_back(seasonLossRowJson(row));
    json.annotated = lossNotesJson(season.notes);
    return encode(json) + '\n';
}

} // namespace kavela::cli
