#include "page/run_notes.h"

#include "analysis/cell_text.h"
#include "common/number_text.h"
#include "common/text.h"
#include "page/html_text.h"
#include "performance/loss_gates.h"
#include "splitdata/annotation_labels.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

namespace kavela::page {

namespace {

/// No course has so many: a damaged file may claim any number.
constexpr std::int64_t MostGatesShown = 60;
constexpr std::int64_t MissedSeconds = 50;

/// A time as the file has it; a dash for one that was not taken.
std::string takenText(double seconds) {
    return seconds != 0 && std::isfinite(seconds) ? saidNumber(hundredthsText(seconds)) : "–";
}

/// Texts one behind the other, without the empty ones.
std::string joinedTexts(std::span<const std::string> texts, std::string_view between) {
    std::string made;
    for (const std::string& text : texts)
        if (!text.empty())
            made += (made.empty() ? std::string() : std::string(between)) + text;
    return made;
}

/// The gates of one course and what a run did at them.
class CourseWriter {
public:
    CourseWriter(const RaceOnPage& race, std::size_t row)
        : m_set(race.set()), m_pens(race.set().alldata[row].gatePenalties), m_race(race) {
        m_isKnown = std::cmp_equal(m_pens.size(), std::max<std::int64_t>(m_set.gates, 0));
    }

    [[nodiscard]] bool isKnown() const { return m_isKnown; }

    [[nodiscard]] std::string text() const {
        std::string made = "<div class=c>";
        std::vector<bool> isShown(static_cast<std::size_t>(gates()) + 1, false);
        for (std::size_t k = 0; k < m_set.definedsections.size() && k < m_race.sections(); ++k)
            made += group(m_race.sectionTitle(k), m_set.definedsections[k], isShown);
        std::vector<std::int64_t> others;
        for (std::int64_t gate = 1; gate <= gates(); ++gate)
            others.push_back(gate);
        const bool hasSections = made.size() > std::string_view("<div class=c>").size();
        return made +
               group(std::string(hasSections ? translated("Others") : translated("Course")), others,
                     isShown) +
               "</div>";
    }

private:
    [[nodiscard]] std::int64_t gates() const {
        return std::clamp<std::int64_t>(m_set.gates, 0, MostGatesShown);
    }

    [[nodiscard]] std::string group(const std::string& title,
                                    const std::vector<std::int64_t>& numbers,
                                    std::vector<bool>& isShown) const {
        std::string items;
        for (const std::int64_t gate : numbers) {
            if (gate < 1 || gate > gates() || isShown[static_cast<std::size_t>(gate)])
                continue;
            isShown[static_cast<std::size_t>(gate)] = true;
            items += item(gate);
        }
        return items.empty() ? items
                             : "<div><b>" + escaped(title) + "</b><ol>" + items + "</ol></div>";
    }

    [[nodiscard]] std::string item(std::int64_t gate) const {
        const bool isUpstream = std::ranges::find(m_set.upGates, gate) != m_set.upGates.end();
        const std::int64_t pen = m_isKnown ? m_pens[static_cast<std::size_t>(gate - 1)] : 0;
        std::string name = isUpstream ? "u" : "";
        if (pen > 0)
            name += std::string(name.empty() ? "" : " ") + (pen >= MissedSeconds ? "n" : "t");
        std::string made = "<li";
        if (!name.empty())
            made += name.size() > 1 ? " class=\"" + name + '"' : " class=" + name;
        made += '>' + std::to_string(gate);
        if (isUpstream)
            made += "<span class=v> " + said("upstream") + "</span>";
        if (pen > 0)
            made += "<small>+" + std::to_string(pen) + "</small>";
        return made;
    }

