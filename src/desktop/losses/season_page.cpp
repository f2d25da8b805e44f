#include "desktop/losses/season_page.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/losses/loss_contents.h"
#include "desktop/losses/loss_state.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/why/why_popup.h"
#include "performance/loss_reasons.h"
#include "splitdata/athlete_keys.h"

#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include <set>

namespace kavela::desktop {

namespace {

enum SeasonColumn { ByAt, WhatAt, RunsAt, LostAt, PercentAt, IntervalAt, PerRunAt, ShareAt };

/// "-0.3 to 4.1 %"; below three runs nothing can be said.
QString rangeText(const std::optional<Interval>& interval, int decimals) {
    return interval ? SeasonPage::tr("%1 to %2")
                          .arg(shownNumber(interval->low, decimals),
                               shownNumber(interval->high, decimals))
                    : SeasonPage::tr("too few");
}

QString meanText(const MeanOf& mean) {
    return mean.n == 0 ? SeasonPage::tr("not known")
                       : QStringLiteral("%1 (%2)").arg(shownSignedSeconds(mean.mean),
                                                       rangeText(mean.interval, 2));
}

Cell seasonNumber(const QString& text, double number) {
    return {.text = text, .number = number};
}

SeasonLossNumber numberIn(int column) {
    switch (column) {
    case PercentAt:
    case IntervalAt:
        return SeasonLossNumber::Percent;
    case RunsAt:
        return SeasonLossNumber::Runs;
    case LostAt:
        return SeasonLossNumber::Loss;
    case PerRunAt:
        return SeasonLossNumber::PerRun;
    case ShareAt:
        return SeasonLossNumber::Share;
    default:
        return SeasonLossNumber::None;
    }
}

} // namespace

SeasonPage::SeasonPage(LossState& state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_rows(rowColumns()),
      m_clips(clipColumns()),
      m_summary(new QLabel),
      m_advice(new QLabel),
      m_table(new ColumnTable(m_rows, "season")),
      m_clipTable(new ColumnTable(m_clips, "train")),
      m_chart(new IntervalChart) {
    for (QLabel* const label : {m_summary, m_advice}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setFocusPolicy(Qt::StrongFocus);
    }
    m_summary->setObjectName("summary");
    m_advice->setObjectName("advice");
    m_table->setEmptyText(tr("No whole run of this athlete can be held against the reference."));
    m_clipTable->setEmptyText(tr("Nothing stands out: there is no clip to choose."));
    makeLayout();
    makeAnswers();
    setFocusProxy(m_table);
    connect(&m_state, &LossState::changed, this, &SeasonPage::noteChange);
    connect(m_table, &ColumnTable::chosen, this, &SeasonPage::showClips);
    connect(m_clipTable, &ColumnTable::activated, this, [this](const QModelIndex& cell) {
        emit clipActivated(m_clips.row(m_clipTable->placeAt(cell)).clip);
    });
    m_clipTable->addCommand(tr("&Show this run"), QKeySequence(Qt::SHIFT | Qt::Key_Return), [this] {
        if (const int place = m_clipTable->currentPlace(); place >= 0)
            emit runActivated(m_clips.row(place).clip.run);
    });
    connect(m_chart, &IntervalChart::markActivated, this, [this](std::size_t row) {
        m_table->choose(static_cast<int>(row));
        m_table->setFocus();
    });
    connect(&m_chart->interaction(), &PlotInteraction::savingFailed, this,
            &SeasonPage::savingFailed);
}

void SeasonPage::makeLayout() {
    auto* const below = new QWidget;
    auto* const train = new QVBoxLayout(below);
    train->setContentsMargins(0, 0, 0, 0);
    train->addWidget(m_advice);
    train->addWidget(m_clipTable, 1);
    auto* const lists = new QSplitter(Qt::Vertical);
    lists->setChildrenCollapsible(false);
    lists->addWidget(m_table);
    lists->addWidget(below);
    shareSizes(*lists, {340, 260});
    auto* const work = new QSplitter;
    work->setChildrenCollapsible(false);
    work->addWidget(lists);
    work->addWidget(m_chart);
    shareSizes(*work, {640, 560});
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::SmallSpacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_summary);
    column->addWidget(work, 1);
}

SeasonPage::Rows::Columns SeasonPage::rowColumns() {
    using Row = SeasonLossRow;
    const auto numbers = [](const QString& title, const QString& tip,
                            std::function<Cell(const Row&)> show) {
        return Column<Row>{.title = title, .tip = tip, .kind = ColumnKind::Number, .show = show};
    };
    return {
        textColumn<Row>(tr("By"), [](const Row& row) { return qtText(row.field); }),
        textColumn<Row>(tr("What"), [](const Row& row) { return qtText(row.text); }),
        numbers(tr("Runs"), {},
                [](const Row& row) {
                    return seasonNumber(QString::number(row.runs), static_cast<double>(row.runs));
                }),
        numbers(
            tr("Lost"), tr("Seconds, of all runs together"),
            [](const Row& row) { return seasonNumber(shownSignedSeconds(row.loss), row.loss); }),
        numbers(tr("Lost, %"), tr("Of the reference's time there"),
                [](const Row& row) {
                    return seasonNumber(shownPercent(row.percent).remove(QStringLiteral(" %")),
                                        row.percent);
                }),
        textColumn<Row>(tr("90 %"), [](const Row& row) { return rangeText(row.interval, 1); }),
        numbers(tr("A run"), tr("Seconds lost in a run on the average"),
                [](const Row& row) {
                    return seasonNumber(shownSignedSeconds(row.perRun), row.perRun);
                }),
        numbers(tr("Of the gap, %"), {},
                [](const Row& row) {
                    return row.share
                               ? seasonNumber(shownNumber(*row.share * 100, 0), *row.share * 100)
                               : Cell{.text = QStringLiteral("–")};
                }),
        Column<Row>{.title = tr("Verdict"),
                    .tip = tr("What the interval says: losing where all of it is above 0"),
                    .show =
                        [](const Row& row) {
                            if (!row.interval)
                                return Cell{.text = tr("too few"), .look = Cell::Look::Quiet};
                            return Cell{.text = qtText(verdictText(row.verdict)),
                                        .look = row.verdict == LossVerdict::Losing
                                                    ? Cell::Look::Bold
                                                    : Cell::Look::Plain};
                        }},
    };
}

SeasonPage::Clips::Columns SeasonPage::clipColumns() {
    using Line = ClipLine;
    return {
        textColumn<Line>(tr("See"), [](const Line& line) { return line.what; }),
        textColumn<Line>(tr("Run"), [](const Line& line) { return line.run; }),
        Column<Line>{.title = tr("Lost"),
                     .kind = ColumnKind::Number,
                     .show =
                         [](const Line& line) {
                             return seasonNumber(shownSignedSeconds(line.clip.loss),
                                                 line.clip.loss);
                         }},
    };
}

void SeasonPage::makeAnswers() {
    answerWhy(m_table, [this](const QModelIndex& cell) -> std::optional<Reason> {
        const SeasonLossRow& row = m_rows.row(m_table->placeAt(cell));
        const SeasonLossNumber number = numberIn(cell.column());
        return number == SeasonLossNumber::None
                   ? std::nullopt
                   : explainSeasonLoss(m_state.facts(), query(),
                                       seasonLossId({number, row.field, row.key}));
    });
    answerWhy(m_clipTable, [this](const QModelIndex& cell) -> std::optional<Reason> {
        const LossClip& clip = m_clips.row(m_clipTable->placeAt(cell)).clip;
        const auto at = clip.gate ? static_cast<std::size_t>(*clip.gate) : clip.first;
        return explainLoss(m_state.facts(), query().reference,
                           lossId(clip.gate ? LossNumber::Gate : LossNumber::Loss, clip.run,
                                  query().reference, at));
    });
    answerWhy(m_summary, [this](const QPoint&) {
        return explainSeasonLoss(m_state.facts(), query(),
                                 seasonLossId({SeasonLossNumber::Gap, {}, {}}));
    });
    answerWhy(m_chart->focusProxy(), [this](const QPoint& at) -> std::optional<Reason> {
        const auto row = at.x() < 0 ? m_chart->current() : m_chart->markAt(at);
        if (!row || *row >= m_season.rows.size())
            return std::nullopt;
        const SeasonLossRow& shown = m_season.rows[*row];
        return explainSeasonLoss(m_state.facts(), query(),
                                 seasonLossId({SeasonLossNumber::Percent, shown.field, shown.key}));
    });
}

void SeasonPage::setAthlete(const QString& athlete) {
    m_athlete = athlete;
    m_crew.reset();
    noteChange();
}

/// Who chooses another run means that one's crew. The first run after the name was given is only
/// the one that the files begin with.
void SeasonPage::noteChange() {
    if (m_athlete && m_state.hasRun()) {
        const std::string crew(m_state.facts().text(m_state.row().crewKey));
        if (m_crew && *m_crew != crew)
            m_athlete.reset();
        m_crew = crew;
    }
    m_isStale = true;
    if (isVisible())
        refresh();
}

void SeasonPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

/// A rival belongs to one file.
SeasonLossQuery SeasonPage::query() const {
    SeasonLossQuery query;
    query.reference = m_state.reference();
    if (query.reference.kind == LossReferenceKind::Run && m_state.facts().files().size() > 1)
        query.reference = {};
    if (m_athlete) {
        query.crewKey = crewKey(m_athlete->toStdString());
    } else if (m_state.hasRun()) {
        query.crewKey = m_state.facts().text(m_state.row().crewKey);
        query.categoryKey = m_state.facts().text(m_state.row().categoryKey);
    }
    return query;
}

void SeasonPage::refresh() {
    if (!m_isStale)
        return;
    m_isStale = false;
    m_season = seasonLosses(m_state.facts(), query());
    m_name = m_athlete          ? *m_athlete
             : m_state.hasRun() ? QStringList({factText(m_state.facts(), m_state.row().crew),
                                               factText(m_state.facts(), m_state.row().category)})
                                      .join(QStringLiteral(", "))
                                : QString();
    m_summary->setText(summaryText());
    m_advice->setText(adviceText());
    showRows();
    showClips();
    m_chart->show(seasonContent(m_season, m_table->emptyText()));
}

QString SeasonPage::summaryText() const {
    const FactStore& facts = m_state.facts();
    if (m_name.isEmpty())
        return tr("Open a folder of races to see an athlete's season.");
    if (m_season.runs.empty())
        return tr("%1: no whole run in %2 files can be held against the %3.")
            .arg(m_name)
            .arg(facts.files().size())
            .arg(referenceTitle(query().reference.kind));
    std::set<std::uint32_t> files;
    for (const std::size_t run : m_season.runs)
        files.insert(facts.runs()[run].file);
    const std::size_t runs = m_season.runs.size();
    return tr("%1 on %2: %3 in %4; gap a run %5, penalties %6")
        .arg(m_name, referenceTitle(query().reference.kind),
             runs == 1 ? tr("one whole run") : tr("%n whole runs", nullptr, static_cast<int>(runs)),
             files.size() == 1 ? tr("one file")
                               : tr("%n files", nullptr, static_cast<int>(files.size())),
             meanText(m_season.gap), meanText(m_season.penalties));
}

QString SeasonPage::adviceText() const {
    if (m_season.rows.empty())
        return {};
    if (m_season.train.empty())
        return tr("Train: nothing stands out from these runs.");
    QStringList rows;
    for (const std::size_t row : m_season.train)
        rows << tr("%1. %2: %3, %4 s a run")
                    .arg(rows.size() + 1)
                    .arg(qtText(m_season.rows[row].field), qtText(m_season.rows[row].text),
                         shownSignedSeconds(m_season.rows[row].perRun));
    return tr("Train:") + QStringLiteral("  ") + rows.join(QStringLiteral("   "));
}

void SeasonPage::showRows() {
    m_rows.show(m_season.rows);
}

/// Of the row that is chosen; without one, of all that is to be trained.
void SeasonPage::showClips() {
    std::vector<ClipLine> lines;
    const FactStore& facts = m_state.facts();
    const auto add = [&](const SeasonLossRow& row) {
        for (const LossClip& clip : row.clips) {
            QString what = clip.first > 0 ? qtText(sectionsText(clip.first, clip.last)) : QString();
            if (clip.gate)
                what += (what.isEmpty() ? QString() : QStringLiteral(", ")) +
                        tr("gate %1").arg(*clip.gate);
            lines.push_back({clip, what, runChoice(facts, clip.run)});
        }
    };
    const int place = m_table->currentPlace();
    if (place >= 0 && place < static_cast<int>(m_rows.rows().size()))
        add(m_rows.row(place));
    else
        for (const std::size_t row : m_season.train)
            add(m_season.rows[row]);
    m_clips.show(std::move(lines));
}

QString SeasonPage::summary() const {
    return m_summary->text();
}

QString SeasonPage::advice() const {
    return m_advice->text();
}

void SeasonPage::askAndSave() {
    m_chart->interaction().askAndSave();
}

} // namespace kavela::desktop
