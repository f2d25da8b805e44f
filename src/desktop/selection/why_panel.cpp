#include "desktop/selection/why_panel.h"

#include "desktop/selection/ranking_model.h"
#include "desktop/selection/selection_document.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "results/result_rules.h"
#include "results/selection_whatif.h"

#include <QLabel>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

QString hundredths(double value) {
    return shownHundredths(value);
}

QLabel* plainLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QString fateText(ResultFate fate) {
    switch (fate) {
    case ResultFate::Counted:
        return WhyPanel::tr("counted");
    case ResultFate::Worst:
        return WhyPanel::tr("dropped: worst");
    case ResultFate::SecondWorst:
        return WhyPanel::tr("dropped: bonus");
    }
    return {};
}

ResultFate fateOf(const Reason& part) {
    if (part.rule == &ruleOf(ResultRule::DroppedWorst))
        return ResultFate::Worst;
    return part.rule == &ruleOf(ResultRule::DroppedForBonus) ? ResultFate::SecondWorst
                                                             : ResultFate::Counted;
}

} // namespace

WhyPanel::WhyPanel(const SelectionDocument& document, const RankingModel& model, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_model(model),
      m_name(plainLabel()),
      m_real(plainLabel()),
      m_scores(columns()),
      m_parts(new ColumnTable(m_scores, "")),
      m_sum(plainLabel()),
      m_wayUp(plainLabel()) {
    m_name->setFont(theme::titleFont(*this));
    m_real->setObjectName("real");
    m_parts->setOnlyShown();
    m_parts->stretch({0});
    m_wayUp->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::LargeSpacing, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_name);
    column->addWidget(m_real);
    column->addWidget(m_parts, 1);
    column->addWidget(m_sum);
    column->addWidget(m_wayUp);
    setMinimumWidth(grown(*this, 300));
    showRow(-1);
}

/// The name of a race may be cut.
std::vector<Column<WhyPanel::Part>> WhyPanel::columns() {
    const auto percent = [](const Part& part) {
        const double value = part.score.percentage;
        const bool isNone = value == MissingPercentage;
        const QString text = isNone ? tr("no result") : hundredths(value);
        return Cell{.text = text,
                    .number = isNone ? std::nullopt : std::optional(value),
                    .tip = text,
                    .isStruck = part.score.fate != ResultFate::Counted};
    };
    const auto what = [](const Part& part) { return Cell{.text = part.what, .tip = part.what}; };
    const auto fate = [](const Part& part) {
        return Cell{.text = fateText(part.score.fate), .tip = fateText(part.score.fate)};
    };
    std::vector<Column<Part>> columns;
    columns.push_back({.title = tr("Result"), .show = what});
    columns.push_back({.title = tr("Percent"), .kind = ColumnKind::Number, .show = percent});
    columns.push_back({.title = tr("Score"), .show = fate});
    return columns;
}

void WhyPanel::showRow(int row) {
    const bool isShown = row >= 0 && row < m_model.rowCount();
    m_parts->setVisible(isShown);
    m_sum->setVisible(isShown);
    m_wayUp->setVisible(isShown);
    m_real->setVisible(false);
    if (!isShown) {
        m_name->setText(tr("Select an athlete to see where the score comes from."));
        return;
    }
    const RankedAthlete& athlete = m_model.row(row);
    const Standing& standing = athlete.standing;
    m_name->setText(tr("%1. %2").arg(standing.rank).arg(qtText(athlete.record.name)));
    showReal(row);
    const auto& races = m_document.shown().races;
    // The same reason as the key shows: an input and a part for each result, the sum behind them.
    Why why;
    (void)scoreOf(m_document.shown(), m_model.category(), standing.athlete, m_document.bonus(),
                  m_document.times(), &why);
    const Reason reason = why.reason();
    std::vector<Part> parts;
    for (std::size_t i = 0; i < reason.inputs.size(); ++i)
        parts.push_back({i < races.size() ? qtText(reason.inputs[i].name) : tr("Bonus"),
                         {reason.parts[i].value, fateOf(reason.parts[i])}});
    m_scores.show(std::move(parts), true);
    m_sum->setText(tr("Score: %1 / 3 = %2")
                       .arg(hundredths(reason.parts.back().value), hundredths(reason.value)));
    showWayUp(row);
}

/// What trying changed: place and score as they are, beside what they would be.
void WhyPanel::showReal(int row) {
    const std::optional<Standing>& real = m_model.row(row).real;
    if (!real)
        return;
    const Standing& now = m_model.row(row).standing;
    m_real->setText(tr("Place: was %1, now %2. Score: was %3, now %4.")
                        .arg(real->rank)
                        .arg(now.rank)
                        .arg(hundredths(real->score.score), hundredths(now.score.score)));
    m_real->setVisible(true);
}

/// Only the official times make the score, so only they tell what was missing.
void WhyPanel::showWayUp(int row) {
    const Standing& standing = m_model.row(row).standing;
    QStringList lines;
    if (standing.rank > 1 && m_document.times() == SelectionTimes::Official)
        for (std::size_t race = 0; race < m_document.shown().races.size(); ++race) {
            const auto total =
                totalForRank(m_document.shown(), {m_model.category(), standing.athlete, race},
                             standing.rank - 1, m_document.bonus());
            if (total)
                lines.append(
                    tr("%1 s in %2")
                        .arg(hundredths(*total), qtText(m_document.shown().races[race].location)));
        }
    m_wayUp->setText(lines.isEmpty()
                         ? QString()
                         : tr("A place better with a total of\n%1").arg(lines.join('\n')));
}

} // namespace kavela::desktop
