#pragma once

#include "boatmotion/session_table.h"
#include "desktop/shell/tables/column_model.h"

namespace kavela::desktop {

/// A table of a session, whose rows are told by their moments. What is not known is a dash.
class GridModel : public ColumnModel<SessionGrid::Row, double> {
public:
    explicit GridModel(QObject* parent = nullptr);

    void show(SessionGrid grid);
    [[nodiscard]] const SessionGrid& grid() const { return m_grid; }
    /// The last row that begins at a moment or before it; -1 for none.
    [[nodiscard]] int placeAtMoment(double moment) const;

private:
    SessionGrid m_grid;
};

} // namespace kavela::desktop
