#include "desktop/cross/results/results_page.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/cross/heats/boat_looks.h"
#include "desktop/cross/results/result_table.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr int MostBlocks = 3;    ///< heats beside each other
constexpr int WidestBlock = 560; ///< pixels: numbers stay near their names

QLabel* titleLabel(const QString& text, const QWidget& widget) {
    auto* label = new QLabel(text);
    label->setFont(theme::titleFont(widget));
    return label;
}

/// What a place is worth. Of a heat that is not finished only a later round can tell.
QString outcomeText(const HeatPlace& place, const HeatResult& heat, const RoundResult& round,
                    bool isDecided) {
    if (place.goesOn)
        return ResultsPage::tr("→ goes on");
    if (!heat.isFinished && !isDecided)
        return {};
    if (!round.isFinal)
        return ResultsPage::tr("out");
    return place.finish == 1U ? ResultsPage::tr("★ wins") : QString();
}

/// What is missing in a heat; empty when nothing is.
QString missingText(const HeatResult& heat) {
    const QString gates = joined(heat.gatesWithoutOrder);
    if (!heat.isFinished)
        return gates.isEmpty()
                   ? ResultsPage::tr("⚠ Not finished: no order was taken.")
                   : ResultsPage::tr("⚠ Not finished. Gates without an order: %1.").arg(gates);
    QStringList missing;
    if (!heat.isComplete)
        missing.append(ResultsPage::tr("⚠ Not all boats were seen at the last gate."));
    if (!gates.isEmpty())
        missing.append(ResultsPage::tr("Gates without an order: %1.").arg(gates));
    return missing.join(' ');
}

/// The last rounds by the names of the sport, counted back from the final.
QString roundTitle(std::size_t round, const std::vector<RoundResult>& rounds) {
    const std::size_t fromEnd = rounds.size() - 1 - round;
    if (rounds.back().isFinal) {
        if (fromEnd == 0)
            return rounds.back().heats.size() == 1 ? ResultsPage::tr("Final")
                                                   : ResultsPage::tr("Finals");
        if (fromEnd == 1)
            return ResultsPage::tr("Semifinals");
        if (fromEnd == 2)
            return ResultsPage::tr("Quarterfinals");
    }
    return ResultsPage::tr("Round %1").arg(round + 1);
}

QColor tinted(QColor colour) {
    colour.setAlphaF(0.16F);
    return colour;
}

QString wholeNumber(double count) {
    return QString::number(count);
}

/// A place of a boat, with a dash for none.
Column<PlaceRow> rankColumn(const QString& title, std::optional<std::size_t> HeatPlace::*place) {
    return numberColumn<PlaceRow>(
        title, [place](const PlaceRow& row) { return std::optional<double>(row.place.*place); },
        wholeNumber);
}

/// Places won (1) or lost (-1).
Column<PlaceRow> changeColumn(const QString& title, std::size_t HeatPlace::*places, int way,
                              const QPalette& palette) {
    return {.title = title, .kind = ColumnKind::Number, .show = [=](const PlaceRow& row) {
                const auto count = static_cast<double>(row.place.*places);
                return Cell{.text = wholeNumber(count),
                            .number = count,
                            .colour = changeColour(count > 0 ? way : 0, palette)};
            }};
}

/// Who goes on, or wins, stands on a ground of its own.
ColumnModel<PlaceRow>::Columns placeColumns(const QPalette& palette) {
    const auto boat = [](const PlaceRow& row) {
        return Cell{.text = qtText(row.place.athlete), .badge = row.badge};
    };
    const auto outcome = [palette](const PlaceRow& row) {
        return Cell{.text = row.outcome, .colour = changeColour(row.isAhead ? 1 : 0, palette)};
    };
    ColumnModel<PlaceRow>::Columns columns{
        {.title = ResultsPage::tr("Boat"), .show = boat},
        rankColumn(ResultsPage::tr("Place"), &HeatPlace::finish),
        rankColumn(ResultsPage::tr("Start"), &HeatPlace::start),
        changeColumn(ResultsPage::tr("Gained"), &HeatPlace::gained, 1, palette),
        changeColumn(ResultsPage::tr("Lost"), &HeatPlace::lost, -1, palette),
        {.title = ResultsPage::tr("Outcome"), .show = outcome}};
    for (Column<PlaceRow>& column : columns)
        column.show = [show = column.show,
                       ground = tinted(changeColour(1, palette))](const PlaceRow& row) {
            Cell cell = show(row);
            cell.ground = row.isAhead ? ground : QColor();
            return cell;
        };
    return columns;
}

