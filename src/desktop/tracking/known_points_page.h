#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/tracking/track_document.h"

#include <QWidget>

#include <cstddef>
#include <vector>

class QLabel;

namespace kavela::desktop {

class ColumnTable;

/// The known points on the water: where each of them stands, in metres, and what they are good for.
class KnownPointsPage : public QWidget {
    Q_OBJECT

public:
    /// The document outlives it.
    explicit KnownPointsPage(TrackDocument& document, QWidget* parent = nullptr);

    /// Shows the points of the document.
    void showPoints();
    /// What is told below them; empty for nothing.
    void tell(const QString& text);
    [[nodiscard]] ColumnTable& table() const { return *m_table; }

private:
    struct PointRow {
        std::size_t number = 0;
        trackplanepoint001 point;
    };
    [[nodiscard]] std::vector<Column<PointRow>> pointColumns();
    void remove(const std::vector<int>& places);

    TrackDocument& m_document;
    ColumnModel<PointRow> m_points;
    ColumnTable* m_table = nullptr;
    QLabel* m_told = nullptr;
};

} // namespace kavela::desktop
