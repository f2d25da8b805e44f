#include "common/json_encode.h"
#include "desktop/charts/sensor_series.h"
#include "desktop/sessions/information_dialog.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_view.h"
#include "desktop/sessions/session_window.h"
#include "desktop/shell/workspace.h"

#include <QStatusBar>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr int EditToldMilliseconds = 6000;
constexpr double SamePlace = 1e-6; // s: what is closer is the same moment

} // namespace

void SessionWindow::editInformation() {
    const infosessionSmart_v3 before = m_document->value().session.info;
    InformationDialog dialog(before, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const infosessionSmart_v3 after = dialog.information();
    if (encode(after) == encode(before))
        return;
    m_document->edit(tr("session information"),
                     [&](EditedSession& session) { session.session.info = after; });
}

void SessionWindow::cutTo(const QString& what, std::optional<EditedSession> cut) {
    if (!cut) {
        tell(tr("Nothing was cut"), tr("Too little would be left of the session."));
        return;
    }
    m_view->select(std::nullopt);
    m_document->edit(what, [&](EditedSession& session) { session = std::move(*cut); });
}

void SessionWindow::keepSelection() {
    if (const auto range = m_view->selection())
        cutTo(tr("cut to a stretch"), keptRange(m_document->value(), *range));
}

void SessionWindow::removeSelection() {
    if (const auto range = m_view->selection())
        cutTo(tr("removal of a stretch"), withoutRange(m_document->value(), *range));
}

void SessionWindow::removeCurrent() {
    const std::vector<std::size_t> entries = m_view->tables().selectedEntries();
    const bool isInTable = m_view->tables().isAncestorOf(focusWidget());
    if (!isInTable || entries.empty()) {
        removeMark();
        return;
    }
    m_document->edit(tr("removal of strokes"),
                     [&](EditedSession& session) { removeEntries(session, entries); });
}

void SessionWindow::setMarksTo(const QString& what, std::vector<double> marks) {
    m_document->edit(what, [&](EditedSession& session) { setMarks(session, std::move(marks)); });
    const std::size_t count = m_document->value().marks.size();
    statusBar()->showMessage(count < 2 ? tr("%1 marks: two make a segment").arg(count)
                                       : tr("%1 segments").arg(count - 1),
                             EditToldMilliseconds);
}

void SessionWindow::mark() {
    if (!hasSession())
        return;
    if (hasMarkAt(m_replay->moment()))
        return;
    std::vector<double> marks = m_document->value().marks;
    marks.push_back(m_replay->moment());
    setMarksTo(tr("mark"), std::move(marks));
}

bool SessionWindow::hasMarkAt(double moment) const {
    return std::ranges::any_of(m_document->value().marks, [moment](double mark) {
        return std::abs(mark - moment) < SamePlace;
    });
}

/// The nearest one, however far: it is shown where it is.
std::optional<std::size_t> SessionWindow::markAtCursor() const {
    const std::vector<double>& marks = m_document->value().marks;
    const auto nearest = std::ranges::min_element(
        marks, {}, [this](double mark) { return std::abs(mark - m_replay->moment()); });
    if (nearest == marks.end())
        return std::nullopt;
    return static_cast<std::size_t>(nearest - marks.begin());
}

void SessionWindow::removeMark() {
    const auto place = markAtCursor();
    if (!place)
        return;
    std::vector<double> marks = m_document->value().marks;
    marks.erase(marks.begin() + static_cast<std::ptrdiff_t>(*place));
    setMarksTo(tr("removal of a mark"), std::move(marks));
}

void SessionWindow::removeMarks() {
    if (!m_document->value().marks.empty())
        setMarksTo(tr("removal of all marks"), {});
}

void SessionWindow::moveMark(double seconds) {
    const auto place = markAtCursor();
    if (!place)
        return;
    std::vector<double> marks = m_document->value().marks;
    const double moved = std::clamp(marks[*place] + seconds, m_replay->from(), m_replay->to());
    if (hasMarkAt(moved)) {
        statusBar()->showMessage(tr("There is a mark already"), EditToldMilliseconds);
        return;
    }
    marks[*place] = moved;
    setMarksTo(tr("move of a mark"), std::move(marks));
    m_replay->setMoment(moved);
    statusBar()->showMessage(tr("Mark at %1").arg(momentText(moved - m_replay->from(), 1)),
                             EditToldMilliseconds);
}

void SessionWindow::moveMarkHere() {
    if (const auto place = markAtCursor())
        moveMark(m_replay->moment() - m_document->value().marks[*place]);
}

void SessionWindow::goToMark(int steps) {
    const std::vector<double>& marks = m_document->value().marks;
    const double here = m_replay->moment();
    if (steps > 0) {
        const auto next = std::ranges::upper_bound(marks, here + SamePlace);
        if (next != marks.end())
            m_replay->setMoment(*next);
    } else {
        const auto next = std::ranges::lower_bound(marks, here - SamePlace);
        if (next != marks.begin())
            m_replay->setMoment(*std::prev(next));
    }
}

void SessionWindow::goToStroke(int steps) {
    const std::vector<StrokeFigures>& strokes = m_view->figures().strokes;
    const double here = m_replay->moment();
    const auto next = std::ranges::upper_bound(strokes, here + SamePlace, {}, &StrokeFigures::time);
    const auto before =
        std::ranges::lower_bound(strokes, here - SamePlace, {}, &StrokeFigures::time);
    if (steps > 0 && next != strokes.end())
        m_replay->setMoment(next->time);
    else if (steps < 0 && before != strokes.begin())
        m_replay->setMoment(std::prev(before)->time);
}

void SessionWindow::saveSegments() {
    const std::vector<double>& marks = m_document->value().marks;
    if (marks.size() < 2) {
        tell(TooFewMarksTitle, TooFewMarks);
        return;
    }
    m_view->tables().setCurrentIndex(SessionTables::SegmentPage);
    save();
}

} // namespace kavela::desktop
