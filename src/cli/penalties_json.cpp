#include "cli/penalties_json.h"

#include "cli/console.h"
#include "common/delimited_text.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "common/number_text.h"

namespace kavela::cli {

namespace {

struct RateJson {
    std::int64_t count = 0;
    std::int64_t of = 0;
    double rate = 0;
    double low = 0;
    double high = 0;
};
BOOST_DESCRIBE_STRUCT(RateJson, (), (count, of, rate, low, high))

struct PriorJson {
    double mean = 0;
    double strength = 0;
};
BOOST_DESCRIBE_STRUCT(PriorJson, (), (mean, strength))

struct ShrunkJson {
    double rate = 0;
    double low = 0;
    double high = 0;
    double above = 0;
};
BOOST_DESCRIBE_STRUCT(ShrunkJson, (), (rate, low, high, above))

struct RateRowJson {
    std::string key;
    std::optional<RateJson> touches;
    std::optional<RateJson> missed;
    ShrunkJson shrunk;
};
BOOST_DESCRIBE_STRUCT(RateRowJson, (), (key, touches, missed, shrunk))

struct DetailRowJson {
    std::string field;
    std::optional<std::int32_t> code;
    std::int64_t count = 0;
    std::int64_t of = 0;
    double rate = 0;
    double low = 0;
    double high = 0;
};
BOOST_DESCRIBE_STRUCT(DetailRowJson, (), (field, code, count, of, rate, low, high))

struct DetailsJson {
    std::int64_t noted = 0;
    std::vector<DetailRowJson> rows;
};
BOOST_DESCRIBE_STRUCT(DetailsJson, (), (noted, rows))

struct CostJson {
    std::string file;
    std::int64_t run = 0;
    std::int64_t gate = 0;
    std::optional<std::int64_t> section;
    std::int64_t seconds = 0;
    std::int32_t rank = 0;
    std::int32_t without = 0;
    std::int32_t places = 0;
    bool medal = false;
    std::int64_t of = 0;
};
BOOST_DESCRIBE_STRUCT(CostJson, (),
                      (file, run, gate, section, seconds, rank, without, places, medal, of))

struct TradeOffRowJson {
    std::int32_t third = 0;
    std::int64_t runs = 0;
    double touchesPerRun = 0;
    double low = 0;
    double high = 0;
    double missedPerRun = 0;
    double paddling = 0;
    double total = 0;
};
BOOST_DESCRIBE_STRUCT(TradeOffRowJson, (),
                      (third, runs, touchesPerRun, low, high, missedPerRun, paddling, total))

struct TradeOffJson {
    std::vector<TradeOffRowJson> rows;
    std::optional<double> breakEven;
};
BOOST_DESCRIBE_STRUCT(TradeOffJson, (), (rows, breakEven))

struct PenaltiesJson {
    std::string by;
    std::int64_t runs = 0;
    std::int64_t leftOut = 0;
    std::optional<RateJson> clean;
    PriorJson prior;
    std::vector<RateRowJson> rows;
    DetailsJson details;
    std::vector<CostJson> costs;
    TradeOffJson tradeoff;
};
BOOST_DESCRIBE_STRUCT(PenaltiesJson, (),
                      (by, runs, leftOut, clean, prior, rows, details, costs, tradeoff))

std::optional<RateJson> rateJson(const std::optional<RateOf>& rate) {
    if (!rate)
        return {};
    return RateJson{whole(rate->count), whole(rate->of), rate->rate, rate->interval.low,
                    rate->interval.high};
}

RateRowJson rateRowJson(const RateRow& row) {
    const ShrunkRate& shrunk = row.shrunk;
    return {validUtf8(row.key),
            rateJson(row.touches),
            rateJson(row.missed),
            {shrunk.rate, shrunk.interval.low, shrunk.interval.high, shrunk.above}};
}

DetailsJson detailSharesJson(const DetailShares& details) {
    DetailsJson json{whole(details.noted), {}};
    for (const DetailRow& row : details.rows)
        json.rows.push_back({std::string(row.field), row.code, whole(row.share.count),
                             whole(row.share.of), row.share.rate, row.share.interval.low,
                             row.share.interval.high});
    return json;
}

CostJson costJson(const FactStore& facts, const PenaltyCost& cost) {
    const RunRow& run = facts.runs()[cost.run];
    const auto section = cost.section ? std::optional(whole(*cost.section)) : std::nullopt;
    return {pathText(facts.pathOf(run)),
            run.number,
            cost.gate,
            section,
            cost.seconds,
            cost.rank,
            cost.without,
            cost.places(),
            cost.isMedal(),
            whole(cost.of)};
}

TradeOffJson tradeOffJson(const TradeOff& tradeOff) {
    TradeOffJson json{{}, tradeOff.breakEven};
    for (const TradeOffRow& row : tradeOff.rows)
        json.rows.push_back({row.third, whole(row.runs), row.touchesPerRun, row.interval.low,
                             row.interval.high, row.missedPerRun, row.paddling, row.total});
    return json;
}

/// Count, rate and interval; empty fields where nobody came.
std::string csvRate(const std::optional<RateOf>& rate) {
    if (!rate)
        return ";;;;";
    return ';' + std::to_string(rate->count) + ';' + plainText(rate->rate) + ';' +
           plainText(rate->interval.low) + ';' + plainText(rate->interval.high);
}

} // namespace

std::string penaltiesJson(const FactStore& facts, const PenaltyFindings& findings) {
    const PenaltyRates& rates = findings.rates;
    PenaltiesJson json;
    json.by = std::string(nameOf(rates.by));
    json.runs = whole(rates.runs);
    json.leftOut = whole(rates.leftOut);
    json.clean = rateJson(rates.clean);
    json.prior = {rates.common.mean, rates.common.strength};
    for (const RateRow& row : rates.rows)
        json.rows.push_back(rateRowJson(row));
    json.details = detailSharesJson(findings.details);
    for (const PenaltyCost& cost : findings.costs)
        json.costs.push_back(costJson(facts, cost));
    json.tradeoff = tradeOffJson(findings.tradeOff);
    return encode(json) + '\n';
}

std::string penaltiesCsv(const PenaltyRates& rates) {
    std::string table = std::string(nameOf(rates.by)) +
                        ";Passages;Touches;Touch rate;Low;High;Missed;Missed rate;Low;High;"
                        "Ranked rate;Low;High;Above\n";
    for (const RateRow& row : rates.rows) {
        const ShrunkRate& shrunk = row.shrunk;
        table += csvField(row.key) + ';' + std::to_string(row.touches ? row.touches->of : 0) +
                 csvRate(row.touches) + csvRate(row.missed) + ';' + plainText(shrunk.rate) + ';' +
                 plainText(shrunk.interval.low) + ';' + plainText(shrunk.interval.high) + ';' +
                 plainText(shrunk.above) + '\n';
    }
    return table;
}

} // namespace kavela::cli
