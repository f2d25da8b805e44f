#include "desktop/taking/run_form.h"

#include "desktop/shell/refused_entry.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/taking/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/course_setup.h"
#include "splittaking/messages.h"
#include "splittaking/video_names.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace kavela::desktop {

namespace {

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

QString secondsText(double seconds) {
    return seconds == 0 ? QString() : shownNumber(seconds);
}

constexpr double LongestTime = 86400;
constexpr double MostPenalty = 999;

} // namespace

RunForm::RunForm(TakingDocument& document, QWidget* parent)
    : QWidget(parent), m_document(document), m_figures(new QLabel) {
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    addTexts(*form);
    addTimes(*form);
    m_figures->setTextFormat(Qt::PlainText);
    m_figures->setWordWrap(true);
    form->addRow(m_figures);
    connect(&m_document, &TakingDocument::changed, this, &RunForm::refresh);
    showRun(-1);
}

void RunForm::addField(QFormLayout& form, const QString& title, const char* name,
                       std::function<QString(const athletedata031&)> show,
                       std::function<void(const QString&)> take) {
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    form.addRow(title, edit);
    m_fields.push_back({edit, std::move(show), std::move(take)});
    connect(edit, &QLineEdit::editingFinished, this,
            [this, place = m_fields.size() - 1] { takeField(m_fields[place]); });
}

void RunForm::addTexts(QFormLayout& form) {
    addField(
        form, tr("Crew"), "crew",
        [](const athletedata031& run) { return qtText(crewText(run.names)); },
        [this](const QString& text) {
            edit(tr("crew"), [&](athletedata031& run) { run.names = crewIn(text.toStdString()); });
        });
    struct Text {
        QString title;
        const char* name;
        std::string athletedata031::*member;
    };
    for (const Text& field : {Text{tr("Category"), "cat", &athletedata031::cat},
                              Text{tr("Phase"), "runPhase", &athletedata031::phase},
                              Text{tr("Hand"), "hand", &athletedata031::hand}})
        addField(
            form, field.title, field.name,
            [member = field.member](const athletedata031& run) { return qtText(run.*member); },
            [this, field](const QString& text) {
                edit(field.title,
                     [&](athletedata031& run) { run.*field.member = text.toStdString(); });
            });
}

void RunForm::addTimes(QFormLayout& form) {
    addField(
        form, tr("Real time"), "realTime",
        [](const athletedata031& run) { return secondsText(run.sectioninfo.realtime); },
        [this](const QString& text) {
            takeSeconds(text, &sectiondata030::realtime, tr("real time"));
            m_document.logPerfectTime();
        });
    addField(
        form, tr("Real penalty"), "realPenalty",
        [](const athletedata031& run) {
            return run.sectioninfo.realpen == 0 ? QString()
                                                : QString::number(run.sectioninfo.realpen);
        },
        [this](const QString& text) { takePenalty(text); });
    addField(
        form, tr("Sprint"), "sprint",
        [](const athletedata031& run) { return secondsText(run.sectioninfo.sprinttime); },
        [this](const QString& text) {
            takeSeconds(text, &sectiondata030::sprinttime, tr("sprint time"));
        });
}

void RunForm::edit(const QString& what, const std::function<void(athletedata031&)>& change) {
    m_document.editRun(m_run, what, change);
}

void RunForm::takeSeconds(const QString& text, double sectiondata030::*member,
                          const QString& what) {
    const double seconds =
        typedSecondsOrNone(text, {0, LongestTime,
                                  qtText(messages::RealTimeNoNumber) + '\n' +
                                      tr("A comma and minutes, such as 1:32,34, are taken too")});
    edit(what, [&](athletedata031& run) { run.sectioninfo.*member = seconds; });
}

void RunForm::takePenalty(const QString& text) {
    const std::int64_t penalty = typedWholeOrNone(
        text, {0, MostPenalty, tr("A penalty is a whole number of seconds, 0 to 999")});
    edit(tr("real penalty"), [&](athletedata031& run) { run.sectioninfo.realpen = penalty; });
}

void RunForm::takeField(const Field& field) {
    if (m_run < 0 || !field.edit->isModified())
        return;
    const QString before = field.show(m_document.run(m_run));
    const QString text = field.edit->text().trimmed();
    try {
        field.edit->setModified(
            false); // an edit shows the run anew, and ends the editing once more
        if (text != before)
            field.take(text);
        acceptEntry(*field.edit);
        field.edit->setText(field.show(m_document.run(m_run)));
    } catch (const RefusedEntry& refusal) {
        field.edit->setModified(true);
        refuseEntry(*field.edit, refusal.reason(),
                    [edit = field.edit, before] { edit->setText(before); });
    }
}

void RunForm::commit() {
    for (const Field& field : m_fields)
        takeField(field);
}

void RunForm::showRun(int run) {
    commit();
    m_run = run;
    for (const Field& field : m_fields)
        field.edit->setModified(false); // it was typed for the run before
    refresh();
}

void RunForm::runMoved(int run) {
    m_run = run;
    refresh();
}

void RunForm::refresh() {
    if (m_run >= m_document.runCount())
        m_run = -1;
    setEnabled(m_run >= 0);
    for (const Field& field : m_fields)
        if (!field.edit->isModified())
            field.edit->setText(m_run < 0 ? QString() : field.show(m_document.run(m_run)));
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
