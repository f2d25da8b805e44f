#pragma once

#include "desktop/shell/tool.h"

#include <QWidget>

#include <vector>

namespace kavela::desktop {

/// The tools as tiles, a column for each group. Where not all groups fit beside each other, the
/// last ones come below the first, and only as many columns are asked for as one.
class TileColumns : public QWidget {
    Q_OBJECT

public:
    /// A part of its own stands where the columns leave room: below the last two, or in a row of
    /// groups that is not full. It is the first that Tab comes to; this owns it.
    TileColumns(const Tools& tools, QWidget* part, QWidget* parent = nullptr);

    /// How many groups stand beside each other.
    [[nodiscard]] int columns() const { return m_columns; }

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    using Group = std::vector<QWidget*>; ///< the heading, then its tiles

    [[nodiscard]] int columnsFor(int width) const;
    [[nodiscard]] int rowsOf(std::size_t first, std::size_t end) const;
    void place(int columns);

    QWidget* m_part;
    std::vector<Group> m_groups;
    int m_columns = 0;
};

} // namespace kavela::desktop
