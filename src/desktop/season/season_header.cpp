#include "desktop/season/season_header.h"

#include "desktop/season/shown_season.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "splitdata/athlete_keys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int WidestAthlete = 280;

} // namespace

SeasonHeader::SeasonHeader(QWidget* parent)
    : QWidget(parent),
      m_category(new QComboBox),
      m_first(new QComboBox),
      m_last(new QComboBox),
      m_athlete(new QComboBox),
      m_ownStarts(new QCheckBox(tr("Only &own races"))),
      m_races(new QLabel),
      m_add(new QPushButton(tr("Add the races…"))) {
    m_category->setObjectName("category");
    m_first->setObjectName("firstYear");
    m_last->setObjectName("lastYear");
    m_athlete->setObjectName("athlete");
    m_ownStarts->setObjectName("ownStarts");
    m_ownStarts->setToolTip(
        tr("Only races in which this athlete starts, in whichever phase; on every page"));
    m_athlete->setMaximumWidth(grown(*this, WidestAthlete));
    m_races->setObjectName("races");
    m_add->setObjectName("addRaces");
    for (QComboBox* const box : {m_category, m_first, m_last, m_athlete})
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_races->setForegroundRole(QPalette::PlaceholderText);
    m_races->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // it gives way first
    m_races->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    makeLayout();
    connect(m_category, &QComboBox::currentIndexChanged, this, [this] {
        fillYears();
        emit changed();
    });
    connect(m_first, &QComboBox::currentIndexChanged, this, [this] { keepYearsInOrder(true); });
    connect(m_last, &QComboBox::currentIndexChanged, this, [this] { keepYearsInOrder(false); });
    connect(m_athlete, &QComboBox::currentIndexChanged, this, [this] {
        m_wanted = m_athlete->currentText();
        emit athleteChanged();
        if (isOwnStarts())
            emit changed();
    });
    connect(m_ownStarts, &QCheckBox::toggled, this, &SeasonHeader::changed);
    connect(m_add, &QPushButton::clicked, this, &SeasonHeader::racesRequested);
}

void SeasonHeader::makeLayout() {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(theme::Spacing, theme::SmallSpacing, theme::Spacing, 0);
    row->setSpacing(theme::Spacing);
    const auto add = [row](const QString& title, QComboBox* box) {
        auto* const label = new QLabel(title);
        label->setBuddy(box);
        row->addWidget(label);
        row->addWidget(box);
    };
    add(tr("&Category"), m_category);
    add(tr("&Years"), m_first);
    add(QStringLiteral("–"), m_last);
    add(tr("&Athlete"), m_athlete);
    row->addWidget(m_ownStarts);
    row->addWidget(m_races, 1);
    row->addWidget(m_add);
}

void SeasonHeader::offer(const std::shared_ptr<const myTeamToSaveStruct>& team) {
    m_team = team;
    const QString before = m_category->currentText();
    {
        const QSignalBlocker quiet(m_category);
        m_category->clear();
        for (const std::string& category : teamCategories(*team))
            m_category->addItem(qtText(category));
        m_category->setCurrentIndex(std::max(m_category->findText(before), 0));
    }
    fillYears();
}

/// All years, unless some were chosen that the category has, too.
void SeasonHeader::fillYears() {
    const QSignalBlocker quietFirst(m_first);
    const QSignalBlocker quietLast(m_last);
    const bool wasFirst = m_first->currentIndex() <= 0;
    const bool wasLast = m_last->currentIndex() == m_last->count() - 1;
    const QString first = m_first->currentText();
    const QString last = m_last->currentText();
    for (QComboBox* const box : {m_first, m_last}) {
        box->clear();
        if (m_team)
            for (const std::int64_t year :
                 teamYears(*m_team, m_category->currentText().toStdString()))
                box->addItem(QString::number(year), QVariant::fromValue<qint64>(year));
    }
    m_first->setCurrentIndex(wasFirst ? 0 : std::max(m_first->findText(first), 0));
    const int lastPlace = wasLast ? -1 : m_last->findText(last);
    m_last->setCurrentIndex(lastPlace < 0 ? m_last->count() - 1 : lastPlace);
}