template <class Row>
Column<Row> attacksColumn(const QString& title, std::size_t Row::*count) {
    return numberColumn<Row>(
        title, [count](const Row& row) { return std::optional(static_cast<double>(row.*count)); },
        wholeNumber);
}

/// The rate is from 0 to 1.
template <class Row>
Column<Row> successColumn(const QString& title,
                          std::function<std::optional<double>(const Row&)> rate) {
    return {.title = title, .kind = ColumnKind::Number, .show = [=](const Row& row) {
                const std::optional<double> value = rate(row);
                return value ? Cell{.text = ResultsPage::tr("%1 %").arg(std::lround(*value * 100)),
                                    .sortValue = *value}
                             : Cell{QStringLiteral("–")};
            }};
}

ColumnModel<AttackRecord>::Columns attackerColumns() {
    return {
        textColumn<AttackRecord>(ResultsPage::tr("Athlete"),
                                 [](const AttackRecord& record) { return qtText(record.athlete); }),
        attacksColumn(ResultsPage::tr("Attacks"), &AttackRecord::attacks),
        attacksColumn(ResultsPage::tr("Succeeded"), &AttackRecord::successes),
        successColumn<AttackRecord>(ResultsPage::tr("Success"), &AttackRecord::attackRate),
        attacksColumn(ResultsPage::tr("Attacked"), &AttackRecord::defences),
        attacksColumn(ResultsPage::tr("Held"), &AttackRecord::held),
        successColumn<AttackRecord>(ResultsPage::tr("Defence"), &AttackRecord::defenceRate)};
}

QString whereText(const AttackPlace& place) {
    const std::string both = !place.place.empty() && !place.side.empty() ? ", " : "";
    const QString where = qtText(place.place + both + place.side);
    return where.isEmpty() ? ResultsPage::tr("not told") : where;
}

ColumnModel<AttackPlace>::Columns attackPlaceColumns() {
    const auto rate = [](const AttackPlace& place) {
        return std::optional(static_cast<double>(place.successes) /
                             static_cast<double>(std::max<std::size_t>(place.attacks, 1)));
    };
    return {textColumn<AttackPlace>(ResultsPage::tr("Where"), whereText),
            attacksColumn(ResultsPage::tr("Attacks"), &AttackPlace::attacks),
            attacksColumn(ResultsPage::tr("Succeeded"), &AttackPlace::successes),
            successColumn<AttackPlace>(ResultsPage::tr("Success"), rate)};
}

} // namespace

ResultsPage::ResultsPage(const CrossDesk& desk)
    : CrossPage(desk),
      m_empty(new QLabel(tr("No results yet: they follow from the orders at the gates that are "
                            "taken on the page of heats."))),
      m_rounds(new QVBoxLayout),
      m_attacks(new QWidget),
      m_attackerRows(new ColumnModel<AttackRecord>(attackerColumns())),
      m_placeRows(new ColumnModel<AttackPlace>(attackPlaceColumns())),
      m_attackers(resultTable(m_attackerRows, "attackers")),
      m_places(resultTable(m_placeRows, "attackPlaces")) {
    makeLayout();
    refresh();
}

void ResultsPage::makeLayout() {
    m_empty->setObjectName("noResults");
    m_empty->setWordWrap(true);
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setSpacing(theme::LargeSpacing);
    column->addWidget(m_empty);
    m_rounds->setSpacing(theme::LargeSpacing);
    column->addLayout(m_rounds);
    makeAttacks(*column);
    column->addStretch();
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(content);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(area);
}

void ResultsPage::makeAttacks(QVBoxLayout& column) {
    auto* grid = new QGridLayout(m_attacks);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::LargeSpacing);
    grid->setVerticalSpacing(theme::SmallSpacing);
    grid->addWidget(titleLabel(tr("Attacks and defences"), *this), 0, 0);
    grid->addWidget(titleLabel(tr("Where attacks succeed"), *this), 0, 1);
    grid->addWidget(m_attackers, 1, 0, Qt::AlignTop);
    grid->addWidget(m_places, 1, 1, Qt::AlignTop);
    grid->setColumnStretch(0, WidestBlock);
    grid->setColumnStretch(1, WidestBlock);
    grid->setColumnStretch(MostBlocks, 1);
    column.addWidget(m_attacks);
    m_attackers->setMaximumWidth(grown(*this, WidestBlock));
    m_places->setMaximumWidth(grown(*this, WidestBlock));
}

