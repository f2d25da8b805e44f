#pragma once

#include "desktop/losses/loss_state.h"

#include <QString>

/// What the window of losses says, made from its figures.
namespace kavela::desktop {

/// A text of the store.
[[nodiscard]] QString factText(const FactStore& facts, TextId id);

/// Hundredths and seconds with a sign, the decimal sign of the system in them: "+1.02".
[[nodiscard]] QString shownSigned(std::int64_t hundredths);
[[nodiscard]] QString shownSignedSeconds(double seconds);
/// "+9.6 %"
[[nodiscard]] QString shownPercent(double percent);

/// "Ondřej Skalboř, Final"
[[nodiscard]] QString runTitle(const FactStore& facts, std::size_t run);
/// With its category, and its race where there are several: as it is chosen from a list.
[[nodiscard]] QString runChoice(const FactStore& facts, std::size_t run);
/// "S5", "S3-4"
[[nodiscard]] QString stretchTitle(const Stretch& stretch);

/// "winner", "ideal run"; of a rival, who it is.
[[nodiscard]] QString referenceTitle(const LossState& state);
[[nodiscard]] QString referenceTitle(LossReferenceKind kind);

/// "Ondřej Skalboř, Final  +1.46 on winner"; what stands in the way where there is no gap.
[[nodiscard]] QString gapSentence(const LossState& state);
/// "Explained by notes: 1.02 of 1.40 (73 %)"; empty where nothing is noted against the reference.
[[nodiscard]] QString explainedSentence(const LossState& state);

/// What the charts show, each in one sentence.
[[nodiscard]] QString waterfallSentence(const LossState& state);
[[nodiscard]] QString paretoSentence(const LossState& state);
[[nodiscard]] QString heatSentence(const LossState& state, const LossHeatMap& map);
[[nodiscard]] QString growthSentence(const LossState& state, const CumulativeGap& gap);

/// Why there is nothing to hold the run against, or no run; empty where there is.
[[nodiscard]] QString nothingToShow(const LossState& state);

} // namespace kavela::desktop
