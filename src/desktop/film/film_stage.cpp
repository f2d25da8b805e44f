#include "desktop/film/film_stage.h"

#include "desktop/film/film_grid.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_mode.h"
#include "desktop/film/film_sound.h"
#include "desktop/film/film_view.h"
#include "desktop/film/tick_strip.h"
#include "desktop/film/time_line.h"
#include "desktop/shell/field_keys.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "video/health.h"

#include <QFileInfo>
#include <QLabel>
#include <QMainWindow>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

FilmStage::FilmStage(Workspace& workspace, const Parts& parts)
    : m_deck(new FilmDeck(FilmMemory::of(workspace), this)),
      m_sound(new FilmSound(*m_deck, this)),
      m_grid(new FilmGrid),
      m_views{new FilmView(*m_deck, 0)},
      m_state(new QLabel),
      m_health(new QLabel),
      m_line(new TimeLine(*m_deck)),
      m_ticks(new TickStrip(*m_line)),
      m_column(new QVBoxLayout(this)) {
    m_grid->setFilms({m_views.begin(), m_views.end()});
    makeLabels(parts);
    makeLayout();
    connectParts();
}

/// The deck is the first of the children to go, and says nothing while the others do.
FilmStage::~FilmStage() {
    silence();
}

void FilmStage::makeLabels(const Parts& parts) {
    m_state->setObjectName(parts.state);
    m_health->setObjectName(parts.health);
    m_health->setTextFormat(Qt::PlainText);
    m_health->setWordWrap(true);
    if (parts.isQuiet)
        m_health->setForegroundRole(QPalette::PlaceholderText);
    else
        m_warning = QStringLiteral("⚠ ");
    if (parts.typing) {
        m_typing = new QLabel(tr("Typing: Esc gives the keys back to the film"), this);
        m_typing->setObjectName(parts.typing);
        m_typing->hide();
    }
}

void FilmStage::makeLayout() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, theme::SmallSpacing, 0);
    row->setSpacing(theme::Spacing);
    row->addWidget(m_health, 1);
    if (m_typing)
        row->addWidget(m_typing, 0, Qt::AlignRight | Qt::AlignTop);
    row->addWidget(m_state, 0, Qt::AlignRight | Qt::AlignTop);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(theme::SmallSpacing);
    m_column->addWidget(m_grid, 1);
    m_column->addLayout(row);
    m_column->addWidget(m_line);
    m_column->addWidget(m_ticks);
    m_ticks->hide();
}

void FilmStage::connectParts() {
    connect(m_deck, &FilmDeck::stateChanged, this, &FilmStage::showState);
    connect(m_deck, &FilmDeck::indexChanged, this, &FilmStage::showHealth);
    const auto follow = [ticks = m_ticks] { ticks->update(); };
    connect(m_deck, &FilmDeck::indexChanged, m_ticks, follow);
    connect(m_deck, &FilmDeck::stateChanged, m_ticks, follow);
    connect(m_line, &TimeLine::markClicked, this, &FilmStage::goToMark);
    connect(m_line, &TimeLine::markDropped, this, &FilmStage::dropMark);
    connect(m_ticks, &TickStrip::markClicked, this, &FilmStage::goToMark);
}

void FilmStage::addAbove(QWidget& bar) {
    m_column->insertWidget(m_column->indexOf(m_grid), &bar);
}

void FilmStage::addOverLine(QWidget& strip) {
    m_column->insertWidget(m_column->indexOf(m_line), &strip);
}

void FilmStage::addBelow(QWidget& strip) {
    m_column->addWidget(&strip);
}

void FilmStage::keepKeys(QMainWindow& window, std::function<void()> leave) {
    auto* const keys = new FieldKeys(window, std::move(leave)); // the window owns it
    if (m_typing)
        connect(keys, &FieldKeys::typingChanged, m_typing, &QLabel::setVisible);
}

void FilmStage::silence() {
    m_deck->blockSignals(true);
    m_deck->disconnect(this);
}

void FilmStage::showFilms(const StageFilms& films) {
    m_films = films.films;
    m_key = films.key;
    m_health->clear();
    m_deck->open({}); // before its views go
    for (FilmView* const view : m_views)
        delete view;
    m_views.clear();
    const bool isThere = !m_films.isEmpty() && QFileInfo(m_films.front()).isFile();
    const QStringList own = isThere ? m_films : QStringList();
    const QStringList beside = isThere ? films.beside : QStringList();
    for (qsizetype camera = 0; camera < std::max<qsizetype>(own.size() + beside.size(), 1);
         ++camera) {
        auto* const view = new FilmView(*m_deck, static_cast<std::size_t>(camera));
        if (camera >= own.size() && isThere)
            view->setCaption(
                tr("Fixed: %1").arg(QFileInfo(beside[camera - own.size()]).completeBaseName()));
        m_views.push_back(view);
    }
    m_grid->setFilms({m_views.begin(), m_views.end()});
    m_deck->open(own, beside);
}

