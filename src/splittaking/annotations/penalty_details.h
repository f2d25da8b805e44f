#pragma once

#include "splitdata/annotation_labels.h"
#include "splitdata/records.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/// What happened at the gates, penalty by penalty, kept in step with the penalty seconds of the
/// run. The parallel lists of a file may be of different lengths: an entry exists where at least
/// one of them reaches, and an edit fills up with 0 only the lists that it writes to.
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

/// A penalty to be added: a gate of the course and codes of the lists of annotation_labels.h.
struct PenaltyDetail {
    std::int64_t gate = 0;
    std::int64_t gatekind = 0;
    std::int64_t penkind = 0;
    std::int64_t polekind = 0;
    std::int64_t penway = 0;
    std::int64_t moment = 0;
    std::int64_t direction = 0;
    std::int64_t style = 0;
    std::int64_t eye = 0;
};

/// A penalty as the file tells it; nothing for a list that does not reach so far.
struct PenaltyEntry {
    PenaltyHandle handle;
    std::array<std::optional<std::int64_t>, PenaltyFields> codes;

    [[nodiscard]] const std::optional<std::int64_t>& operator[](PenaltyField field) const {
        return codes[static_cast<std::size_t>(field)];
    }
};

/// The list of labels of a field; nothing for the gate, which is a number.
[[nodiscard]] std::optional<LabelList> labelListOf(PenaltyField field);

/// All penalties of a run, in the order of the file.
[[nodiscard]] std::vector<PenaltyEntry> penaltyEntries(const athletedata031& run);

/// Adds a penalty behind the run's other ones and gives its gate the seconds of the worst penalty
/// there. Throws std::out_of_range for a gate that is not on the course of `gates` gates.
PenaltyHandle addPenalty(athletedata031& run, const PenaltyDetail& detail, std::int64_t gates);

/// Changes one value of a penalty. A new kind or gate changes the seconds at the gates concerned;
/// nothing else does. Throws std::out_of_range for a penalty that does not exist, and for a new
/// gate that is not on the course.
void changePenalty(athletedata031& run, PenaltyHandle handle, PenaltyField field,
                   std::int64_t value, std::int64_t gates);

/// Removes a penalty, and its record with the last one in it. The seconds of the gate become those
/// of the penalties left there, none without any. Throws std::out_of_range for a penalty that does
/// not exist.
void removePenalty(athletedata031& run, PenaltyHandle handle, std::int64_t gates);

/// Sets the seconds at a gate (0, 2 or 50) and brings the details there in step: without a penalty
/// they go; of a touch that became a missed gate the last one becomes that, of a missed gate that
/// became a touch all, those that then say the same as another one going. Throws std::out_of_range
/// for a gate that is not on the course.
void setPenaltyAndDetails(athletedata031& run, std::int64_t gate, std::int64_t seconds,
                          std::int64_t gates);

/// Gates, ascending, whose seconds differ from what the details there say; a gate without details
/// is none of them.
[[nodiscard]] std::vector<std::int64_t> gatesOutOfStep(const athletedata031& run,
                                                       std::int64_t gates);

} // namespace kavela
