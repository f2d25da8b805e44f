#include "desktop/taking/day/day_desk.h"

#include "desktop/film/film_stage.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/typed_number.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/splitfile/taking_edits.h"
#include "desktop/taking/day/day_runs.h"
#include "splittaking/race_day/day_edits.h"
#include "splittaking/race_day/film_naming.h"

#include <QDate>
#include <QDateTime>
#include <QLabel>

#include <algorithm>
#include <string>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int GlanceMilliseconds = 1000;

QDateTime localMoment(ReferenceDate date) {
    return QDateTime::fromMSecsSinceEpoch(
        static_cast<qint64>((date.seconds + SecondsFrom1970To2001) * 1000));
}

} // namespace

QString startText(const DayStart& start) {
    return start.bib > 0 ? QStringLiteral("%1 %2").arg(start.bib).arg(qtText(start.name))
                         : qtText(start.name);
}

DayDesk::DayDesk(Parts parts)
    : QObject(&parts.stage),
      m_parts(std::move(parts)),
      m_films(m_parts.document, this),
      m_matches(m_parts.document, m_films, this),
      m_glance(new QLabel) {
    m_glance->setObjectName("dayGlance");
    m_glance->setTextFormat(Qt::PlainText);
    m_glance->setWordWrap(true);
    m_glance->hide();
    m_clock.setInterval(GlanceMilliseconds);
    connect(&m_clock, &QTimer::timeout, this, &DayDesk::showGlance);
    // The films hear of every change of the document first.
    connect(&m_films, &DayFilms::changed, this, [this] {
        m_matches.forget();
        follow();
    });
    connect(&m_parts.document, &TakingDocument::changed, this, &DayDesk::follow);
    connect(&m_matches, &DayMatches::matched, this, &DayDesk::takeMatches);
    connect(&m_films, &DayFilms::failed, &m_parts.stage, &FilmStage::refuse);
    connect(&m_parts.document, &TakingDocument::dayNotKept, &m_parts.stage,
            [this](const QString& why) {
                m_parts.stage.refuse(tr("The race day could not be kept: %1").arg(why));
            });
}

std::string DayDesk::nameOfFilm(const std::string& from) const {
    return presentName(m_parts.document.day(), from);
}

const SeenFilm* DayDesk::seen(const std::string& from) const {
    const auto found = std::ranges::find(m_films.seen(), from, &SeenFilm::from);
    return found == m_films.seen().end() ? nullptr : &*found;
}

std::optional<std::size_t> DayDesk::place(std::int64_t start) const {
    const auto found =
        std::ranges::find_if(m_lines, [&](const DayLine& each) { return each.start.id == start; });
    return found == m_lines.end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(found - m_lines.begin()));
}

const DayLine* DayDesk::line(std::int64_t start) const {
    const auto at = place(start);
    return at ? &m_lines[*at] : nullptr;
}

/// A mark that was taken changes what is timed, and no match.
void DayDesk::follow() {
    if (m_parts.document.day().starts.empty() && m_lines.empty())
        return; // no race day: it costs nothing
    m_matches.follow();
    showLines();
    if (!isMatching())
        bringFilms();
}

void DayDesk::takeMatches() {
    showLines();
    bringFilms();
    if (std::exchange(m_isRunToFollow, false))
        followRun();
}

void DayDesk::showLines() {
    m_lines = dayLines(m_parts.document.day(), matching(), m_matches.timed());
    if (!line(m_front))
        m_front = m_lines.empty() ? 0 : m_lines.front().start.id;
    m_lines.empty() ? m_clock.stop() : m_clock.start();
    showGlance();
    emit changed();
}

/// Films of the card come by themselves as soon as they probably show a boat: the card is pulled
/// out again in a moment.
void DayDesk::bringFilms() {
    std::vector<std::string> wanted;
    for (const DayMatch& match : matching().matches)
        if (match.confidence >= LikelyConfidence)
            if (const DaySource* const film = m_films.source(match.from); film && !film->isHere)
                wanted.push_back(match.from);
    m_films.bringHere(wanted);
}

double DayDesk::nowOfDay() const {
    return wallSeconds(m_parts.workspace.clock()(), m_parts.document.day().date);
}

void DayDesk::showGlance() {
    m_glance->setVisible(!m_lines.empty());
    QString text = qtText(glanceText(m_lines, nowOfDay()));
    if (const auto start = next())
        text += tr(" · U: %1").arg(startText(line(*start)->start));
    if (text != m_glance->text())
        m_glance->setText(text);
}

void DayDesk::setFront(std::int64_t start) {
    m_isRunToFollow = false;
    if (start == m_front || !line(start))
        return;
    m_front = start;
    showGlance();
    emit frontChanged();
}

void DayDesk::stepFront(int step) {
    m_matches.settle(); // the start of the run in front may only then be known
    const auto at = place(m_front);
    if (refusesWithoutFront() || !at)
        return;
    const auto to = static_cast<std::ptrdiff_t>(*at) + step;
    if (to < 0 || to >= std::ssize(m_lines))
        return;
    setFront(m_lines[static_cast<std::size_t>(to)].start.id);
    m_parts.stage.flash(startText(line(m_front)->start));
}

