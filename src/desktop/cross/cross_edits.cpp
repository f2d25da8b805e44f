#include "desktop/cross/course_strip.h"
#include "desktop/cross/cross_window.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/film/film_deck.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/folder_films.h"
#include "splittaking/marking.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

/// What the keys of the cross window do to the marks, and how films come into the folder.
namespace kavela::desktop {

namespace {

/// Seconds by which two readings of one moment may differ.
constexpr double SameMoment = 1e-6;

} // namespace

/// Acts on the page in front with the frame that is meant now, as soon as that is known.
void CrossWindow::press(const std::function<void(CrossPage&, const CMTime&)>& act) {
    if (m_deck->cameras() == 0) {
        refuse(page().film().isEmpty()
                   ? tr("There is no film to mark on.")
                   : tr("Nothing can be marked: %1 is not in the folder of the split file. File > "
                        "Where are the films now?")
                         .arg(page().film()));
        return;
    }
    m_deck->whenMeant(
        [this, act, meant = &page()](const std::vector<CMTime>& stamps) {
            const QScopedValueRollback<bool> pressed(m_isPressed, true);
            act(*meant, stamps.front());
        },
        [this](const QString& why) { refuse(why); });
}

void CrossWindow::mark() {
    press([](CrossPage& page, const CMTime& moment) { page.mark(moment); });
}

void CrossWindow::moveMarkHere() {
    m_deck->finishPresses();
    press([](CrossPage& page, const CMTime& moment) { page.moveMark(moment); });
}

/// The frame on the screen stays.
void CrossWindow::nudgeMark(int frames) {
    m_deck->finishPresses(); // the last mark may be one of them
    const auto marks = page().marks();
    const auto selected = page().selectedMark();
    const auto mark = selected ? selected : page().lastMark();
    if (!mark || *mark >= marks.size()) {
        refuse(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    if (mark != selected)
        page().selectMark(*mark);
    const auto nudge = [this, meant = &page(), stamp = marks[*mark].stamp, frames] {
        meant->moveMark(m_deck->nudged(0, stamp, frames));
    };
    if (m_deck->cameras() == 0 || !m_deck->fault(0).isEmpty() || m_deck->index(0))
        nudge();
    else
        m_deck->whenKnown(
            marks[*mark].stamp, [nudge](const std::vector<CMTime>&) { nudge(); },
            [this](const QString& why) { refuse(why); });
}

void CrossWindow::dropMark(std::size_t mark, double seconds) {
    const auto marks = page().marks();
    if (mark >= marks.size())
        return;
    page().selectMark(mark);
    const CMTime& before = marks[mark].stamp;
    if (m_deck->cameras() == 0 || !m_deck->fault(0).isEmpty())
        page().moveMark(later(before, seconds - before.seconds()));
    else
        m_deck->whenKnown(
            seconds,
            [meant = &page()](const std::vector<CMTime>& stamps) {
                meant->moveMark(stamps.front());
            },
            [this](const QString& why) { refuse(why); });
}

void CrossWindow::findFilms() {
    const QString folder = m_chooseFolder(tr("Where are the films now?"));
    if (folder.isEmpty())
        return;
    const QStringList missing = m_document.findFilms(folder);
    showDocument();
    if (!missing.isEmpty())
        refuse(tr("Not found: %1.").arg(missing.join(", ")));
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
    return copiedIntoFolder(m_document.folder(), files, workspace(), this);
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

} // namespace kavela::desktop
