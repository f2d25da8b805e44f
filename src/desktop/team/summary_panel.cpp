#include "desktop/team/summary_panel.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "desktop/team/team_edits.h"
#include "desktop/why/why_popup.h"
#include "results/athlete_summary.h"
#include "results/categorization.h"
#include "results/team_seasons.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

template <class Lines>
QString lineByLine(const Lines& lines) {
    QStringList texts;
    for (const std::string& line : lines)
        texts.append(QString::fromStdString(line));
    return texts.join('\n');
}

QLabel* label(const char* name, bool isQuiet) {
    auto* made = new QLabel;
    made->setObjectName(name);
    made->setTextFormat(Qt::PlainText);
    made->setWordWrap(true);
    made->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (isQuiet)
        made->setForegroundRole(QPalette::PlaceholderText);
    return made;
}

std::int64_t racesWithoutPosition(const mtCatsStruct& category) {
    std::int64_t count = 0;
    for (const mtSeasonStruct& season : category.seasons)
        count += std::ranges::count(season.races, 0, &mtRaceStruct::finalPos);
    return count;
}

/// Why an athlete has no categorization.
QString obstacle(const myTeamStruct& athlete, const mtCatsStruct& category) {
    if (athlete.isretired)
        return SummaryPanel::tr("Retired athletes are left out.");
    if (category.seasons.size() < CountedSeasons)
        return SummaryPanel::tr("Two seasons are needed.");
    return SummaryPanel::tr("The first two seasons have no race with a final position.");
}

QString countedYears(const mtCatsStruct& category) {
    QStringList years;
    for (std::size_t i = 0; i < std::min(CountedSeasons, category.seasons.size()); ++i)
        years.append(QString::number(category.seasons[i].year));
    return years.join(SummaryPanel::tr(" and "));
}

} // namespace

SummaryPanel::SummaryPanel(QWidget* parent)
    : QWidget(parent),
      m_seasonTitle(new QLabel(tr("Over the seasons"))),
      m_season(label("season", false)),
      m_who(label("who", true)),
      m_summary(label("summary", false)),
      m_unplaced(label("unplaced", true)),
      m_label(label("label", false)),
      m_counts(label("counts", false)),
      m_seasons(label("countedSeasons", true)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::LargeSpacing, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    const auto title = [&](const QString& text) {
        auto* heading = new QLabel(text);
        heading->setFont(theme::titleFont(*this));
        column->addWidget(heading);
        m_titles.push_back(heading);
    };
    title(tr("All seasons"));
    column->addWidget(m_who);
    column->addWidget(m_summary);
    column->addWidget(m_unplaced);
    column->addSpacing(theme::LargeSpacing);
    title(tr("Categorization"));
    column->addWidget(m_label);
    column->addWidget(m_counts);
    column->addWidget(m_seasons);
    column->addSpacing(theme::LargeSpacing);
    m_seasonTitle->setFont(theme::titleFont(*this));
    column->addWidget(m_seasonTitle);
    column->addWidget(m_season);
    m_seasonTitle->hide();
    m_season->hide();
    column->addStretch(1);
    QFont bold = font();
    bold.setBold(true);
    m_label->setFont(bold);
    setMinimumWidth(grown(*this, 160));
    answerWhy(m_label, [this](const QPoint&) { return m_why; });
    m_season->setFocusPolicy(Qt::TabFocus); // the keyboard asks it why
    answerWhy(m_season, [this](const QPoint& at) { return whySeasonAt(at); });
    answerWhy(m_counts, [this](const QPoint& at) { return whyCountAt(at); });
}

/// The counts stand line by line; those of a key are all of them.
std::optional<Reason> SummaryPanel::whyCountAt(const QPoint& at) const {
    if (!m_why || at == QPoint(-1, -1))
        return m_why;
    const auto counts = static_cast<int>(m_why->parts.size());
    const int line = std::clamp(at.y() * counts / std::max(1, m_counts->height()), 0, counts - 1);
    return m_why->parts[static_cast<std::size_t>(line)];
}

/// Lines that are broken are a line more on the screen: near enough to find the number.
std::optional<Reason> SummaryPanel::whySeasonAt(const QPoint& at) const {
    const auto lines = static_cast<int>(m_athleteSeason.lines.size());
    if (lines == 0)
        return std::nullopt;
    const int line =
        at.y() < 0 ? 0 : std::clamp(at.y() * lines / std::max(1, m_season->height()), 0, lines - 1);
    return m_athleteSeason.why(static_cast<std::size_t>(line));
}

void SummaryPanel::showSeason(const AthleteSeason& season) {
    m_athleteSeason = season;
    m_season->setText(season.lines.join('\n'));
    m_seasonTitle->setVisible(!season.lines.isEmpty());
    m_season->setVisible(!season.lines.isEmpty());
}

void SummaryPanel::show(const myTeamStruct* athlete, const std::string& category) {
    const mtCatsStruct* const results = athlete ? categoryOf(*athlete, category) : nullptr;
    for (QLabel* text : {m_who, m_summary, m_unplaced, m_label, m_counts, m_seasons})
        text->clear();
    m_why.reset();
    for (QLabel* title : m_titles)
        title->setVisible(results != nullptr);
    if (!results)
        return;
    m_who->setText(QString::fromStdString(category) +
                   (athlete->birthYear > 0 ? tr(", born %1").arg(athlete->birthYear) : QString()));
    m_summary->setText(lineByLine(summaryLines(athleteSummary(*athlete, category))));
    if (const std::int64_t races = racesWithoutPosition(*results); races > 0)
        m_unplaced->setText(races == 1
                                ? tr("One race has no final position. It counts as a medal here, "
                                     "not in the categorization.")
                                : tr("%1 races have no final position. They count as medals here, "
                                     "not in the categorization.")
                                      .arg(races));
    Why why;
    if (const auto categorization = categorize(*athlete, category, &why)) {
        m_why = why.reason();
        m_label->setText(QString::fromStdString(categorization->label).trimmed());
        m_counts->setText(lineByLine(categorization->lines));
        m_seasons->setText(tr("Counted: %1").arg(countedYears(*results)));
    } else {
        m_counts->setText(obstacle(*athlete, *results));
    }
    m_unplaced->setVisible(!m_unplaced->text().isEmpty());
    m_label->setVisible(!m_label->text().isEmpty());
}

} // namespace kavela::desktop