/// The end that was not touched follows.
void SeasonHeader::keepYearsInOrder(bool isFirst) {
    if (m_first->currentIndex() > m_last->currentIndex()) {
        QComboBox* const other = isFirst ? m_last : m_first;
        const QSignalBlocker quiet(other);
        other->setCurrentIndex((isFirst ? m_first : m_last)->currentIndex());
    }
    emit changed();
}

/// An end that is open stays open: the next season belongs to it, too, and so do split files of
/// years that the team has nothing of.
SeasonChoice SeasonHeader::choice() const {
    SeasonChoice choice;
    choice.category = m_category->currentText().toStdString();
    if (m_first->currentIndex() > 0)
        choice.firstYear = m_first->currentData().toLongLong();
    if (m_last->currentIndex() >= 0 && m_last->currentIndex() < m_last->count() - 1)
        choice.lastYear = m_last->currentData().toLongLong();
    if (isOwnStarts())
        choice.starter = athleteName().toStdString();
    return choice;
}

void SeasonHeader::setOwnStarts(bool isOwn) {
    m_ownStarts->setChecked(isOwn);
}

bool SeasonHeader::isOwnStarts() const {
    return m_ownStarts->isChecked();
}

void SeasonHeader::choose(const SeasonChoice& choice) {
    const SeasonChoice before = this->choice();
    {
        const QSignalBlocker quiet(m_category);
        const int place = m_category->findText(qtText(choice.category));
        if (place >= 0)
            m_category->setCurrentIndex(place);
        fillYears();
        const QSignalBlocker quietFirst(m_first);
        const QSignalBlocker quietLast(m_last);
        m_first->setCurrentIndex(std::max(m_first->findText(QString::number(choice.firstYear)), 0));
        const int last = m_last->findText(QString::number(choice.lastYear));
        m_last->setCurrentIndex(last < 0 ? m_last->count() - 1 : last);
    }
    if (!(before == this->choice()))
        emit changed();
}

void SeasonHeader::offerAthletes(const QStringList& names) {
    const QSignalBlocker quiet(m_athlete);
    m_athlete->clear();
    m_athlete->addItems(names);
    const std::string wanted = crewKey(m_wanted.toStdString());
    for (int place = 0; place < m_athlete->count(); ++place)
        if (crewKey(m_athlete->itemText(place).toStdString()) == wanted) {
            m_athlete->setCurrentIndex(place);
            return;
        }
}

std::optional<std::size_t> SeasonHeader::athlete() const {
    const int place = m_athlete->currentIndex();
    return place < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(place));
}

QString SeasonHeader::athleteName() const {
    return m_athlete->count() > 0 ? m_athlete->currentText() : m_wanted;
}

QStringList SeasonHeader::athletes() const {
    QStringList names;
    for (int place = 0; place < m_athlete->count(); ++place)
        names << m_athlete->itemText(place);
    return names;
}

void SeasonHeader::chooseAthlete(std::size_t athlete) {
    if (static_cast<int>(athlete) < m_athlete->count())
        m_athlete->setCurrentIndex(static_cast<int>(athlete));
}

void SeasonHeader::chooseAthlete(const QString& name) {
    m_wanted = name;
    const int before = m_athlete->currentIndex();
    offerAthletes(athletes());
    if (m_athlete->currentIndex() == before)
        return;
    emit athleteChanged();
    if (isOwnStarts())
        emit changed();
}

void SeasonHeader::stepAthlete(int step) {
    const int place = m_athlete->currentIndex() + step;
    if (m_athlete->count() > 0 && place >= 0 && place < m_athlete->count())
        m_athlete->setCurrentIndex(place);
}

void SeasonHeader::tellRaces(const QString& text, bool isMissing) {
    m_races->setText(text);
    m_races->setToolTip(text);
    m_add->setVisible(isMissing);
}

} // namespace kavela::desktop
