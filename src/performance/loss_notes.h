#pragma once

#include "common/why.h"
#include "facts/fact_store.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Time lost as a coach noted it: against one other crew each, in stretches that may overlap, so it
/// stands beside what the marks tell and in no sum with it.
namespace kavela {

/// What was noted of one thing.
struct LossNoteRow {
    std::string field;     ///< combination, detail, style, water, reason or versus
    std::string key;       ///< the label's id, or the text as first written; empty: not noted
    std::string text;      ///< the key in words
    std::size_t count = 0; ///< finished notes that name it
    double lost = 0;       ///< sum of those above 0
    double gained = 0;     ///< sum of those below 0, below 0 itself
};

struct LossNotes {
    std::size_t unfinished = 0;
    std::vector<LossNoteRow> rows; ///< by field; within one what lost most first
};

/// The numbers of a row of notes.
enum class LossNoteNumber { Lost, Gained, Count };

/// A row of the notes, and which of its numbers.
struct LossNoteQuestion {
    std::string_view field;
    std::string_view key;
    LossNoteNumber number = LossNoteNumber::Lost;
};

/// The notes of some runs.
[[nodiscard]] LossNotes lossNotesOf(const FactStore& facts, std::span<const std::size_t> runs,
                                    const LossNoteQuestion& question = {}, Why* why = nullptr);

/// The sum of a run's notes against the crew of another one.
[[nodiscard]] double notedAgainst(const FactStore& facts, std::size_t run, std::size_t versus,
                                  Why* why = nullptr);

} // namespace kavela
