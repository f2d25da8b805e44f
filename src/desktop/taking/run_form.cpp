#include "desktop/taking/run_form.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/why/why_popup.h"
#include "splitdata/run_timing.h"
#include "splittaking/course_setup.h"
#include "splittaking/messages.h"
#include "splittaking/video_names.h"

#include <QLabel>
#include <QLayout>
#include <QVBoxLayout>

#include <algorithm>

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
      m_figures(new QLabel) {
    addFields();
    m_figures->setTextFormat(Qt::PlainText);
    m_figures->setWordWrap(true);
    m_form.addRow({}, m_figures);
    m_form.layout()->setSpacing(theme::SmallSpacing);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&m_form);
    connect(&m_document, &TakingDocument::changed, this, [this] { refresh(false); });
    answerWhy(this, [this](const QPoint& at) { return whyAt(at); });
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

/// The last line is the perfect time, the one above it the expected one.
std::optional<Reason> RunForm::whyAt(const QPoint& at) const {
    if (at == QPoint(-1, -1))
        return m_run < 0 ? m_document.whyPerfect() : m_document.whyExpected(m_run);
    const QRect figures(m_figures->mapTo(this, QPoint(0, 0)), m_figures->size());
    if (!figures.contains(at))
        return std::nullopt;
    const auto lines = static_cast<int>(m_figures->text().count('\n')) + 1;
    const int fromEnd = (figures.bottom() - at.y()) * lines / std::max(1, figures.height());
    if (fromEnd == 0)
        return m_document.whyPerfect();
    return fromEnd == 1 && m_run >= 0 ? m_document.whyExpected(m_run) : std::nullopt;
}

void RunForm::refresh(bool isOther) {
    if (m_run >= m_document.runCount())
        m_run = -1;
    m_form.show(m_run < 0 ? nullptr : &m_document.run(m_run), isOther);
    QString figures = tr("Perfect time %1 s").arg(hundredthsOrDash(m_document.perfectTime()));
    if (m_run >= 0) {
        const sectiondata030& timing = m_document.run(m_run).sectioninfo;
        figures = tr("Total %1 s, penalties %2 s\nExpected %3 s\n")
                      .arg(hundredthsOrDash(timing.totaltime))
                      .arg(timing.totalpen)
                      .arg(hundredthsOrDash(m_document.expectedTime(m_run))) +
                  figures;
    }
    m_figures->setText(figures);
}

} // namespace kavela::desktop