void DayDesk::followRun() {
    m_isRunToFollow = isMatching();
    if (m_isRunToFollow) // its start is known only then
        return;
    const int run = m_parts.run();
    for (const DayLine& each : m_lines)
        if (run >= 0 && m_matches.runOfStart(each.start.id) == run)
            return setFront(each.start.id);
}

void DayDesk::edit(const QString& what, RaceDay day) {
    m_parts.document.edit(what, [&](TakingState& state) { setDay(state, std::move(day)); });
}

QDate DayDesk::date() const {
    const QDate date = QDate::fromString(qtText(m_parts.document.day().date), Qt::ISODate);
    return date.isValid() ? date : localMoment(m_parts.document.info().date).date();
}

void DayDesk::takeStarts(const StartList& list, const QString& phase, const QDate& date) {
    RaceDay day = withStarts(m_parts.document.day(), list, phase.toStdString());
    day.date = date.toString(Qt::ISODate).toStdString();
    edit(tr("start list"), std::move(day));
}

void DayDesk::watchFolder(const QString& folder) {
    RaceDay day = m_parts.document.day();
    day.folder = folder.toStdString();
    edit(tr("folder of the films"), std::move(day));
}

void DayDesk::editStart(std::int64_t start, const std::function<void(DayStart&)>& change) {
    RaceDay day = m_parts.document.day();
    const auto found = std::ranges::find(day.starts, start, &DayStart::id);
    if (found == day.starts.end())
        return;
    change(*found);
    edit(tr("start list"), std::move(day));
}

void DayDesk::removeFront() {
    if (isReady())
        edit(tr("start removed"), withoutStart(m_parts.document.day(), m_front));
}

bool DayDesk::refusesWithoutFront() {
    if (m_lines.empty())
        m_parts.stage.refuse(tr("There is no start list yet: Day > Start list."));
    return m_lines.empty();
}

/// What is typed is taken over before the films are matched to it.
bool DayDesk::isReady() {
    if (refusesWithoutFront() || !m_parts.commit())
        return false;
    m_matches.settle();
    return true;
}

/// The start in front itself, where its film waits and is not the one that is seen.
std::optional<std::int64_t> DayDesk::next() const {
    const DayLine* const here = line(m_front);
    if (here && here->state == StartState::Filmed && m_matches.runOfStart(m_front) != m_parts.run())
        return m_front;
    const auto behind = nextUntimed(m_lines, m_front);
    return behind ? std::optional(m_lines[*behind].start.id) : std::nullopt;
}

void DayDesk::goToNext() {
    if (!isReady())
        return;
    if (const auto start = next())
        open(*start);
    else
        m_parts.stage.refuse(tr("No film waits to be timed."));
}

void DayDesk::openFront() {
    if (isReady())
        open(m_front);
}

void DayDesk::open(std::int64_t start) {
    const DayLine* const wanted = line(start);
    if (!wanted || !wanted->match)
        return m_parts.stage.refuse(
            tr("There is no film of %1 yet.").arg(wanted ? startText(wanted->start) : QString()));
    const std::string from = wanted->match->from;
    const QString who = startText(wanted->start);
    const DaySource* const film = m_films.source(from);
    if (film && !film->isHere) {
        m_films.bringHere({from});
        return m_parts.stage.refuse(tr("The film of %1 is still being copied.").arg(who));
    }
    const bool isUnsure = wanted->match->confidence < LikelyConfidence;
    makeRun(start, from);
    if (const auto run = m_matches.runOfStart(start))
        m_parts.selectRun(*run);
    setFront(start);
    m_parts.stage.deck().play(1);
    m_parts.stage.flash(isUnsure ? tr("Is this %1?").arg(who) : who);
}

/// The run is there when its film is opened, with its crew; what is opened stays with its boat.
void DayDesk::makeRun(std::int64_t start, const std::string& from) {
    const RaceDay& before = m_parts.document.day();
    if (findFilmFrom(before, from) && m_matches.runOfStart(start))
        return;
    const std::vector<std::int64_t> boats = m_matches.boatsOn(from);
    const auto needed =
        static_cast<std::size_t>(std::ranges::find(boats, start) - boats.begin()) + 1;
    m_parts.document.edit(
        tr("film of %1").arg(startText(*findStart(before, start))), [&](TakingState& state) {
            const std::string name = presentName(*state.day, from);
            setDay(state, withKept(*state.day, matching(), from));
            for (auto count = runsOfFilm(state, name).size(); count < needed; ++count)
                state = withMoreRuns(state, {runOf(*findStart(*state.day, boats[count]), name)});
        });
}

void DayDesk::agree() {
    if (!isReady())
        return;
    const DayLine* const wanted = line(m_front);
    if (!wanted)
        return;
    if (!wanted->match)
        m_parts.stage.refuse(tr("There is no film of %1 yet.").arg(startText(wanted->start)));
    else
        agreeTo({wanted->match->from});
}

