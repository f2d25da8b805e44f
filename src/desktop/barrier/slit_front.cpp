#include "desktop/barrier/slit_front.h"

#include "desktop/barrier/slit_panel.h"
#include "desktop/barrier/slit_stage.h"
#include "desktop/barrier/slit_view.h"
#include "desktop/film/film_view.h"
#include "desktop/shell/tables/column_table.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

void SlitFront::show() {
    std::vector<SlitGuess> guesses;
    for (const Proposal& proposal : m_marking.proposals())
        guesses.push_back({proposal.seconds, proposal.confidence});
    m_stage.slit().setGuesses(std::move(guesses));
    m_panel.showRows(m_marking.rows());
    if (m_run < 0 && !m_panel.runs().empty()) {
        m_panel.runTable().choose(0);
        m_run = m_panel.runs().front().run.run; // also where it was chosen already
    }
    showMarks();
}

void SlitFront::follow() {
    const SlitRunRow* const row = m_panel.chosen();
    if (!row || row->run.run == m_run)
        return;
    const bool wasNone = std::exchange(m_run, row->run.run) < 0;
    showMarks();
    if (!wasNone)
        goToRun();
}

void SlitFront::goToRun() {
    const SlitRunRow* const row = m_panel.chosen();
    if (!row)
        return;
    if (row->run.seconds)
        setHair(*row->run.seconds);
    else if (row->proposal)
        setHair(row->proposal->seconds);
}

void SlitFront::stepRun(int step) {
    const int place = m_panel.runTable().currentPlace() + step;
    if (place >= 0 && place < static_cast<int>(m_panel.runs().size()))
        m_panel.runTable().choose(place);
}

void SlitFront::goOn(bool isMarked) {
    const auto place = placeOf(m_run);
    if (!place)
        return;
    const auto& rows = m_panel.runs();
    const auto before = rows.begin() + *place;
    if (isMarked)
        m_stage.film().flash(before->run.crew);
    const auto isOpen = [](const SlitRunRow& row) { return !row.run.seconds; };
    if (const auto next = std::find_if(before, rows.end(), isOpen); next != rows.end())
        m_panel.runTable().choose(static_cast<int>(next - rows.begin()));
}

bool SlitFront::stepProposal(int step) {
    const auto to = m_marking.proposalBeside(m_stage.slit().hair(), step);
    if (to)
        goToProposal(to->proposal.seconds, to->run);
    return to.has_value();
}

void SlitFront::goToProposal(double seconds, int run) {
    if (const auto place = placeOf(run)) {
        m_run = run; // before the table tells: the hair line goes to the proposal alone
        m_panel.runTable().choose(*place);
        showMarks();
    }
    setHair(seconds);
}

std::optional<int> SlitFront::placeOf(int run) const {
    const auto& rows = m_panel.runs();
    const auto row =
        std::ranges::find(rows, run, [](const SlitRunRow& each) { return each.run.run; });
    return row != rows.end() ? std::optional(static_cast<int>(row - rows.begin())) : std::nullopt;
}

void SlitFront::showMarks() {
    std::vector<SlitMark> marks;
    for (const SlitRunRow& row : m_panel.runs())
        if (row.run.seconds)
            marks.push_back({*row.run.seconds, row.run.crew, row.run.run, row.run.run == m_run});
    m_stage.slit().setMarks(std::move(marks));
}

void SlitFront::setHair(double seconds) {
    if (const auto column = m_marking.columnAt(seconds))
        m_stage.setHair(*column);
}

} // namespace kavela::desktop
