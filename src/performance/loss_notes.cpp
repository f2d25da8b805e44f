#include "performance/loss_notes.h"

#include "analysis/cell_text.h"
#include "performance/loss_rules.h"
#include "performance/loss_sides.h"
#include "splitdata/annotation_labels.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>
#include <utility>

namespace kavela {

namespace {

/// A field of a note that holds a code.
struct NotedCode {
    std::string_view field;
    LabelList list;
    std::int32_t LossRow::*code;
};

constexpr std::array NotedCodes{
    NotedCode{"combination", LabelList::LossGateCombination, &LossRow::gateCombination},
    NotedCode{"detail", LabelList::LossGateDetails, &LossRow::gateDetails},
    NotedCode{"style", LabelList::LossStyle, &LossRow::style},
    NotedCode{"water", LabelList::LossWaterFeature, &LossRow::waterFeature},
};

bool isFinishedNote(const LossRow& note) {
    return std::isfinite(note.lost) && note.lost != 0;
}

/// The id of a code's label, or the code itself where the list has none.
std::string labelKey(LabelList list, std::int32_t code) {
    const auto labels = labelsOf(list);
    const bool isKnown = code >= 0 && static_cast<std::size_t>(code) < labels.size();
    return isKnown ? std::string(labels[static_cast<std::size_t>(code)].id) : std::to_string(code);
}

Place notePlace(const FactStore& facts, std::size_t run, std::size_t entry) {
    Place place = lossPlace(facts, run);
    place.entry = entry;
    return place;
}

class LossNoteCount {
public:
    LossNoteCount(const FactStore& facts, const LossNoteQuestion& question, Why* why)
        : m_facts(facts), m_question(question), m_why(why) {}

    void add(std::size_t run) {
        const auto notes = m_facts.lossesOf(m_facts.runs()[run]);
        for (std::size_t entry = 0; entry < notes.size(); ++entry) {
            if (isFinishedNote(notes[entry]))
                addNote(notes[entry], notePlace(m_facts, run, entry));
            else
                ++m_notes.unfinished;
        }
    }

    [[nodiscard]] LossNotes result() {
        std::ranges::stable_sort(m_notes.rows, [this](const LossNoteRow& a, const LossNoteRow& b) {
            const std::size_t first = m_fields.at(a.field);
            const std::size_t second = m_fields.at(b.field);
            return first != second ? first < second : a.lost > b.lost;
        });
        for (const LossNoteRow& row : m_notes.rows)
            tellRow(row);
        return std::move(m_notes);
    }

private:
    void addNote(const LossRow& note, const Place& place) {
        for (const NotedCode& noted : NotedCodes) {
            const std::int32_t code = note.*noted.code;
            const std::string key = labelKey(noted.list, code);
            addTo(noted.field, key, {key, labelOf(noted.list, code)}, note.lost, place);
        }
        std::vector<std::string> reasons = m_facts.lines(note.reasons);
        if (reasons.empty())
            reasons.emplace_back();
        const double share = note.lost / static_cast<double>(reasons.size());
        for (const std::string& reason : reasons)
            addTo("reason", reason, {reason, reason}, share, place);
        const std::string versus(m_facts.text(note.versus));
        addTo("versus", crewKey(versus), {versus, versus}, note.lost, place);
    }

    struct Named {
        std::string key;
        std::string text;
    };

    void addTo(std::string_view field, const std::string& identity, Named named, double lost,
               const Place& place) {
        m_fields.try_emplace(std::string(field), m_fields.size());
        const auto [found, isNew] =
            m_rows.try_emplace(std::string(field) + '/' + identity, m_notes.rows.size());
        if (isNew)
            m_notes.rows.push_back(
                {std::string(field), std::move(named.key), std::move(named.text)});
        LossNoteRow& row = m_notes.rows[found->second];
        ++row.count;
        (lost > 0 ? row.lost : row.gained) += lost;
        if (m_why && isAsked(row))
            tellNote(row.text.empty() ? "note" : row.text, lost, place);
    }

    [[nodiscard]] bool isAsked(const LossNoteRow& row) const {
        return row.field == m_question.field && row.key == m_question.key;
    }

    void tellNote(const std::string& name, double lost, const Place& place) {
        if (m_question.number == LossNoteNumber::Count)
            m_why->input(name, 1, place);
        else if ((lost < 0) == (m_question.number == LossNoteNumber::Gained))
            m_why->input(name, lost, place);
    }

    void tellRow(const LossNoteRow& row) {
        if (!m_why || !isAsked(row))
            return;
        const bool isGained = m_question.number == LossNoteNumber::Gained;
        const double sum = isGained ? row.gained : row.lost;
        if (m_question.number == LossNoteNumber::Count)
            m_why->result(ruleOf(LossRule::NotesCounted), static_cast<double>(row.count),
                          std::to_string(row.count));
        else
            m_why->result(ruleOf(isGained ? LossRule::NotesGained : LossRule::NotesLost), sum,
                          signedHundredths(sum));
    }

    const FactStore& m_facts;
    LossNoteQuestion m_question;
    Why* m_why;
    LossNotes m_notes;
    std::unordered_map<std::string, std::size_t> m_rows;
    std::unordered_map<std::string, std::size_t> m_fields; ///< in the order of a note
};

} // namespace

LossNotes lossNotesOf(const FactStore& facts, std::span<const std::size_t> runs,
                      const LossNoteQuestion& question, Why* why) {
    LossNoteCount count(facts, question, why);
    for (const std::size_t run : runs)
        count.add(run);
    return count.result();
}

double notedAgainst(const FactStore& facts, std::size_t run, std::size_t versus, Why* why) {
    const std::string_view crew = facts.text(facts.runs()[versus].crewKey);
    const auto notes = facts.lossesOf(facts.runs()[run]);
    double sum = 0;
    for (std::size_t entry = 0; entry < notes.size(); ++entry) {
        if (!isFinishedNote(notes[entry]) || crewKey(facts.text(notes[entry].versus)) != crew)
            continue;
        sum += notes[entry].lost;
        if (why)
            why->input("note", notes[entry].lost, notePlace(facts, run, entry));
    }
    return sum;
}

} // namespace kavela