void DayDesk::agreeToAllSure() {
    if (!isReady())
        return;
    std::vector<std::string> sure;
    for (const DayLine& each : m_lines)
        if (each.match && each.match->state != MatchState::Agreed &&
            each.match->confidence >= SureConfidence &&
            std::ranges::find(sure, each.match->from) == sure.end())
            sure.push_back(each.match->from);
    if (sure.empty())
        m_parts.stage.refuse(tr("There is no film that is surely matched and not agreed to yet."));
    else
        agreeTo(sure);
}

/// The files have their names before the day says so: a name that cannot be given is told, and
/// nothing of that film changes.
void DayDesk::agreeTo(const std::vector<std::string>& films) {
    FilmStage& stage = m_parts.stage;
    const double rate = stage.deck().isPlaying() ? stage.deck().rate() : 0;
    stage.rememberPlace(); // a film that has another name is opened anew
    const QStringList before = stage.films();
    RaceDay day = m_parts.document.day();
    QStringList left;
    qsizetype agreed = 0;
    for (const std::string& from : films)
        nameFilm(day, from) ? void(++agreed) : left.append(qtText(nameOfFilm(from)));
    if (agreed > 0)
        edit(agreed == 1 ? tr("film agreed to") : tr("films agreed to"), std::move(day));
    if (rate != 0 && stage.films() != before)
        stage.deck().play(rate);
    if (!left.isEmpty())
        stage.refuse(tr("Not named, as it is not in the folder of the race or cannot be named "
                        "there: %1")
                         .arg(left.join(", ")));
    else
        stage.flash(agreed == 1 ? tr("Agreed")
                                : tr("%n films agreed to", nullptr, static_cast<int>(agreed)));
}

/// A film of several boats keeps its name, which could be that of only one of them.
bool DayDesk::nameFilm(RaceDay& day, const std::string& from) {
    const DaySource* const source = m_films.source(from);
    if (!source || !source->isHere)
        return false;
    day = withKept(std::move(day), matching(), from);
    DayFilm& film = filmFrom(day, from);
    if (film.starts.size() == 1) {
        const std::int64_t start = film.starts.front();
        const std::string wanted =
            filmNameOf(*findStart(day, start), place(start).value_or(0) + 1,
                       m_parts.document.filmPattern().toStdString(), presentName(day, from));
        const auto given = m_films.name(from, wanted.empty() ? presentName(day, from) : wanted);
        if (!given)
            return false;
        film.film = *given;
    }
    film.agreed = true;
    return true;
}

void DayDesk::shift(int step) {
    if (!isReady())
        return;
    edit(step > 0 ? tr("films one start later") : tr("films one start earlier"),
         withShift(m_parts.document.day(), matching(), m_front, step));
    m_matches.settle(); // what came of it is told
    const DayLine* const now = line(m_front);
    m_parts.stage.flash(
        now && now->match
            ? tr("%1: %2").arg(startText(now->start), qtText(nameOfFilm(now->match->from)))
            : tr("%1: no film").arg(now ? startText(now->start) : QString()));
}

void DayDesk::assign(std::int64_t start, const QString& film) {
    m_matches.settle();
    const DayLine* const wanted = line(start);
    if (!wanted)
        return;
    const RaceDay& day = m_parts.document.day();
    if (film.isEmpty()) {
        if (!wanted->match)
            return;
        const std::string from = wanted->match->from;
        std::vector<std::int64_t> left = m_matches.boatsOn(from);
        std::erase(left, start);
        return edit(tr("film of another boat"), withFilm(day, from, left));
    }
    for (const SeenFilm& each : m_films.seen())
        if (qtText(each.from) == film || qtText(nameOfFilm(each.from)) == film)
            return edit(tr("film given to a boat"),
                        withFilmToo(withKept(day, matching(), each.from), each.from, start));
    throw RefusedEntry(tr("There is no film %1").arg(film));
}

void DayDesk::setOut(const char* out) {
    if (!isReady())
        return;
    const DayLine* const wanted = line(m_front);
    if (!wanted)
        return;
    const QString who = startText(wanted->start);
    if (wanted->state == StartState::Timed)
        return m_parts.stage.refuse(tr("%1 is timed: remove the last mark first.").arg(who));
    edit(tr("%1 of %2").arg(QLatin1String(out), who),
         withOut(m_parts.document.day(), m_front, out));
    const DayStart* const now = findStart(m_parts.document.day(), m_front);
    m_parts.stage.flash(now->out.empty() ? tr("%1 counts again").arg(who)
                                         : tr("%1: %2").arg(who, qtText(now->out)));
}

void DayDesk::takeOffset() {
    if (!m_parts.commit())
        return;
    m_matches.settle();
    if (!matching().offeredOffset)
        m_parts.stage.refuse(tr("The clocks of camera and start list go together."));
    else
        edit(tr("clock of the camera"),
             withOffset(m_parts.document.day(), *matching().offeredOffset));
}

} // namespace kavela::desktop
