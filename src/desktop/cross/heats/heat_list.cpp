#include "desktop/cross/heats/heat_list.h"

#include "desktop/cross/heats/heat_buttons.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/taking_document.h"
#include "splittaking/annotations/cross_heats.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int LeastListHeight = 84; ///< pixels

QString filmText(const TakingDocument& document, const std::string& name) {
    const QString film = qtText(name);
    if (film.isEmpty())
        return HeatList::tr("none");
    return QFileInfo(document.pathOf(name)).isFile() ? film
                                                     : HeatList::tr("⚠ missing: %1").arg(film);
}

QString takenText(const rounddata030& heat, const crossinfodata030& course) {
    const auto taken = std::ranges::count_if(
        course.gates, [&](std::int64_t gate) { return orderAt(heat, gate).has_value(); });
    return HeatList::tr("%1 of %2 gates").arg(taken).arg(course.gates.size());
}

/// What does not fit its column is told by its tip.
Column<HeatRow> tippedColumn(const QString& title, QString HeatRow::*text) {
    return {.title = title, .show = [text](const HeatRow& row) {
                return Cell{.text = row.*text, .tip = row.*text};
            }};
}

std::vector<Column<HeatRow>> heatColumns() {
    return {{.title = HeatList::tr("Heat"),
             .kind = ColumnKind::Number,
             .show =
                 [](const HeatRow& row) {
                     return Cell{.text = QString::number(row.place + 1),
                                 .number = static_cast<double>(row.place + 1)};
                 }},
            tippedColumn(HeatList::tr("Boats"), &HeatRow::boats),
            tippedColumn(HeatList::tr("Film"), &HeatRow::film),
            tippedColumn(HeatList::tr("Taken"), &HeatRow::taken)};
}

} // namespace

HeatList::HeatList(QWidget* parent)
    : QWidget(parent),
      m_rows(heatColumns(), RowsKnownBy::Number),
      m_table(filmTable(m_rows, "heats")),
      m_buttons(new QWidget) {
    m_table->stretch({1, 2});
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setMinimumHeight(grown(*this, LeastListHeight));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_table);
    makeButtons();
    connect(m_table, &ColumnTable::chosen, this, [this] {
        if (const int place = m_table->currentPlace(); place >= 0)
            emit chosen(static_cast<std::size_t>(place));
    });
}

void HeatList::makeButtons() {
    auto* add = heatButton("addHeat", tr("Add a heat…"), tr("Adds a heat of up to four boats"));
    auto* rename =
        heatButton("renameBoats", tr("Names…"), tr("Other names for the boats of the heat"));
    auto* film = heatButton("heatFilm", tr("Film…"), tr("Chooses the film of the heat"));
    auto* remove =
        heatButton("removeHeat", tr("Remove"), tr("Removes the heat with all its marks"));
    m_ofHeat = {rename, film, remove};
    auto* row = new QHBoxLayout(m_buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::SmallSpacing);
    for (QPushButton* const each : {add, rename, film, remove})
        row->addWidget(each);
    row->addStretch();
    connect(add, &QPushButton::clicked, this, &HeatList::additionWanted);
    connect(rename, &QPushButton::clicked, this, &HeatList::namesWanted);
    connect(film, &QPushButton::clicked, this, &HeatList::filmWanted);
    connect(remove, &QPushButton::clicked, this, &HeatList::removalWanted);
}

void HeatList::setHeats(const TakingDocument& document, std::optional<std::size_t> front) {
    const crossdata030& cross = document.cross();
    std::vector<HeatRow> rows;
    for (const rounddata030& heat : cross.eliphase)
        rows.push_back({rows.size(), joined(heat.athletes), filmText(document, heat.videoname),
                        takenText(heat, cross.crossinfo)});
    const QSignalBlocker blocked(m_table); // the page says which one is in front
    m_rows.show(std::move(rows));
    if (const int place = front ? static_cast<int>(*front) : -1; place != m_table->currentPlace())
        m_table->choose(place, 0);
    for (QPushButton* const each : m_ofHeat)
        each->setEnabled(front.has_value());
}

} // namespace kavela::desktop
