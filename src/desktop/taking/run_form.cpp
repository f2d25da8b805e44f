#include "desktop/taking/run_form.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/why/why_label.h"
#include "desktop/why/why_popup.h"
#include "splitdata/run_timing.h"
#include "splittaking/course_setup.h"
#include "splittaking/messages.h"
#include "splittaking/video_names.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr double LongestTime = 86400;
constexpr double MostPenalty = 999;

double typedRunTime(const QString& text) {
    return typedSecondsOrNone(
        text, {0, LongestTime,
               qtText(messages::RealTimeNoNumber) + '\n' +
                   RunForm::tr("A comma and minutes, such as 1:32,34, are taken too")});
}

std::int64_t typedRunPenalty(const QString& text) {
    return typedWholeOrNone(
        text, {0, MostPenalty, RunForm::tr("A penalty is a whole number of seconds, 0 to 999")});
}

} // namespace

RunForm::RunForm(TakingDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_form([this](const QString& what, const auto& change) { edit(what, change); }),
      m_total(new WhyLabel([this] { return whyMarked(RunFigure::Total); })),
      m_penalties(new WhyLabel([this] { return whyMarked(RunFigure::Penalties); })),
      m_expected(new WhyLabel([this] { return whyExpected(); })),
      m_perfect(new WhyLabel([this] { return m_document.whyPerfect(); })) {
    addFields();
    addFigures();
    m_form.layout()->setSpacing(theme::SmallSpacing);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&m_form);
    connect(&m_document, &TakingDocument::changed, this, [this] { refresh(false); });
    // Where the cursor is in a field, the key asks for what the form is about.
    answerWhy(this, [this](const QPoint& at) {
        return at == QPoint(-1, -1) ? whyExpected() : std::nullopt;
    });
    showRun(-1);
}

void RunForm::addFields() {
    using Run = athletedata031;
    m_form.text({.name = "crew", .label = tr("Crew")},
                Access{[](const Run& run) { return crewText(run.names); },
                       [](Run& run, const std::string& crew) { run.names = crewIn(crew); }});
    m_form.text({.name = "cat", .label = tr("Category")}, &Run::cat);
    m_form.text({.name = "runPhase", .label = tr("Phase")}, &Run::phase);
    m_form.text({.name = "hand", .label = tr("Hand")}, &Run::hand);
    m_form.line(
        {.name = "realTime", .label = tr("Real time")},
        [](auto& run) -> auto& { return run.sectioninfo.realtime; }, secondsOrNothing,
        typedRunTime);
    m_form.line(
        {.name = "realPenalty", .label = tr("Real penalty")},
        [](auto& run) -> auto& { return run.sectioninfo.realpen; }, wholeOrNothing,
        typedRunPenalty);
    m_form.line(
        {.name = "sprint", .label = tr("Sprint"), .what = tr("sprint time")},
        [](auto& run) -> auto& { return run.sectioninfo.sprinttime; }, secondsOrNothing,
        typedRunTime);
}

void RunForm::addFigures() {
    auto* figures = new QWidget;
    auto* column = new QVBoxLayout(figures);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* total = new QHBoxLayout;
    total->setSpacing(theme::SmallSpacing);
    total->addWidget(m_total);
    total->addWidget(m_penalties, 1);
    column->addLayout(total);
    column->addWidget(m_expected);
    column->addWidget(m_perfect);
    m_form.addRow({}, figures);
}

/// A real time makes another perfect time, which has its line in the log.
void RunForm::edit(const QString& what, const std::function<void(athletedata031&)>& change) {
    const double before = m_document.run(m_run).sectioninfo.realtime;
    m_document.editRun(m_run, what, change);
    if (m_document.run(m_run).sectioninfo.realtime != before)
        m_document.logPerfectTime();
}

void RunForm::commit() {
    (void)m_form.commit();
}

void RunForm::showRun(int run) {
    commit();
    m_run = run;
    refresh(true);
}

void RunForm::runMoved(int run) {
    m_run = run;
    refresh(false);
}

/// By what the analyzer shows of the same run.
std::optional<Reason> RunForm::whyMarked(RunFigure figure) const {
    if (m_run < 0)
        return std::nullopt;
    splittakerdata031 alone;
    alone.info = m_document.info();
    alone.athletes = {m_document.run(m_run)};
    RaceSet set = makeRaceSet(std::move(alone), m_document.path().toStdString());
    set.alldata.front().athleteInt = m_run;
    return explainRunFigure(set, 0, figure);
}

std::optional<Reason> RunForm::whyExpected() const {
    return m_run < 0 ? m_document.whyPerfect() : m_document.whyExpected(m_run);
}

void RunForm::refresh(bool isOther) {
    if (m_run >= m_document.runCount())
        m_run = -1;
    m_form.show(m_run < 0 ? nullptr : &m_document.run(m_run), isOther);
    showFigures();
}

void RunForm::showFigures() {
    const bool hasRun = m_run >= 0;
    const auto told = [&](const QString& text, double seconds) {
        return hasRun ? text.arg(hundredthsOrDash(seconds)) : QString();
    };
    const sectiondata030 timing = hasRun ? m_document.run(m_run).sectioninfo : sectiondata030();
    m_total->tell(told(tr("Total %1 s,"), timing.totaltime));
    m_penalties->tell(hasRun ? tr("penalties %1 s").arg(timing.totalpen) : QString());
    m_expected->tell(told(tr("Expected %1 s"), hasRun ? m_document.expectedTime(m_run) : 0));
    m_perfect->tell(tr("Perfect time %1 s").arg(hundredthsOrDash(m_document.perfectTime())));
}

} // namespace kavela::desktop
