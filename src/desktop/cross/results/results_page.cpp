#include "desktop/cross/results/results_page.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/cross/heats/boat_looks.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr int FirstNumber = 1; ///< column of the tables: the first holds names
constexpr int OutcomeColumn = 5;
constexpr int MostBlocks = 3;    ///< heats beside each other
constexpr int WidestBlock = 560; ///< pixels: numbers stay near their names

QLabel* titleLabel(const QString& text, const QWidget& widget) {
    auto* label = new QLabel(text);
    label->setFont(theme::titleFont(widget));
    return label;
}

QString placeText(const std::optional<std::size_t>& place) {
    return place ? QString::number(*place) : QStringLiteral("–");
}

QString rateText(const std::optional<double>& rate) {
    return rate ? ResultsPage::tr("%1 %").arg(std::lround(*rate * 100)) : QStringLiteral("–");
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

} // namespace

ResultsPage::ResultsPage(const CrossDesk& desk)
    : CrossPage(desk),
      m_empty(new QLabel(tr("No results yet: they follow from the orders at the gates that are "
                            "taken on the page of heats."))),
      m_rounds(new QVBoxLayout),
      m_attacks(new QWidget),
      m_attackers(resultTable("attackers",
                              {tr("Athlete"), tr("Attacks"), tr("Succeeded"), tr("Success"),
                               tr("Attacked"), tr("Held"), tr("Defence")},
                              FirstNumber)),
      m_places(resultTable("attackPlaces",
                           {tr("Where"), tr("Attacks"), tr("Succeeded"), tr("Success")},
                           FirstNumber)) {
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
    m_attackers->setMaximumWidth(WidestBlock);
    m_places->setMaximumWidth(WidestBlock);
    m_attackers->installEventFilter(this);
    m_places->installEventFilter(this);
}

void ResultsPage::changeEvent(QEvent* event) {
    CrossPage::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

bool ResultsPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return CrossPage::eventFilter(watched, event);
    copy();
    return true;
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

/// Who goes on, or wins, stands on a ground of its own.
std::vector<ResultRow> ResultsPage::rowsOf(const HeatResult& heat, const RoundResult& round,
                                           bool isDecided) const {
    const auto& athletes = m_desk.cross().eliphase.at(heat.heat).athletes;
    const std::vector<BoatLook> looks = boatLooks(athletes, palette());
    const QColor good = changeColour(1, palette());
    const QColor quiet = theme::quietText(palette());
    std::vector<ResultRow> rows;
    for (const HeatPlace& place : heat.places) {
        const QString outcome = outcomeText(place, heat, round, isDecided);
        const bool isWinner = round.isFinal && heat.isFinished && place.finish == 1U;
        ResultRow row{{QString::fromStdString(place.athlete), placeText(place.finish),
                       placeText(place.start), QString::number(place.gained),
                       QString::number(place.lost), outcome},
                      badgeOf(lookOf(looks, place.athlete, palette()), *this),
                      place.goesOn || isWinner ? tinted(good) : QColor(),
                      {}};
        row.colours[3] = place.gained > 0 ? good : quiet;
        row.colours[4] = place.lost > 0 ? changeColour(-1, palette()) : quiet;
        row.colours[OutcomeColumn] = place.goesOn || isWinner ? good : quiet;
        rows.push_back(std::move(row));
    }
    return rows;
}

QWidget* ResultsPage::heatBlock(const HeatResult& heat, const RoundResult& round, bool isDecided) {
    auto* block = new QWidget;
    block->setMaximumWidth(WidestBlock);
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
    QTableWidget* const table =
        resultTable(QStringLiteral("heat%1Places").arg(heat.heat + 1),
                    {tr("Boat"), tr("Place"), tr("Start"), tr("Gained"), tr("Lost"), tr("Outcome")},
                    FirstNumber);
    fillResults(*table, rowsOf(heat, round, isDecided), FirstNumber);
    table->installEventFilter(this);
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
    std::vector<ResultRow> rows;
    for (const AttackRecord& record : attackRecords(heats))
        rows.push_back({{QString::fromStdString(record.athlete), QString::number(record.attacks),
                         QString::number(record.successes), rateText(record.attackRate()),
                         QString::number(record.defences), QString::number(record.held),
                         rateText(record.defenceRate())},
                        {},
                        {},
                        {}});
    m_attacks->setVisible(!rows.empty());
    fillResults(*m_attackers, rows, FirstNumber);
    rows.clear();
    for (const AttackPlace& place : attackPlaces(heats)) {
        const QString where = QString::fromStdString(place.place);
        const QString side = QString::fromStdString(place.side);
        const bool hasBoth = !where.isEmpty() && !side.isEmpty();
        const double rate = static_cast<double>(place.successes) /
                            static_cast<double>(std::max<std::size_t>(place.attacks, 1));
        rows.push_back(
            {{where + (hasBoth ? QStringLiteral(", ") : QString()) + side,
              QString::number(place.attacks), QString::number(place.successes), rateText(rate)},
             {},
             {},
             {}});
        if (rows.back().texts[0].isEmpty())
            rows.back().texts[0] = tr("not told");
    }
    fillResults(*m_places, rows, FirstNumber);
    m_tables.push_back(m_attackers);
    m_tables.push_back(m_places);
}

void ResultsPage::copy() const {
    QStringList texts;
    for (const QTableWidget* const table : m_tables) {
        if (table->hasFocus()) {
            QApplication::clipboard()->setText(copiedText(*table, true));
            return;
        }
        if (table->rowCount() > 0)
            texts.append(copiedText(*table, false));
    }
    QApplication::clipboard()->setText(texts.join('\n'));
}

} // namespace kavela::desktop
