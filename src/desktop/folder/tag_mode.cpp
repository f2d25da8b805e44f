#include "desktop/folder/tag_mode.h"

#include "desktop/film/film_stage.h"
#include "desktop/folder/film_shelf.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "splitdata/film_marks.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* TagNamesKey = "savedtags";

/// The numbers of the marks at the ends of a cut, behind all tags.
constexpr std::size_t CutFirstNumber = 1'000'000;
constexpr std::size_t CutLastNumber = CutFirstNumber + 1;

} // namespace

TagMode::TagMode(Workspace& workspace, FilmShelf& shelf, FilmStage& stage)
    : QObject(&stage), m_workspace(workspace), m_shelf(shelf), m_stage(stage) {
    m_name = names().value(0, tr("Tag"));
}

void TagMode::setFilm(const QString& path) {
    if (path != m_film) {
        m_film = path;
        m_selected.reset();
        clearCut();
    }
    refresh();
}

QStringList TagMode::names() const {
    QStringList names;
    for (const std::string& name : m_workspace.preferences().array(TagNamesKey))
        names.append(qtText(name));
    return names;
}

void TagMode::setCurrentName(const QString& name) {
    const QString plain = name.simplified();
    if (plain.isEmpty())
        return;
    m_name = plain;
    std::vector<std::string> saved = m_workspace.preferences().array(TagNamesKey);
    if (std::ranges::count(saved, plain.toStdString()) > 0)
        return;
    saved.push_back(plain.toStdString());
    m_workspace.setPreference(TagNamesKey, saved);
}

std::vector<FilmTag> TagMode::tags() const {
    const ListedFilm* const film = m_shelf.film(m_film);
    return film ? film->tags : std::vector<FilmTag>();
}

std::optional<FilmTag> TagMode::selectedTag() const {
    const std::vector<FilmTag> all = tags();
    return m_selected && *m_selected < all.size() ? std::optional(all[*m_selected]) : std::nullopt;
}

void TagMode::refresh() {
    if (m_selected && *m_selected >= tags().size())
        m_selected.reset();
    m_stage.showMarks();
}

std::vector<LineMark> TagMode::marks() const {
    std::vector<LineMark> marks;
    std::size_t number = 0;
    for (const FilmTag& tag : tags())
        marks.push_back({tag.moment, qtText(tag.name), number++});
    if (m_first)
        marks.push_back({*m_first, QStringLiteral("["), CutFirstNumber});
    if (m_last)
        marks.push_back({*m_last, QStringLiteral("]"), CutLastNumber});
    std::ranges::stable_sort(
        marks, [](const LineMark& a, const LineMark& b) { return orderOf(a.stamp, b.stamp) < 0; });
    return marks;
}

/// Who presses a key means the film that is in front now, whenever its frame is known.
void TagMode::setTag(const QString& name) {
    if (m_film.isEmpty())
        return m_stage.refuse(tr("There is no film to tag."));
    m_stage.whenMeant([this, film = m_film, name](const PressQueue::Stamps& stamps) {
        const ListedFilm* const shown = m_shelf.film(film);
        if (stamps.empty() || !shown)
            return;
        const FilmTag tag{name.toStdString(), stamps.front(), false};
        if (std::ranges::find(shown->tags, tag) != shown->tags.end())
            return m_stage.refuse(tr("This frame has the tag “%1” already.").arg(name));
        m_shelf.addTag(film, tag);
        m_stage.flash(name);
    });
}

void TagMode::markHere() {
    setTag(m_name);
}

void TagMode::pressNumber(int number) {
    const QStringList all = names();
    if (number < 1 || number > all.size())
        return m_stage.refuse(
            tr("There is no tag %1 yet: type its name below the film.").arg(number));
    m_name = all[number - 1];
    setTag(m_name);
}

void TagMode::moveTag(const FilmTag& tag, const CMTime& moment) {
    if (tag.isOfSplitFile)
        return m_stage.refuse(tr("This tag is of the split file: split taking moves it."));
    m_shelf.moveTag(m_film, tag, moment);
    const FilmTag moved{tag.name, moment, false};
    const std::vector<FilmTag> all = tags();
    const auto place = std::ranges::find(all, moved);
    if (place != all.end())
        m_selected = static_cast<std::size_t>(place - all.begin());
    refresh();
}

void TagMode::moveMarkHere() {
    const auto tag = selectedTag();
    if (!tag)
        return m_stage.refuse(tr("No tag is selected."));
    m_stage.whenMeant([this, film = m_film, tag = *tag](const PressQueue::Stamps& stamps) {
        if (film == m_film && !stamps.empty())
            moveTag(tag, stamps.front());
    });
}

void TagMode::nudgeMark(int frames) {
    if (const auto tag = selectedTag())
        moveTag(*tag, m_stage.deck().nudged(0, tag->moment, frames));
}

void TagMode::deleteMark() {
    const auto tag = selectedTag();
    if (!tag)
        return m_stage.refuse(tr("No tag is selected."));
    if (!tag->isOfSplitFile)
        m_selected.reset();
    m_shelf.removeTag(m_film, *tag);
}

bool TagMode::stepMark(int step) {
    const auto here = m_stage.deck().meant();
    const std::vector<FilmTag> all = tags();
    if (here.empty() || all.empty())
        return false;
    std::optional<std::size_t> next;
    for (std::size_t number = 0; number < all.size(); ++number) {
        const auto order = orderOf(all[number].moment, here.front());
        if (step < 0 && order < 0)
            next = number;
        if (step > 0 && order > 0 && !next)
            next = number;
    }
    if (next)
        goToMark(*next);
    return next.has_value();
}

void TagMode::goToMark(std::size_t number) {
    if (number == CutFirstNumber || number == CutLastNumber) {
        const auto& end = number == CutFirstNumber ? m_first : m_last;
        if (end)
            m_stage.deck().seek(*end);
        return;
    }
    const std::vector<FilmTag> all = tags();
    if (number >= all.size())
        return;
    m_selected = number;
    m_stage.deck().pause();
    m_stage.deck().seek(all[number].moment);
    m_stage.showMarks();
}

void TagMode::dropMark(std::size_t number, double seconds) {
    m_stage.whenKnown(seconds, [this, film = m_film, number](const std::optional<CMTime>& stamp) {
        if (!stamp || film != m_film)
            return refresh();
        if (number == CutFirstNumber || number == CutLastNumber) {
            (number == CutFirstNumber ? m_first : m_last) = *stamp;
            emit cutChanged();
            return refresh();
        }
        if (const std::vector<FilmTag> all = tags(); number < all.size())
            moveTag(all[number], *stamp);
        refresh(); // one that stays is shown where it was
    });
}

void TagMode::setCutEnd(std::optional<CMTime> TagMode::*end) {
    if (m_film.isEmpty())
        return m_stage.refuse(tr("There is no film to cut."));
    m_stage.whenMeant([this, end, film = m_film](const PressQueue::Stamps& stamps) {
        if (film != m_film || stamps.empty())
            return;
        this->*end = stamps.front();
        emit cutChanged();
        refresh();
    });
}

void TagMode::setCutFirst() {
    setCutEnd(&TagMode::m_first);
}

void TagMode::setCutLast() {
    setCutEnd(&TagMode::m_last);
}

void TagMode::clearCut() {
    m_first.reset();
    m_last.reset();
    emit cutChanged();
    m_stage.showMarks();
}

} // namespace kavela::desktop
