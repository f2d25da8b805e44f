#include "desktop/shell/tile_columns.h"

#include "desktop/shell/theme.h"
#include "desktop/shell/tile.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int PartColumns = 2; ///< that the part of its own is as wide as, where there are so many
constexpr int PartRows = 2;    ///< at least

QLabel* headingOf(const QString& title, QWidget& over) {
    auto* const heading = new QLabel(title, &over);
    heading->setFont(theme::titleFont(over));
    heading->setForegroundRole(QPalette::PlaceholderText);
    return heading;
}

} // namespace

TileColumns::TileColumns(const Tools& tools, QWidget* part, QWidget* parent)
    : QWidget(parent), m_part(part) {
    m_part->setParent(this);
    QStringList purposes;
    for (const ToolGroup& group : tools)
        for (const Tool& tool : group.tools)
            purposes.append(tool.purpose);
    const int lines = Tile::linesFor(purposes, *this);
    for (const ToolGroup& group : tools) {
        m_groups.push_back({headingOf(group.title, *this)});
        for (const Tool& tool : group.tools)
            m_groups.back().push_back(new Tile(tool, lines, this));
    }
    place(std::max(1, static_cast<int>(m_groups.size())));
}

/// The width of a single column, whatever the columns are now: what is above would else never make
/// this so narrow that they fold.
QSize TileColumns::minimumSizeHint() const {
    int width = 0;
    for (const Group& group : m_groups)
        for (const QWidget* const line : group)
            width = std::max(width, line->minimumSizeHint().width());
    return {width, QWidget::minimumSizeHint().height()};
}

int TileColumns::columnsFor(int width) const {
    const int least = minimumSizeHint().width() + theme::LargeSpacing;
    return std::clamp((width + theme::LargeSpacing) / std::max(1, least), 1,
                      std::max(1, static_cast<int>(m_groups.size())));
}

void TileColumns::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (const int columns = columnsFor(width()); columns != m_columns)
        place(columns);
}

/// Of the highest of these groups, with its heading.
int TileColumns::rowsOf(std::size_t first, std::size_t end) const {
    std::size_t rows = 0;
    for (std::size_t group = first; group < std::min(end, m_groups.size()); ++group)
        rows = std::max(rows, m_groups[group].size());
    return static_cast<int>(rows);
}

void TileColumns::place(int columns) {
    m_columns = columns;
    delete layout(); // a grid keeps the columns that it once had
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::LargeSpacing);
    grid->setVerticalSpacing(theme::Spacing);
    const auto beside = static_cast<std::size_t>(columns);
    int top = 0;          ///< of a row of groups
    std::size_t last = 0; ///< the first group of the last row
    for (std::size_t first = 0; first < m_groups.size(); first += beside) {
        top += rowsOf(last, first);
        last = first;
        for (std::size_t group = first; group < std::min(first + beside, m_groups.size()); ++group)
            for (std::size_t line = 0; line < m_groups[group].size(); ++line)
                grid->addWidget(m_groups[group][line], top + static_cast<int>(line),
                                static_cast<int>(group - first));
    }
    const int taken = static_cast<int>(m_groups.size() - last);
    const int wide = std::min(PartColumns, columns);
    const int left = taken < columns ? taken : columns - wide;
    const int below =
        taken < columns ? 0 : rowsOf(last + static_cast<std::size_t>(left), m_groups.size());
    grid->addWidget(m_part, top + below, left,
                    std::max(PartRows, rowsOf(last, m_groups.size()) - below),
                    taken < columns ? columns - taken : wide);
    grid->setColumnStretch(columns, 1);
    updateGeometry();
}

} // namespace kavela::desktop
