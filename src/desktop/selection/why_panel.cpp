#include "desktop/selection/why_panel.h"

#include "desktop/selection/ranking_model.h"
#include "desktop/selection/selection_document.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "results/selection_whatif.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
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

} // namespace

WhyPanel::WhyPanel(const SelectionDocument& document, const RankingModel& model, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_model(model),
      m_name(plainLabel()),
      m_real(plainLabel()),
      m_parts(new QTableWidget(0, 3)),
      m_sum(plainLabel()),
      m_wayUp(plainLabel()) {
    m_name->setFont(theme::titleFont(*this));
    m_real->setObjectName("real");
    m_parts->setHorizontalHeaderLabels({tr("Result"), tr("Percent"), tr("Score")});
    m_parts->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_parts->setSelectionMode(QAbstractItemView::NoSelection);
    m_parts->setFocusPolicy(Qt::NoFocus);
    m_parts->setShowGrid(false);
    m_parts->verticalHeader()->hide();
    m_parts->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    m_parts->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_parts->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_wayUp->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::LargeSpacing, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_name);
    column->addWidget(m_real);
    column->addWidget(m_parts, 1);
    column->addWidget(m_sum);
    column->addWidget(m_wayUp);
    setMinimumWidth(300);
    showRow(-1);
}

void WhyPanel::addLine(const QString& what, const QString& percent, const QString& fate,
                       bool isCounted) {
    const int row = m_parts->rowCount();
    m_parts->insertRow(row);
    const QStringList texts{what, percent, fate};
    for (int column = 0; column < texts.size(); ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        item->setToolTip(texts[column]); // the name of a race may be cut
        QFont font = item->font();
        font.setStrikeOut(!isCounted && column == 1);
        item->setFont(font);
        if (column == 1)
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_parts->setItem(row, column, item);
    }
}

void WhyPanel::showRow(int row) {
    const bool isShown = row >= 0 && row < m_model.rowCount();
    m_parts->setVisible(isShown);
    m_sum->setVisible(isShown);
    m_wayUp->setVisible(isShown);
    m_real->setVisible(false);
    m_parts->setRowCount(0);
    if (!isShown) {
        m_name->setText(tr("Select an athlete to see where the score comes from."));
        return;
    }
    const Standing& standing = m_model.standingOfRow(row);
    m_name->setText(tr("%1. %2")
                        .arg(standing.rank)
                        .arg(m_model.index(row, RankingModel::NameColumn).data().toString()));
    showReal(row);
    const auto& races = m_document.shown().races;
    for (std::size_t race = 0; race < standing.score.races.size(); ++race) {
        const ScorePart& part = standing.score.races[race];
        const bool isNone = part.percentage == MissingPercentage;
        addLine(qtText(races[race].location),
                isNone ? tr("no result") : hundredths(part.percentage), fateText(part.fate),
                part.fate == ResultFate::Counted);
    }
    if (standing.score.bonus)
        addLine(tr("Bonus"), hundredths(standing.score.bonus->percentage),
                fateText(standing.score.bonus->fate),
                standing.score.bonus->fate == ResultFate::Counted);
    m_sum->setText(tr("Score: %1 / 3 = %2")
                       .arg(hundredths(standing.score.sum), hundredths(standing.score.score)));
    showWayUp(row);
}

/// What trying changed: place and score as they are, beside what they would be.
void WhyPanel::showReal(int row) {
    const auto real = m_model.realStandingOfRow(row);
    if (!real)
        return;
    const Standing& now = m_model.standingOfRow(row);
    m_real->setText(tr("Place: was %1, now %2. Score: was %3, now %4.")
                        .arg(real->rank)
                        .arg(now.rank)
                        .arg(hundredths(real->score.score), hundredths(now.score.score)));
    m_real->setVisible(true);
}

/// Only the official times make the score, so only they tell what was missing.
void WhyPanel::showWayUp(int row) {
    const Standing& standing = m_model.standingOfRow(row);
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
