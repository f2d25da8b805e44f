#include "performance/detail_shares.h"

#include "common/text.h"
#include "performance/penalty_rules.h"

#include <algorithm>
#include <map>
#include <set>

namespace kavela {

namespace {

/// One penalty in detail and where it stands.
struct NotedPenalty {
    std::size_t run = 0;
    std::size_t entry = 0;
    PenaltyRow row;
};

struct NotedPenalties {
    std::vector<NotedPenalty> noted;
    std::size_t unnoted = 0; ///< counted by gate, without any detail
};

/// Penalties of a run at gates of which no detail speaks.
std::size_t unnotedOf(const FactStore& facts, const RunRow& run) {
    if (!isKnownByGate(facts, run))
        return 0;
    std::set<std::int64_t> gates;
    for (const PenaltyRow& row : facts.penaltiesOf(run))
        gates.insert(row.gate);
    const auto pens = facts.pensOf(run);
    std::size_t count = 0;
    for (std::size_t i = 0; i < pens.size(); ++i)
        count += pens[i] > 0 && !gates.contains(static_cast<std::int64_t>(i + 1));
    return count;
}

NotedPenalties notedPenalties(const FactStore& facts, const PenaltyChoice& choice) {
    const ChosenRuns chosen(choice);
    NotedPenalties all;
    for (std::size_t i = 0; i < facts.runs().size(); ++i) {
        const RunRow& run = facts.runs()[i];
        if (!chosen.has(facts, run))
            continue;
        const auto rows = facts.penaltiesOf(run);
        for (std::size_t entry = 0; entry < rows.size(); ++entry)
            all.noted.push_back({i, entry, rows[entry]});
        all.unnoted += unnotedOf(facts, run);
    }
    return all;
}

/// How often each code was noted.
std::map<std::int32_t, std::size_t> codesOf(const NotedPenalties& all, const DetailField& field) {
    std::map<std::int32_t, std::size_t> codes;
    for (const NotedPenalty& penalty : all.noted)
        if (penalty.row.*field.code != PenaltyRow::NoCode)
            ++codes[penalty.row.*field.code];
    return codes;
}

std::vector<DetailRow> rowsOf(const NotedPenalties& all, const DetailField& field) {
    const auto codes = codesOf(all, field);
    std::size_t noted = 0;
    for (const auto& [code, count] : codes)
        noted += count;
    std::vector<DetailRow> rows;
    for (const auto& [code, count] : codes)
        rows.push_back({field.name, code, *rateOf(count, noted)});
    std::ranges::stable_sort(
        rows, [](const DetailRow& a, const DetailRow& b) { return a.share.count > b.share.count; });
    const std::size_t penalties = all.noted.size() + all.unnoted;
    if (noted < penalties)
        rows.push_back({field.name, std::nullopt, *rateOf(penalties - noted, penalties)});
    return rows;
}

Place placeOf(const FactStore& facts, const NotedPenalty& penalty) {
    const RunRow& run = facts.runs()[penalty.run];
    Place place;
    place.file = facts.pathOf(run);
    place.run = run.number;
    if (penalty.row.gate > 0)
        place.gate = static_cast<std::size_t>(penalty.row.gate);
    place.entry = penalty.entry;
    return place;
}

void tellDetail(Why& why, const FactStore& facts, const NotedPenalties& all,
                const DetailField& field, const DetailRow& row) {
    tellRate(why, penalty_rules::Detail, row.share);
    for (const NotedPenalty& penalty : all.noted)
        if (penalty.row.*field.code == row.code.value_or(PenaltyRow::NoCode))
            why.input(std::string(facts.text(facts.runs()[penalty.run].crew)),
                      static_cast<double>(penalty.row.*field.code), placeOf(facts, penalty));
    if (!row.code && all.unnoted > 0)
        why.note(say("{} without any detail.", all.unnoted));
}

} // namespace

std::string detailText(const DetailRow& row) {
    const auto field = std::ranges::find(DetailFields, row.field, &DetailField::name);
    return row.code && field != DetailFields.end() ? labelOf(field->labels, *row.code)
                                                   : say("not noted");
}

DetailShares detailShares(const FactStore& facts, const PenaltyChoice& choice) {
    const NotedPenalties all = notedPenalties(facts, choice);
    DetailShares details{all.noted.size(), all.noted.size() + all.unnoted, {}};
    for (const DetailField& field : DetailFields) {
        const auto rows = rowsOf(all, field);
        details.rows.insert(details.rows.end(), rows.begin(), rows.end());
    }
    return details;
}

std::optional<DetailRow> detailShare(const FactStore& facts, const PenaltyChoice& choice,
                                     std::string_view field, std::optional<std::int32_t> code,
                                     Why* why) {
    const auto asked = std::ranges::find(DetailFields, field, &DetailField::name);
    if (asked == DetailFields.end())
        return {};
    const NotedPenalties all = notedPenalties(facts, choice);
    const auto rows = rowsOf(all, *asked);
    const auto found = std::ranges::find(rows, code, &DetailRow::code);
    if (found == rows.end())
        return {};
    if (why)
        tellDetail(*why, facts, all, *asked, *found);
    return *found;
}

} // namespace kavela