void FilmStage::rememberPlace() {
    const auto meant = m_deck->meant();
    if (!std::holds_alternative<std::monostate>(m_key) && !meant.empty())
        m_places.insert_or_assign(m_key, meant.front());
}

void FilmStage::goToPlace(const std::optional<CMTime>& otherwise) {
    if (const auto left = m_places.find(m_key); left != m_places.end())
        m_deck->seek(left->second);
    else if (otherwise)
        m_deck->seek(*otherwise);
}

void FilmStage::setMessage(const QString& message) {
    m_views.front()->setMessage(message);
}

void FilmStage::askForFilm(std::size_t camera, const QString& message) {
    if (camera >= m_views.size())
        return;
    FilmView* const view = m_views[camera];
    view->setQuestion(message, tr("Where are the films now?…"));
    connect(view, &FilmView::answered, this, &FilmStage::searchWanted,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection |
                                            Qt::UniqueConnection)); // the view goes with the answer
}

void FilmStage::flash(const QString& text) {
    m_views.front()->flash(text);
}

void FilmStage::refuse(const QString& why) {
    m_views.front()->refuse(why);
}

void FilmStage::whenMeant(const PressQueue::Act& act) {
    m_deck->whenMeant(
        [this, act](PressQueue::Stamps stamps) {
            stamps.resize(std::min(stamps.size(), m_deck->cameras()));
            act(stamps);
        },
        [this](const QString& why) { refuse(why); });
}

void FilmStage::whenKnown(const FrameRequest& frame, const FilmDeck::Settled& act) {
    m_deck->whenSettled(frame, act, [this](const QString& why) { refuse(why); });
}

bool FilmStage::isAtEnd() const {
    return !m_deck->isPlaying() && m_deck->cameras() > 0 && m_deck->end() > 0 &&
           m_deck->position() >= m_deck->end() && m_deck->rate() > 0;
}

void FilmStage::showState() {
    const QString rate = QStringLiteral("×") + QString::number(m_deck->rate());
    m_state->setText(m_deck->cameras() == 0 ? QString()
                     : m_deck->isPlaying()  ? tr("Playing %1").arg(rate)
                                            : tr("Paused, %1").arg(rate));
}

void FilmStage::showHealth() {
    QStringList notes;
    for (std::size_t camera = 0; camera < m_deck->cameras(); ++camera) {
        const auto index = m_deck->index(camera);
        if (!index || !index->isComplete())
            continue;
        const QString which = m_deck->cameras() > 1 ? tr("Camera %1: ").arg(camera + 1) : QString();
        for (const HealthNote& note : checkHealth(*index))
            notes.append(m_warning + which + QString::fromStdString(note.text));
    }
    m_health->setText(notes.join('\n'));
}

void FilmStage::setModes(std::vector<FilmMode*> modes) {
    m_modes = std::move(modes);
    m_front = m_modes.front();
}

void FilmStage::showMarks() {
    std::vector<LineMark> named = first().marks();
    std::vector<LineMark> unnamed;
    const auto selected = first().selectedMark();
    std::erase_if(named, [&](const LineMark& mark) {
        if (mark.label.isEmpty())
            unnamed.push_back(mark);
        return mark.label.isEmpty();
    });
    const auto place = std::ranges::find(named, selected, &LineMark::number) - named.begin();
    const bool isNamed = std::cmp_less(place, named.size());
    m_line->setMarks(std::move(named));
    m_line->setSelected(isNamed ? std::optional(static_cast<std::size_t>(place)) : std::nullopt);
    m_ticks->setVisible(!unnamed.empty() && m_deck->cameras() > 0);
    m_ticks->setMarks(std::move(unnamed), selected);
}

FilmMode& FilmStage::marking() const {
    return m_front->takesMarks() ? *m_front : first();
}

/// The keys of a selected mark are those of the mode that has it, whichever is in front.
FilmMode& FilmStage::editing() const {
    const auto selected = std::ranges::find_if(m_modes, &FilmMode::hasSelection);
    return selected == m_modes.end() ? marking() : **selected;
}

void FilmStage::markHere() {
    marking().markHere();
}

void FilmStage::moveMarkHere() {
    m_deck->finishPresses(); // the selected mark may be one of them
    editing().moveMarkHere();
}

void FilmStage::nudgeMark(int frames) {
    m_deck->finishPresses(); // the last mark may be one of them
    editing().nudgeMark(frames);
}

void FilmStage::deleteMark() {
    editing().deleteMark();
}

void FilmStage::stepMark(int step) {
    if (!m_front->stepMark(step) && m_front != &first())
        first().stepMark(step);
}

void FilmStage::stepGate(int step) {
    if (!m_front->stepGate(step) && m_front != &first())
        first().stepGate(step);
}

void FilmStage::goToMark(std::size_t number) {
    first().goToMark(number);
}

void FilmStage::dropMark(std::size_t number, double seconds) {
    first().dropMark(number, seconds);
}

void FilmStage::pressNumber(int number) {
    first().pressNumber(number);
}

} // namespace kavela::desktop
