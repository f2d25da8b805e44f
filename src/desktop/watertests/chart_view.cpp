#include "desktop/watertests/chart_view.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/watertests/chart_card.h"
#include "desktop/watertests/eight_texts.h"
#include "planning/test_entry.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QTabBar>

#include <algorithm>
#include <limits>

namespace kavela::desktop {

namespace {

constexpr int ColumnsOfCards = 2;

/// What the charts are of.
QString headingOf(const TestList& tests) {
    if (tests.empty())
        return ChartView::tr("No test yet");
    const ListedTest& first = *tests.front();
    if (tests.size() == 1)
        return first.title() + ": " + kindText(first.kind());
    const bool isOneAthlete = std::ranges::all_of(
        tests, [&](const auto& test) { return test->athlete() == first.athlete(); });
    return ChartView::tr("%1 × %2")
        .arg(tests.size())
        .arg(isOneAthlete ? kindText(first.kind()) + ", " + first.athlete()
                          : kindText(first.kind()));
}

/// The run of an eight, split by split.
std::vector<Column<ShownTest>> scoreColumns() {
    std::vector<Column<ShownTest>> columns;
    columns.push_back(textColumn<ShownTest>(ChartView::tr("Test"),
                                            [](const ShownTest& shown) { return shown.name; }));
    const auto add = [&](const QString& title, std::function<QString(const datafor8&)> text) {
        columns.push_back({.title = title,
                           .kind = ColumnKind::Number,
                           .show = [text = std::move(text)](const ShownTest& shown) {
                               return Cell{.text = text(shown.test->eight()->run)};
                           }});
    };
    for (std::size_t split = 0; split < 5; ++split)
        add(ChartView::tr("Split %1 (s)").arg(split + 1), [split](const datafor8& run) {
            const auto splits = splitsOf(run);
            return split < splits.size() ? hundredthsOrDash(splits[split]) : QString();
        });
    add(ChartView::tr("Total (s)"), [](const datafor8& run) { return totalText(run); });
    add(ChartView::tr("Standard deviation (s)"),
        [](const datafor8& run) { return deviationText(run); });
    return columns;
}

} // namespace

ChartView::ChartView(QWidget* parent)
    : QWidget(parent),
      m_groups(new QTabBar),
      m_heading(new QLabel),
      m_note(new QLabel),
      m_runs(scoreColumns()),
      m_scores(new ColumnTable(m_runs, "scores")),
      m_scroll(new QScrollArea) {
    m_groups->setObjectName("groups");
    m_groups->setExpanding(false);
    m_heading->setObjectName("heading");
    m_heading->setFont(theme::titleFont(*this));
    m_heading->setWordWrap(true);
    m_groups->setDrawBase(false);
    for (const QString& title : {tr("Laps"), tr("Turns"), tr("Strokes")})
        m_groups->addTab(title);
    m_note->setObjectName("note");
    m_note->setWordWrap(true);
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_scores->setOnlyShown();
    m_scores->stretch({0});
    m_scores->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layOut();
    connect(m_groups, &QTabBar::currentChanged, this, [this] {
        fill();
        m_scroll->ensureVisible(0, 0);
    });
}

void ChartView::layOut() {
    auto* content = new QWidget;
    m_grid = new QGridLayout(content);
    m_grid->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    m_grid->setSpacing(theme::LargeSpacing);
    for (int column = 0; column < ColumnsOfCards; ++column)
        m_grid->setColumnStretch(column, 1);
    m_scroll->setWidget(content);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, theme::Spacing, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_heading);
    column->addWidget(m_note);
    column->addWidget(m_groups);
    column->addWidget(m_scores);
    column->addWidget(m_scroll, 1);
}

ChartGroup ChartView::group() const {
    return static_cast<ChartGroup>(m_groups->currentIndex());
}

void ChartView::showGroup(ChartGroup group) {
    m_groups->setCurrentIndex(static_cast<int>(group));
}

void ChartView::showTests(const TestList& tests, const QString& note) {
    m_tests = shownTests(tests);
    m_heading->setText(headingOf(tests));
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    const bool isEight = !tests.empty() && tests.front()->kind() == TestKind::Eight;
    const bool isSprint = !tests.empty() && tests.front()->kind() == TestKind::Sprint;
    m_groups->setVisible(!isEight && !tests.empty());
    m_groups->setTabText(0, isSprint ? tr("Stretches") : tr("Laps"));
    m_groups->setTabVisible(static_cast<int>(ChartGroup::Turns), !isSprint);
    m_scores->setVisible(isEight);
    m_scroll->setVisible(!tests.empty());
    fill();
}

std::vector<ChartCard*> ChartView::cards() const {
    return {m_cards.begin(), m_cards.begin() + static_cast<std::ptrdiff_t>(m_shownCards)};
}

ChartCard& ChartView::cardAt(std::size_t index) {
    while (m_cards.size() <= index) {
        auto* card = new ChartCard;
        m_cards.push_back(card);
        const SeriesChart& chart = card->chart();
        connect(&chart, &SeriesChart::hoveredAt, this,
                [this, &chart](double x) { moveCursors(chart, x); });
        connect(&chart, &SeriesChart::hoverEnded, this,
                [this, &chart] { moveCursors(chart, std::numeric_limits<double>::quiet_NaN()); });
    }
    return *m_cards[index];
}

/// One cursor runs through the charts that have the same measure across.
void ChartView::moveCursors(const SeriesChart& from, double x) {
    for (ChartCard* card : cards())
        if (&card->chart() != &from && card->chart().content().xTitle == from.content().xTitle)
            card->chart().showCursorAt(x);
}

void ChartView::fill() {
    const bool isEight = !m_tests.empty() && m_tests.front().test->kind() == TestKind::Eight;
    std::vector<TestChart> charts = isEight ? eightCharts(m_tests) : runCharts(m_tests, group());
    m_shownCards = charts.size();
    int place = 0;
    for (std::size_t i = 0; i < charts.size(); ++i) {
        ChartCard& card = cardAt(i);
        const bool isWide = charts[i].content.across == ChartContent::Across::Number && isEight;
        m_grid->removeWidget(&card);
        m_grid->addWidget(&card, place / ColumnsOfCards, place % ColumnsOfCards, 1,
                          isWide ? ColumnsOfCards : 1);
        place += isWide ? ColumnsOfCards : 1;
        card.showChart(std::move(charts[i]));
        card.setVisible(true);
    }
    for (std::size_t i = charts.size(); i < m_cards.size(); ++i)
        m_cards[i]->setVisible(false);
    if (isEight)
        showScores();
}

void ChartView::showScores() {
    m_runs.show(m_tests);
    const int rows = std::min(m_runs.rowCount(), 8);
    m_scores->setFixedHeight(m_scores->horizontalHeader()->sizeHint().height() +
                             rows * m_scores->verticalHeader()->defaultSectionSize() +
                             2 * m_scores->frameWidth());
}

} // namespace kavela::desktop
