#pragma once

#include "splitdata/cross_records.h"
#include "splittaking/annotations/cross_trials.h"

/// The elimination heats of a cross race: the order of the boats at each gate, attacks and
/// defences. Places in lists are counted from 0; edits throw std::out_of_range for a place that
/// does not exist.
namespace kavela {

/// Adds a heat. Returns its place. Throws std::invalid_argument for more than BoatsInHeat boats,
/// none, and a boat named twice.
std::size_t addHeat(crossdata030& cross, std::string videoname, std::vector<std::string> athletes);

void removeHeat(crossdata030& cross, std::size_t heat);

/// Another spelling of an athlete in the heat, its orders and actions. Throws std::invalid_argument
/// when another boat of the heat has that name.
void renameBoat(rounddata030& heat, std::size_t boat, std::string name);

/// Place of the order at a gate; the last one where a file has several. Nothing when it was not
/// taken.
[[nodiscard]] std::optional<std::size_t> orderAt(const rounddata030& heat, std::int64_t gate);

/// Notes the order at a gate, the first boat first, boats not seen left out. A gate without an
/// order gets its place in the order of the course; one noted before keeps its comments. Throws
/// std::out_of_range for a gate that is not on the cross course, std::invalid_argument with the
/// fault for the coach when a boat is not of the heat or stands there twice.
void setOrder(rounddata030& heat, const crossinfodata030& course, std::int64_t gate,
              std::vector<std::string> order, const CMTime& moment);

void moveOrder(rounddata030& heat, std::size_t place, const CMTime& moment);
void removeOrder(rounddata030& heat, std::size_t place);

/// The order with which a coach begins at a gate: the one at the gate before, or the start list.
[[nodiscard]] std::vector<std::string>
likelyOrder(const rounddata030& heat, const crossinfodata030& course, std::int64_t gate);

/// Adds an attack where its first moment belongs. Returns its place. Throws std::invalid_argument
/// when attacker and defenders are not boats of the heat, or the attacker defends.
std::size_t addAction(rounddata030& heat, actiondata030 action);

/// Replaces an attack by another; returns its new place. Throws as addAction(), leaving the heat as
/// it was.
std::size_t changeAction(rounddata030& heat, std::size_t place, actiondata030 action);

void removeAction(rounddata030& heat, std::size_t place);

/// What in a heat of a file does not fit together, one line each, for the coach.
[[nodiscard]] std::vector<std::string> faultsOf(const rounddata030& heat,
                                                const crossinfodata030& course);

} // namespace kavela
