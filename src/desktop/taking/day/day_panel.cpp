#include "desktop/taking/day/day_panel.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/taking/day/day_desk.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <cmath>

namespace kavela::desktop {

namespace {

/// Those that share the room.
constexpr int DayNameColumn = 2;
constexpr int DayFilmColumn = 6;

/// In words, that nobody has to tell colours apart.
QString sureness(const DayMatch& match) {
    if (match.state == MatchState::Agreed)
        return DayPanel::tr("agreed");
    if (match.state == MatchState::Kept)
        return DayPanel::tr("kept");
    const QString word = match.confidence >= SureConfidence     ? DayPanel::tr("sure")
                         : match.confidence >= LikelyConfidence ? DayPanel::tr("likely")
                                                                : DayPanel::tr("unsure");
    return QStringLiteral("%1, %2 %").arg(word).arg(std::lround(match.confidence * 100));
}

Cell stateCell(const DayLine& line) {
    const std::string_view name = nameOf(line.state);
    return {.text = QString::fromUtf8(name.data(), std::ssize(name)),
            .look = line.state == StartState::Filmed  ? Cell::Look::Bold
                    : line.state == StartState::Timed ? Cell::Look::Plain
                                                      : Cell::Look::Quiet};
}

/// "1 h 0 min 3 s ahead of"
QString offsetText(double seconds) {
    const auto whole = std::llround(std::abs(seconds));
    QStringList parts;
    if (const auto days = whole / 86400; days > 0)
        parts.append(DayPanel::tr("%1 d").arg(days));
    if (const auto hours = whole / 3600 % 24; hours > 0)
        parts.append(DayPanel::tr("%1 h").arg(hours));
    if (const auto minutes = whole / 60 % 60; minutes > 0)
        parts.append(DayPanel::tr("%1 min").arg(minutes));
    if (whole % 60 > 0)
        parts.append(DayPanel::tr("%1 s").arg(whole % 60));
    return parts.join(' ') + ' ' +
           (seconds > 0 ? DayPanel::tr("ahead of") : DayPanel::tr("behind"));
}

} // namespace

DayPanel::DayPanel(DayDesk& desk, QWidget* parent)
    : QWidget(parent),
      m_desk(desk),
      m_model(columns(), [](const DayLine& line) { return line.start.id; }),
      m_table(new ColumnTable(m_model, "dayStarts")),
      m_note(new QLabel),
      m_offset(new QPushButton(tr("Reckon with that"))) {
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    // A letter is a key of the film that was missed, not another name.
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_table->setEmptyText(tr("No start list yet. Paste one, or take it from a file."));
    m_table->keepOrder();
    constexpr int LeastHeight = 40; // a small screen needs its room for the film
    m_table->setMinimumHeight(LeastHeight);
    m_table->stretch({DayNameColumn, DayFilmColumn});
    makeLayout();
    connect(&m_desk, &DayDesk::changed, this, &DayPanel::showDay);
    connect(&m_desk, &DayDesk::frontChanged, this, &DayPanel::showFront);
    connect(m_table, &ColumnTable::chosen, this, [this] {
        if (const int place = m_table->currentPlace(); place >= 0 && !m_isShowing)
            m_desk.setFront(m_model.key(place));
    });
    connect(&m_desk.films(), &DayFilms::copyingChanged, this, &DayPanel::showNote);
    showNote();
}

void DayPanel::makeLayout() {
    m_note->setObjectName("dayNote");
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_offset->setObjectName("dayOffset");
    m_offset->setFocusPolicy(Qt::NoFocus);
    connect(m_offset, &QPushButton::clicked, &m_desk, &DayDesk::takeOffset);
    auto* const list = new QPushButton(tr("Start list…"));
    list->setObjectName("dayList");
    list->setFocusPolicy(Qt::NoFocus);
    connect(list, &QPushButton::clicked, this, &DayPanel::listWanted);
    auto* const folder = new QPushButton(tr("Films from…"));
    folder->setObjectName("dayFolder");
    folder->setFocusPolicy(Qt::NoFocus);
    connect(folder, &QPushButton::clicked, this, &DayPanel::folderWanted);
    auto* const row = new QHBoxLayout;
    row->setSpacing(theme::Spacing);
    row->addWidget(list);
    row->addWidget(folder);
    row->addWidget(m_note, 1);
    row->addWidget(m_offset);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(row);
    column->addWidget(m_table, 1);
}

DayPanel::Columns DayPanel::columns() {
    Columns all = listColumns();
    for (auto& column : filmColumns())
        all.push_back(std::move(column));
    return all;
}

DayPanel::Columns DayPanel::listColumns() {
    using DayTableColumn = Columns::value_type;
    const auto text = [this](const QString& title, std::string DayStart::*member) {
        DayTableColumn column{.title = title};
        column.show = [member](const DayLine& line) { return Cell{qtText(line.start.*member)}; };
        column.take = [this, member](std::int64_t start, const DayLine&, const QString& typed) {
            m_desk.editStart(start,
                             [&](DayStart& changed) { changed.*member = typed.toStdString(); });
        };
        return column;
    };
    DayTableColumn when{.title = tr("Start"), .show = [](const DayLine& line) {
                            return Cell{line.start.starttime < 0
                                            ? QStringLiteral("–")
                                            : qtText(timeOfDayText(line.start.starttime))};
                        }};
    DayTableColumn bib{
        .title = tr("Bib"), .kind = ColumnKind::Number, .show = [](const DayLine& line) {
            return Cell{.text = line.start.bib > 0 ? QString::number(line.start.bib) : QString(),
                        .number = static_cast<double>(line.start.bib)};
        }};
    DayTableColumn name = text(tr("Name"), &DayStart::name);
    name.take = [this](std::int64_t start, const DayLine&, const QString& typed) {
        if (typed.isEmpty())
            throw RefusedEntry(tr("A boat on the list has a name."));
        m_desk.editStart(start, [&](DayStart& changed) { changed.name = typed.toStdString(); });
    };
    return {when, bib, name, text(tr("Cat"), &DayStart::cat), text(tr("Phase"), &DayStart::phase)};
}

DayPanel::Columns DayPanel::filmColumns() {
    using DayTableColumn = Columns::value_type;
    DayTableColumn state{.title = tr("State"), .show = stateCell};
    DayTableColumn film{.title = tr("Film"),
                        .tip = tr("Type the name of another film to correct a single one"),
                        .show = [this](const DayLine& line) {
                            return Cell{line.match ? qtText(m_desk.nameOfFilm(line.match->from))
                                                   : QString()};
                        }};
    film.take = [this](std::int64_t start, const DayLine&, const QString& typed) {
        m_desk.assign(start, typed);
    };
    film.proposals = [this](const DayLine&) {
        QStringList names;
        for (const SeenFilm& each : m_desk.films().seen())
            names.append(qtText(m_desk.nameOfFilm(each.from)));
        return names;
    };
    DayTableColumn match{.title = tr("Match"), .show = [](const DayLine& line) {
                             if (!line.match)
                                 return Cell{};
                             return Cell{.text = sureness(*line.match),
                                         .tip = qtText(line.match->why),
                                         .look = line.match->confidence < LikelyConfidence
                                                     ? Cell::Look::Warning
                                                     : Cell::Look::Plain};
                         }};
    DayTableColumn recorded{
        .title = tr("Recorded"),
        .tip = tr("When the recording began, and whether the camera or the file says so"),
        .show = [this](const DayLine& line) {
            const SeenFilm* const shown = line.match ? m_desk.seen(line.match->from) : nullptr;
            if (!shown)
                return Cell{};
            const double ofDay = shown->began - std::floor(shown->began / 86400) * 86400;
            return Cell{QStringLiteral("%1 (%2)").arg(
                qtText(timeOfDayText(std::floor(ofDay))),
                shown->source == RecordingTime::Camera ? tr("camera") : tr("file"))};
        }};
    return {state, film, match, recorded};
}

void DayPanel::showDay() {
    {
        const QScopedValueRollback showing(m_isShowing, true);
        m_model.show(m_desk.lines());
    }
    m_model.refresh(); // the films may have other names and times
    showFront();
    showNote();
}

void DayPanel::showFront() {
    const int place = m_model.placeOfKey(m_desk.front());
    if (place < 0 || place == m_table->currentPlace())
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    m_table->choose(place);
}

/// What the coach has to know of the films that stand in no row.
void DayPanel::showNote() {
    const bool isEmpty = m_desk.lines().empty(); // of a list that was taken back nothing is said
    const DayMatching matching = isEmpty ? DayMatching() : m_desk.matching();
    const WatchedFilms& watched = m_desk.films().watched();
    QStringList notes;
    if (const auto offset = matching.offeredOffset)
        notes.append(
            tr("The camera's clock seems to be %1 the start list.").arg(offsetText(*offset)));
    if (watched.isCardAway())
        notes.append(tr("%1 is not there.").arg(watched.cardFolder()));
    if (!m_desk.films().copied().empty())
        notes.append(tr("Copying %1.").arg(qtText(m_desk.films().copied())));
    if (watched.growing() > 0)
        notes.append(tr("%1 still growing.").arg(watched.growing()));
    if (matching.extra.size() == 1)
        notes.append(tr("Of no boat: %1.").arg(qtText(matching.extra.front())));
    else if (!matching.extra.empty())
        notes.append(tr("Of no boat: %1 films, the first is %2.")
                         .arg(matching.extra.size())
                         .arg(qtText(matching.extra.front())));
    if (matching.ofOtherDays > 0)
        notes.append(tr("Of other days: %1.").arg(matching.ofOtherDays));
    m_note->setText(notes.join(' '));
    m_offset->setVisible(matching.offeredOffset.has_value());
}

} // namespace kavela::desktop