void ResultsPage::changeEvent(QEvent* event) {
    CrossPage::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

void ResultsPage::refresh() {
    showRounds();
    showAttacks();
}

void ResultsPage::showRounds() {
    while (QLayoutItem* const item = m_rounds->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    m_tables.clear();
    const std::vector<RoundResult> rounds = crossResults(m_desk.cross());
    m_empty->setVisible(rounds.empty());
    for (std::size_t round = 0; round < rounds.size(); ++round)
        addRound(rounds[round], roundTitle(round, rounds), round + 1 < rounds.size());
}

void ResultsPage::addRound(const RoundResult& round, const QString& title, bool isDecided) {
    auto* block = new QWidget;
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::LargeSpacing);
    grid->setVerticalSpacing(theme::SmallSpacing);
    grid->addWidget(titleLabel(title, *this), 0, 0, 1, MostBlocks);
    const int heats = static_cast<int>(round.heats.size());
    const int across = heats == 4 ? 2 : std::min(heats, MostBlocks);
    for (int heat = 0; heat < heats; ++heat)
        grid->addWidget(heatBlock(round.heats[static_cast<std::size_t>(heat)], round, isDecided),
                        1 + heat / across, heat % across, Qt::AlignTop);
    for (int column = 0; column < std::max(across, 2); ++column)
        grid->setColumnStretch(column, WidestBlock);
    grid->setColumnStretch(MostBlocks, 1);
    m_rounds->addWidget(block);
}

std::vector<PlaceRow> ResultsPage::rowsOf(const HeatResult& heat, const RoundResult& round,
                                          bool isDecided) const {
    const auto& athletes = m_desk.cross().eliphase.at(heat.heat).athletes;
    const std::vector<BoatLook> looks = boatLooks(athletes, palette());
    std::vector<PlaceRow> rows;
    for (const HeatPlace& place : heat.places) {
        const bool isWinner = round.isFinal && heat.isFinished && place.finish == 1U;
        rows.push_back({place, badgeOf(lookOf(looks, place.athlete, palette()), *this),
                        outcomeText(place, heat, round, isDecided), place.goesOn || isWinner});
    }
    return rows;
}

QWidget* ResultsPage::heatBlock(const HeatResult& heat, const RoundResult& round, bool isDecided) {
    auto* block = new QWidget;
    block->setMaximumWidth(grown(*this, WidestBlock));
    auto* column = new QVBoxLayout(block);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    auto* title =
        new QLabel(QStringLiteral("<a href=\"#\">%1</a>").arg(tr("Heat %1").arg(heat.heat + 1)));
    title->setObjectName(QStringLiteral("heat%1").arg(heat.heat + 1));
    title->setToolTip(tr("Shows the heat on its film"));
    title->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(title, &QLabel::linkActivated, this,
            [this, place = heat.heat] { emit heatWanted(place); });
    auto* const rows = new ColumnModel<PlaceRow>(placeColumns(palette()));
    rows->show(rowsOf(heat, round, isDecided));
    ColumnTable* const table = resultTable(rows, QStringLiteral("heat%1Places").arg(heat.heat + 1));
    table->remember(m_desk.workspace, "cross/columns/heatPlaces"); // the same for all heats
    m_tables.push_back(table);
    column->addWidget(title);
    column->addWidget(table);
    if (const QString missing = missingText(heat); !missing.isEmpty()) {
        auto* label = new QLabel(missing);
        label->setObjectName(QStringLiteral("heat%1Missing").arg(heat.heat + 1));
        label->setWordWrap(true);
        QPalette colours = label->palette();
        colours.setColor(QPalette::WindowText, missedColour(palette()));
        label->setPalette(colours);
        column->addWidget(label);
    }
    return block;
}

void ResultsPage::showAttacks() {
    const auto& heats = m_desk.cross().eliphase;
    m_attackerRows->show(attackRecords(heats));
    m_placeRows->show(attackPlaces(heats));
    m_attacks->setVisible(!m_attackerRows->rows().empty());
    m_tables.push_back(m_attackers);
    m_tables.push_back(m_places);
}

void ResultsPage::copy() const {
    QStringList texts;
    for (ColumnTable* const table : m_tables) {
        if (table->hasFocus())
            return table->copy();
        if (table->model()->rowCount() > 0)
            texts.append(wholeTableText(*table));
    }
    QApplication::clipboard()->setText(texts.join('\n'));
}

} // namespace kavela::desktop
