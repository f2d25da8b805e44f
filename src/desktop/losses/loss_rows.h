#pragma once

#include "common/why.h"
#include "desktop/shell/tables/column_model.h"
#include "performance/loss_notes.h"
#include "performance/loss_ways.h"
#include "performance/losses.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// The rows of the tables of losses and what their columns show.
namespace kavela::desktop {

class LossState;

struct StretchLine {
    Stretch stretch;
    std::int64_t shown = 0; ///< hundredths: all of them add up to what is shown on top
    bool hasClip = false;   ///< of the run itself
};

struct RunLine {
    RunLosses losses;
    QString crew;
    QString phase;
    std::optional<int> rank;
    std::optional<double> total;
    bool isReference = false;
};

struct GateLine {
    GateLoss gate;
    QString section; ///< a dash where it hangs in none
    QString direction;
    QString style;
};

struct NoteLine {
    LossNoteRow note;
};

struct WayLine {
    WayCost way;
};

using StretchModel = ColumnModel<StretchLine>;
using RunModel = ColumnModel<RunLine>;
using GateModel = ColumnModel<GateLine>;
using NoteModel = ColumnModel<NoteLine>;
using WayModel = ColumnModel<WayLine>;

[[nodiscard]] std::vector<StretchLine> stretchLines(const LossState& state);
[[nodiscard]] std::vector<RunLine> runLines(const LossState& state);
[[nodiscard]] std::vector<GateLine> gateLines(const LossState& state);
[[nodiscard]] std::vector<NoteLine> noteLines(const LossState& state);
[[nodiscard]] std::vector<WayLine> wayLines(const LossState& state);

/// The columns of the stretches; `gates` of them are for gates.
[[nodiscard]] StretchModel::Columns stretchColumns(std::size_t gates);
/// A tick makes a run the reference.
[[nodiscard]] RunModel::Columns runColumns(std::function<void(std::size_t run)> makeReference);
[[nodiscard]] GateModel::Columns gateColumns();
[[nodiscard]] NoteModel::Columns noteColumns();
[[nodiscard]] WayModel::Columns wayColumns();
/// The most upstream gates that one of the stretches has; at least 1.
[[nodiscard]] std::size_t mostGates(const RunLosses& losses);

/// How the number in a column came about; nothing where there is none that could be asked for.
[[nodiscard]] std::optional<Reason> whyOf(const LossState& state, const StretchLine& line,
                                          int column, std::size_t gates);
[[nodiscard]] std::optional<Reason> whyOf(const LossState& state, const RunLine& line, int column);
[[nodiscard]] std::optional<Reason> whyOf(const LossState& state, const GateLine& line, int column);
[[nodiscard]] std::optional<Reason> whyOf(const LossState& state, const NoteLine& line, int column);
[[nodiscard]] std::optional<Reason> whyOf(const LossState& state, const WayLine& line, int column);

} // namespace kavela::desktop
