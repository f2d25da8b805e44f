#include "desktop/taking/splits_shown.h"

#include "desktop/film/film_stage.h"
#include "desktop/film/time_line.h"
#include "desktop/shell/shown_number.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/expected_place.h"
#include "desktop/taking/split_bar.h"
#include "desktop/taking/split_mode.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

SplitsShown::SplitsShown(const TakingDocument& document, FilmStage& stage, const SplitMode& splits,
                         SplitBar& bar)
    : QObject(&stage), m_document(document), m_stage(stage), m_splits(splits), m_bar(bar) {
    connect(&m_splits, &SplitMode::changed, this, &SplitsShown::show);
    connect(&m_stage.deck(), &FilmDeck::frameShown, this, &SplitsShown::showRunning);
    connect(&m_bar, &SplitBar::splitClicked, &m_stage, &FilmStage::goToMark);
}

void SplitsShown::show() {
    m_stage.showMarks();
    showTimes();
    showRunning();
    showExpected();
}

void SplitsShown::showTimes() {
    const RunMarks marks = m_splits.runMarks();
    const std::vector<double> times = splitTimes(marks);
    std::vector<SplitBar::Section> sections;
    const infodata031& info = m_document.info();
    for (std::size_t i = 0; std::cmp_less(i, std::min<std::int64_t>(info.totalsplits, 100)); ++i) {
        const auto title = QString::fromStdString(entryOrZero(info.splitTitles, i));
        const bool isTaken = i < times.size() && stampsOf(marks, i + 1);
        sections.push_back({title.isEmpty() ? 'S' + QString::number(i + 1) : title,
                            isTaken ? shownHundredths(times[i]) : QString()});
    }
    m_bar.setSections(std::move(sections));
    const auto selected = m_splits.selectedMark();
    m_bar.setSelected(selected && *selected > 0 ? selected : std::nullopt);
}

void SplitsShown::showRunning() {
    const RunMarks marks = m_splits.runMarks();
    const std::size_t next = marks.marks.size() + 1;
    const FilmPicture* const shown = m_stage.deck().shown(0);
    const auto last = m_splits.lastMark();
    const bool isRunning =
        shown && last && std::cmp_less_equal(next, m_document.info().totalsplits);
    if (!isRunning) {
        m_bar.setRunning(std::nullopt, {});
        return;
    }
    const double since = shown->frame.stamp.seconds() - stampsOf(marks, *last)->front().seconds();
    m_bar.setRunning(next, since < 0 ? QString() : shownHundredths(since));
}

void SplitsShown::showExpected() {
    const int run = m_splits.run();
    const ExpectedPlace expected = run < 0 ? ExpectedPlace() : expectedPlace(m_document, run);
    m_stage.line().setExpected(expected.seconds, tr("%1?").arg(expected.split));
    m_stage.deck().expect(expected.seconds);
}

} // namespace kavela::desktop
