#pragma once

#include "desktop/shell/tables/column_model.h"
#include "results/team_records.h"

namespace kavela::desktop {

/// What was stored of a phase.
struct PhaseAverages {
    QString scope;
    mtAverageDataStruct average;
};

/// The stored averages per phase: of one season, then of all seasons of the category.
class AveragesModel : public ColumnModel<PhaseAverages> {
public:
    explicit AveragesModel(QObject* parent = nullptr);

    /// Either may be null.
    void show(const mtSeasonStruct* season, const mtCatsStruct* category);
};

} // namespace kavela::desktop
