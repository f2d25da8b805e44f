#include "desktop/taking/run_form.h"

#include "common/number_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
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
    return seconds == 0 ? QString() : qtText(shortestText(seconds));
}

QString hundredthsOrDash(double seconds) {
    return seconds == 0 ? "–" : qtText(hundredthsText(seconds));
}

} // namespace

RunForm::RunForm(TakingDocument& document, Workspace& workspace, QWidget* parent)
    : QWidget(parent), m_document(document), m_workspace(workspace), m_figures(new QLabel) {
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
                       std::function<bool(const QString&)> take) {
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
            return true;
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
                return true;
            });
}

void RunForm::addTimes(QFormLayout& form) {
    addField(
        form, tr("Real time"), "realTime",
        [](const athletedata031& run) { return secondsText(run.sectioninfo.realtime); },
        [this](const QString& text) {
            const bool isTaken = takeSeconds(text, &sectiondata030::realtime, tr("real time"));
            if (isTaken)
                m_document.logPerfectTime();
            return isTaken;
        });
    addField(
        form, tr("Real penalty"), "realPenalty",
        [](const athletedata031& run) {
            return run.sectioninfo.realpen == 0 ? QString()
                                                : QString::number(run.sectioninfo.realpen);
        },
        [this](const QString& text) { return takePenalty(text); });
    addField(
        form, tr("Sprint"), "sprint",
        [](const athletedata031& run) { return secondsText(run.sectioninfo.sprinttime); },
        [this](const QString& text) {
            return takeSeconds(text, &sectiondata030::sprinttime, tr("sprint time"));
        });
}

void RunForm::edit(const QString& what, const std::function<void(athletedata031&)>& change) {
    m_document.editRun(m_run, what, change);
}

bool RunForm::takeSeconds(const QString& text, double sectiondata030::*member,
                          const QString& what) {
    const auto seconds = text.isEmpty() ? std::optional(0.0) : parseRealTime(text.toStdString());
    if (!seconds) {
        m_workspace.showAlert({"", messages::RealTimeNoNumber}, this);
        return false;
    }
    edit(what, [&](athletedata031& run) { run.sectioninfo.*member = *seconds; });
    return true;
}

bool RunForm::takePenalty(const QString& text) {
    bool isNumber = text.isEmpty();
    const int penalty = isNumber ? 0 : text.toInt(&isNumber);
    if (!isNumber || penalty < 0) {
        m_workspace.showAlert(
            {"", tr("The penalty must be a whole number of seconds.").toStdString()}, this);
        return false;
    }
    edit(tr("real penalty"), [&](athletedata031& run) { run.sectioninfo.realpen = penalty; });
    return true;
}

/// What is refused stays as it was, and the field shows that again.
void RunForm::takeField(const Field& field) {
    if (m_run < 0 || !field.edit->isModified())
        return;
    field.edit->setModified(false); // an alert takes the focus, which ends the editing once more
    const QString text = field.edit->text().trimmed();
    if (text == field.show(m_document.run(m_run)) || !field.take(text))
        field.edit->setText(field.show(m_document.run(m_run)));
}

void RunForm::commit() {
    for (const Field& field : m_fields)
        takeField(field);
}

void RunForm::showRun(int run) {
    commit();
    m_run = run;
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
