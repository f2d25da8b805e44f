#pragma once

#include "splitdata/annotation_labels.h"
#include "splitdata/records.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// What happened at the gates, penalty by penalty. The parallel lists of a file may be of different
/// lengths: an entry exists where at least one of them reaches.
namespace kavela {

/// The lists of a record, in its own order.
enum class PenaltyField { Gate, GateKind, Kind, Pole, Way, Moment, Direction, Style, Eye };

inline constexpr std::size_t PenaltyFields = 9;

/// Which penalty: an entry of one of the run's records, both counted from 0. Good until the next
/// entry is removed.
struct PenaltyHandle {
    std::size_t record = 0;
    std::size_t entry = 0;

    friend bool operator==(const PenaltyHandle&, const PenaltyHandle&) = default;
};

/// A penalty as the file tells it; nothing for a list that does not reach so far.
struct PenaltyEntry {
    PenaltyHandle handle;
    std::array<std::optional<std::int64_t>, PenaltyFields> codes;

    [[nodiscard]] const std::optional<std::int64_t>& operator[](PenaltyField field) const {
        return codes[static_cast<std::size_t>(field)];
    }
};

/// The list of a record that holds a field.
[[nodiscard]] const std::vector<std::int64_t>& listOf(const pendata030& record, PenaltyField field);
[[nodiscard]] std::vector<std::int64_t>& listOf(pendata030& record, PenaltyField field);

/// Entries of a record: as many as its longest list has.
[[nodiscard]] std::size_t entriesIn(const pendata030& record);

/// One entry of a record, also beyond its end.
[[nodiscard]] PenaltyEntry penaltyEntry(const pendata030& record, PenaltyHandle handle);

/// The list of labels of a field; nothing for the gate, which is a number.
[[nodiscard]] std::optional<LabelList> labelListOf(PenaltyField field);

/// All penalties of a run, in the order of the file.
[[nodiscard]] std::vector<PenaltyEntry> penaltyEntries(const athletedata031& run);

} // namespace kavela
