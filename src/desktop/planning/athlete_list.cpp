#include "desktop/planning/athlete_list.h"

#include "common/folded_text.h"
#include "desktop/shell/theme.h"

#include <QBuffer>
#include <QComboBox>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int PhotoSide = 72;

QString categoriesOf(const athletesplanning_v6& athlete) {
    QStringList categories;
    for (const std::string& category : athlete.categories)
        categories.append(QString::fromStdString(category));
    return categories.join(", ");
}

/// Read in the size that is shown: the whole picture of a camera takes fifty megabytes.
QPixmap photoOf(const Blob& picture) {
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(picture.bytes.data()),
                                               static_cast<qsizetype>(picture.bytes.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    if (const QSize whole = reader.size(); whole.isValid())
        reader.setScaledSize(whole.scaled(PhotoSide, PhotoSide, Qt::KeepAspectRatio));
    const QImage photo = reader.read();
    return photo.isNull()
               ? QPixmap()
               : QPixmap::fromImage(photo.scaled(PhotoSide, PhotoSide, Qt::KeepAspectRatio,
                                                 Qt::SmoothTransformation));
}

} // namespace

AthleteList::AthleteList(PlanningDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_search(new QLineEdit),
      m_list(new QListWidget),
      m_seasons(new QComboBox),
      m_photo(new QLabel),
      m_contact(new QLabel) {
    m_search->setPlaceholderText(tr("Search athletes"));
    m_search->setToolTip("Ctrl+F");
    m_search->setClearButtonEnabled(true);
    m_list->setObjectName("athletes");
    m_list->setSpacing(theme::SmallSpacing / 2);
    m_seasons->setObjectName("seasons");
    m_contact->setWordWrap(true);
    m_contact->setFont(theme::captionFont(*this));
    m_contact->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_contact->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, theme::Spacing, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_search);
    column->addWidget(m_list, 1);
    column->addWidget(m_photo);
    m_photo->hide();
    column->addWidget(m_contact);
    auto* title = new QLabel(tr("Season"));
    title->setBuddy(m_seasons);
    column->addWidget(title);
    column->addWidget(m_seasons);
    connect(m_search, &QLineEdit::textChanged, this, &AthleteList::filter);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            chooseAthlete(static_cast<std::size_t>(row));
    });
    connect(m_seasons, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            chooseSeason(static_cast<std::size_t>(index));
    });
    connect(&document, &PlanningDocument::changed, this, &AthleteList::fill);
    fill();
}

std::optional<PlannedSeason> AthleteList::season() const {
    if (!m_athlete)
        return std::nullopt;
    const PlannedSeason place{*m_athlete, m_season};
    return m_document.seasonAt(place) ? std::optional(place) : std::nullopt;
}

void AthleteList::fill() {
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const athletesplanning_v6& athlete : m_document.athletes()) {
        const QString categories = categoriesOf(athlete);
        const QString name = QString::fromStdString(athlete.name);
        m_list->addItem(categories.isEmpty() ? name : name + "\n" + categories);
    }
    const std::size_t count = m_document.athletes().size();
    if (count == 0)
        m_athlete.reset();
    else
        m_athlete = std::min(m_athlete.value_or(0), count - 1);
    m_list->setCurrentRow(m_athlete ? static_cast<int>(*m_athlete) : -1);
    filter();
    fillSeasons();
    showCard();
    emit seasonChosen();
}

void AthleteList::fillSeasons() {
    const QSignalBlocker quiet(m_seasons);
    m_seasons->clear();
    const athletesplanning_v6* const athlete =
        m_athlete ? m_document.athleteAt(*m_athlete) : nullptr;
    if (athlete)
        for (const yearsplannings_v6& season : athlete->year)
            m_seasons->addItem(QString::number(season.year));
    const std::size_t count = athlete ? athlete->year.size() : 0;
    if (count > 0)
        m_season = std::min(m_season, count - 1);
    m_seasons->setCurrentIndex(count == 0 ? -1 : static_cast<int>(m_season));
    m_seasons->setEnabled(count > 0);
    m_seasons->setPlaceholderText(tr("none yet"));
}

void AthleteList::showCard() {
    const athletesplanning_v6* const athlete =
        m_athlete ? m_document.athleteAt(*m_athlete) : nullptr;
    showPhoto(athlete ? athlete->photo : Blob());
    QStringList contact;
    if (athlete)
        contact << QString::fromStdString(athlete->email) << QString::fromStdString(athlete->phone);
    contact.removeAll(QString());
    m_contact->setText(contact.join('\n'));
    m_contact->setVisible(!contact.isEmpty());
}

/// Every edit comes by here, and few change the picture, which takes long to read.
void AthleteList::showPhoto(const Blob& picture) {
    if (picture == m_shownPicture)
        return;
    m_shownPicture = picture;
    const QPixmap photo = photoOf(picture);
    m_photo->setPixmap(photo);
    m_photo->setVisible(!photo.isNull());
}

void AthleteList::chooseAthlete(std::size_t athlete) {
    if (athlete >= m_document.athletes().size() || athlete == m_athlete || !mayLeave())
        return;
    // The same year of the next athlete, where there is one.
    const yearsplannings_v6* const before = season() ? m_document.seasonAt(*season()) : nullptr;
    const auto& seasons = m_document.athletes()[athlete].year;
    const auto same =
        before ? std::ranges::find(seasons, before->year, &yearsplannings_v6::year) : seasons.end();
    m_athlete = athlete;
    m_season = same != seasons.end() ? static_cast<std::size_t>(same - seasons.begin())
                                     : std::numeric_limits<std::size_t>::max();
    const QSignalBlocker quiet(m_list);
    m_list->setCurrentRow(static_cast<int>(athlete));
    fillSeasons();
    showCard();
    emit seasonChosen();
}

void AthleteList::chooseSeason(std::size_t season) {
    if (season == m_season || !mayLeave())
        return;
    m_season = season;
    fillSeasons();
    emit seasonChosen();
}

bool AthleteList::mayLeave() {
    if (!m_mayLeave || m_mayLeave())
        return true;
    // Later: the list that was clicked is not done yet with choosing the other row.
    QMetaObject::invokeMethod(
        this,
        [this] {
            const QSignalBlocker quietList(m_list);
            m_list->setCurrentRow(m_athlete ? static_cast<int>(*m_athlete) : -1);
            fillSeasons();
        },
        Qt::QueuedConnection);
    return false;
}

void AthleteList::filter() {
    const QString wanted = QString::fromStdString(folded(m_search->text().toStdString()));
    for (int row = 0; row < m_list->count(); ++row) {
        const QString name = QString::fromStdString(
            folded(m_document.athletes()[static_cast<std::size_t>(row)].name));
        m_list->item(row)->setHidden(!name.contains(wanted));
    }
}

} // namespace kavela::desktop
