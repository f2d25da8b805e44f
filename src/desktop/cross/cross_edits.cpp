#include "desktop/cross/course_strip.h"
#include "desktop/cross/cross_window.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/film/film_deck.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/folder_films.h"

#include <algorithm>
#include <limits>

/// What the keys of the cross window do to the marks, and how films come into the folder.
namespace kavela::desktop {

namespace {

/// Seconds by which two readings of one moment may differ.
constexpr double SameMoment = 1e-6;

} // namespace

void CrossWindow::mark() {
    if (const auto moment = CrossDesk{m_document, *m_deck, m_workspace}.moment())
        page().mark(*moment);
    else if (m_deck->cameras() == 0)
        tell(tr("There is no film to mark on."));
}

void CrossWindow::moveMarkHere() {
    if (const auto moment = CrossDesk{m_document, *m_deck, m_workspace}.moment())
        page().moveMark(*moment);
}

/// The frame on the screen stays.
void CrossWindow::nudgeMark(int frames) {
    const auto marks = page().marks();
    const auto selected = page().selectedMark();
    const auto mark = selected ? selected : page().lastMark();
    if (!mark || *mark >= marks.size()) {
        tell(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    if (mark != selected)
        page().selectMark(*mark);
    page().moveMark(m_deck->nudged(0, marks[*mark].stamp, frames));
}

void CrossWindow::dropMark(std::size_t mark, double seconds) {
    const auto index = m_deck->index(0);
    const auto frame = index ? index->frameAt(seconds) : std::nullopt;
    if (!frame || mark >= page().marks().size())
        return;
    page().selectMark(mark);
    page().moveMark(index->stampOf(*frame));
}

void CrossWindow::goToMark(std::size_t mark) {
    const auto marks = page().marks();
    if (mark >= marks.size())
        return;
    page().selectMark(mark);
    m_deck->seek(marks[mark].stamp);
}

/// The mark before or after where the film stands, also while its frame is still on its way;
/// without a film, beside the selected one.
void CrossWindow::stepMark(int step) {
    const auto marks = page().marks();
    const auto selected = page().selectedMark();
    std::optional<double> now;
    if (m_deck->cameras() > 0)
        now = m_deck->position();
    else if (selected && *selected < marks.size())
        now = marks[*selected].stamp.seconds();
    std::optional<std::size_t> found;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t mark = 0; mark < marks.size(); ++mark) {
        const double way = now ? step * (marks[mark].stamp.seconds() - *now) : 0;
        const bool isAhead = !now || way > SameMoment;
        if (isAhead && way < least && page().stopsAt(mark)) {
            found = mark;
            least = way;
        }
    }
    if (found)
        goToMark(*found);
}

QStringList CrossWindow::copied(const QStringList& files) {
    return copiedIntoFolder(m_document.folder(), files, m_workspace, this);
}

void CrossWindow::importFilms() {
    const QStringList names =
        copied(m_chooseFiles(tr("Import films of time trials"), videoFilter()));
    if (names.isEmpty())
        return;
    showPage(Page::Trials);
    m_trials->addFilms(names);
}

void CrossWindow::chooseFilm() {
    if (&page() == static_cast<CrossPage*>(m_trials) && !m_trials->trial())
        return;
    const QStringList chosen =
        m_chooseFiles(tr("Choose the film of the trial or heat"), videoFilter()).mid(0, 1);
    if (const QStringList names = copied(chosen); !names.isEmpty())
        page().setFilm(names.front());
}

bool CrossWindow::save() {
    if (!commit())
        return false; // what is wrong with the course is shown
    return m_document.save(this);
}

} // namespace kavela::desktop