    const RaceSet& m_set;
    const std::vector<std::int64_t>& m_pens;
    const RaceOnPage& m_race;
    bool m_isKnown = false;
};

struct NotedField {
    std::int32_t PenaltyRow::*code;
    LabelList list;
};

constexpr std::array NotedFields{NotedField{&PenaltyRow::penkind, LabelList::PenaltyKind},
                                 NotedField{&PenaltyRow::polekind, LabelList::PenaltyPole},
                                 NotedField{&PenaltyRow::penway, LabelList::PenaltyWay},
                                 NotedField{&PenaltyRow::moment, LabelList::PenaltyMoment},
                                 NotedField{&PenaltyRow::direction, LabelList::PenaltyDirection},
                                 NotedField{&PenaltyRow::style, LabelList::PenaltyStyle},
                                 NotedField{&PenaltyRow::eye, LabelList::PenaltyEye}};

std::string penaltyWords(const PenaltyRow& penalty) {
    std::string words;
    for (const NotedField& field : NotedFields) {
        if (penalty.*field.code == PenaltyRow::NoCode)
            continue;
        if (!words.empty())
            words += " · ";
        const std::string label = escaped(labelOf(field.list, penalty.*field.code));
        words += field.list == LabelList::PenaltyEye ? say("eyes: {}", label) : label;
    }
    const std::string gate =
        penalty.gate == PenaltyRow::NoCode ? said("Gate not noted") : say("Gate {}", penalty.gate);
    return "<li><b>" + gate + "</b> " + words;
}

/// The losses of the upstream gates of a run, in whatever stretch they hang.
const GateLoss* gateLossOf(const RunLosses& losses, std::int32_t gate) {
    const auto in = [gate](const std::vector<GateLoss>& gates) -> const GateLoss* {
        const auto found = std::ranges::find(gates, gate, &GateLoss::gate);
        return found == gates.end() ? nullptr : &*found;
    };
    for (const Stretch& stretch : losses.stretches)
        if (const GateLoss* const found = in(stretch.gates))
            return found;
    return in(losses.gatesElsewhere);
}

std::string lossNote(const FactStore& facts, const LossRow& note) {
    const std::vector<std::string> where{
        labelOf(LabelList::LossGateCombination, note.gateCombination),
        labelOf(LabelList::LossGateDetails, note.gateDetails),
        labelOf(LabelList::LossStyle, note.style),
        labelOf(LabelList::LossWaterFeature, note.waterFeature)};
    const std::string lost =
        "<b>" +
        (note.lost == 0 ? said("Not finished") : saidNumber(signedHundredths(note.lost)) + " s") +
        "</b>";
    std::string made =
        "<li>" + (facts.text(note.versus).empty()
                      ? lost
                      : say("{} against {}", lost, isolated(facts.text(note.versus))));
    made += ": " + escaped(joinedTexts(where, ", "));
    if (const std::string reasons = joinedTexts(facts.lines(note.reasons), ", "); !reasons.empty())
        made += ". " + isolated(reasons);
    if (!facts.text(note.comments).empty())
        made += ". " + isolated(facts.text(note.comments));
    return made;
}

} // namespace

std::string penaltiesPart(const RaceOnPage& race, std::size_t row) {
    const RunRow& run = race.factsOf(row);
    const CourseWriter course(race, row);
    std::string words;
    for (const PenaltyRow& penalty : race.facts().penaltiesOf(run))
        words += penaltyWords(penalty);
    if (race.set().gates < 1 && words.empty())
        return {};
    std::string made = "<h4>" + said("Penalties on the course") + "</h4>";
    if (!course.isKnown())
        made += "<p class=h>" + said("The penalties of this run are not known by gate.") + "</p>";
    made += course.text();
    return words.empty() ? made : made + "<ul>" + words + "</ul>";
}

std::string upstreamPart(const RaceOnPage& race, std::size_t own) {
    const auto gates = race.facts().gatesOf(race.factsOf(race.own()[own]));
    if (gates.empty())
        return {};
    std::string made =
        "<table class=r><caption>" + said("Upstream gates") + "</caption><thead><tr>";
    for (const std::string& title :
         {said("Gate"), said("Entry"), said("Exit"), said("Time"), said("To winner")})
        made += "<th scope=col>" + title;
    made += "<th scope=col class=j>" + said("Turn") + "</thead><tbody>";
    for (const GateRow& gate : gates) {
        const GateLoss* const loss = gateLossOf(race.lossesOf(own), gate.gate);
        made += "<tr><th scope=row>" + std::to_string(gate.gate) + "<td>" +
                takenText(gate.entrance) + "<td>" + takenText(gate.exit) + "<td>" +
                takenText(gate.time) + "<td>" +
                (loss ? saidNumber(signedHundredths(loss->loss)) : "–") + "<td class=j>" +
                escaped(labelOf(LabelList::UpstreamDirection, gate.direction)) + ", " +
                escaped(labelOf(LabelList::UpstreamStyle, gate.style));
    }
    return made + "</table>";
}

std::string notedLossesPart(const RaceOnPage& race, std::size_t row) {
    std::string notes;
    for (const LossRow& note : race.facts().lossesOf(race.factsOf(row)))
        notes += lossNote(race.facts(), note);
    return notes.empty() ? notes
                         : "<h4>" + said("Time lost, as noted") + "</h4><ul>" + notes + "</ul>";
}

std::string commentsPart(const RaceOnPage& race, std::size_t row) {
    std::string notes;
    const std::vector<std::string>& comments = race.set().alldata[row].sectioninfo.comments;
    for (std::size_t k = 0; k < comments.size(); ++k)
        if (!comments[k].empty())
            notes += "<li><b>" + escaped(race.sectionTitle(k)) + "</b> " + isolated(comments[k]);
    for (const customData020& film : race.set().alldata[row].customData)
        if (!film.comments.empty())
            notes += "<li>" + isolated(film.comments);
    const RunRow& run = race.factsOf(row);
    for (const TagRow& tag : race.facts().tagsOf(run)) {
        notes += "<li><b>" + escaped(race.facts().text(tag.tag)) + "</b>";
        if (tag.film == 0 && std::isfinite(tag.at - run.start))
            notes +=
                ' ' + say("at {} s of the run", saidNumber(hundredthsText(tag.at - run.start)));
    }
    return notes.empty() ? notes : "<h4>" + said("Comments") + "</h4><ul>" + notes + "</ul>";
}

} // namespace kavela::page
