#include "desktop/tracking/known_points_page.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"

#include <QLabel>
#include <QVBoxLayout>

#include <iterator>
#include <utility>

namespace kavela::desktop {

KnownPointsPage::KnownPointsPage(TrackDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_points(pointColumns(), RowsKnownBy::Number),
      m_table(new ColumnTable(m_points, "knownPoints")),
      m_told(new QLabel) {
    m_table->keepOrder();
    m_table->setEmptyText(tr("No known point yet. Tick Path > Click known points, then click the "
                             "foot of a gate's poles in the picture."));
    m_table->setRemove(tr("&Take it away"),
                       [this](const std::vector<int>& places) { remove(places); });
    m_told->setWordWrap(true);
    m_told->setTextFormat(Qt::PlainText);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, theme::Spacing, 0, 0);
    column->addWidget(m_table, 1);
    column->addWidget(m_told);
}

/// From the last one on, so that the places of the others stay theirs.
void KnownPointsPage::remove(const std::vector<int>& places) {
    m_document.edit(tr("removal of a known point"), [&](track001& record) {
        for (auto place = places.rbegin(); place != places.rend(); ++place)
            if (*place < std::ssize(record.plane.points))
                record.plane.points.erase(record.plane.points.begin() + *place);
    });
}

std::vector<Column<KnownPointsPage::PointRow>> KnownPointsPage::pointColumns() {
    const auto metres = [this](const QString& title, double trackplanepoint001::*member) {
        Column<PointRow> column;
        column.title = title;
        column.unit = "m";
        column.kind = ColumnKind::Number;
        column.show = [member](const PointRow& row) {
            return Cell{.text = shownNumber(row.point.*member), .number = row.point.*member};
        };
        column.take = [this, member](const std::size_t& place, const PointRow&,
                                     const QString& typed) {
            const double value = typedReal(
                typed, {-10'000, 10'000,
                        tr("A place on the water is a number of metres, -10000 to 10000")});
            m_document.edit(tr("metres of a known point"), [&](track001& record) {
                if (place < record.plane.points.size())
                    record.plane.points[place].*member = value;
            });
        };
        return column;
    };
    return {textColumn<PointRow>(
                tr("Point"), [](const PointRow& row) { return QString::number(row.number + 1); }),
            metres(tr("Across"), &trackplanepoint001::metresX),
            metres(tr("Along"), &trackplanepoint001::metresY)};
}

void KnownPointsPage::showPoints() {
    const std::vector<trackplanepoint001>& points = m_document.value().plane.points;
    std::vector<PointRow> rows;
    for (std::size_t i = 0; i < points.size(); ++i)
        rows.push_back({i, points[i]});
    m_points.show(std::move(rows));
}

void KnownPointsPage::tell(const QString& text) {
    m_told->setText(text);
}

} // namespace kavela::desktop
