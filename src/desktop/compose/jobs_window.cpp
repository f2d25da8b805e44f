#include "desktop/compose/jobs_window.h"

#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include <cmath>

namespace kavela::desktop {

namespace {

QString renderText(const char* text) {
    return QCoreApplication::translate("JobsWindow", text);
}

std::vector<Column<RenderJob>> renderColumns() {
    Column<RenderJob> film = textColumn<RenderJob>(renderText("Film"), nullptr);
    film.show = [](const RenderJob& job) {
        Cell cell;
        cell.text = QFileInfo(job.target).fileName();
        cell.tip = job.target;
        return cell;
    };
    Column<RenderJob> state = textColumn<RenderJob>(renderText("State"), nullptr);
    state.show = [](const RenderJob& job) {
        Cell cell;
        cell.text = renderStateText(job);
        if (job.state == RenderJob::State::Failed)
            cell.look = Cell::Look::Warning;
        return cell;
    };
    Column<RenderJob> told = textColumn<RenderJob>(renderText("To know"), nullptr);
    told.show = [](const RenderJob& job) {
        Cell cell;
        cell.text = job.told;
        cell.tip = job.told;
        return cell;
    };
    return {film, state, told};
}

} // namespace

QString renderStateText(const RenderJob& job) {
    switch (job.state) {
    case RenderJob::State::Waiting:
        return renderText("waiting");
    case RenderJob::State::Done:
        return renderText("there");
    case RenderJob::State::Failed:
        return renderText("failed");
    case RenderJob::State::Stopped:
        return renderText("stopped");
    case RenderJob::State::Running:
        break;
    }
    const QString percent = QStringLiteral("%1 %").arg(static_cast<int>(job.done * 100));
    if (job.secondsLeft <= 0)
        return percent;
    const auto left = static_cast<int>(std::ceil(job.secondsLeft));
    return renderText("%1, %2:%3 left")
        .arg(percent)
        .arg(left / 60)
        .arg(left % 60, 2, 10, QLatin1Char('0'));
}

bool mayLeaveRenders(Workspace& workspace, const std::vector<std::uint64_t>& jobs, QWidget* over) {
    RenderQueue& queue = RenderQueue::of(workspace);
    int open = 0;
    for (const std::uint64_t id : jobs)
        if (const RenderJob* const job = queue.find(id); job && job->isOpen())
            ++open;
    if (open == 0)
        return true;
    enum Way { GoOn, Stop, Stay };
    const int way = workspace.chooseWay(
        {(open == 1 ? renderText("A film is still being composed.")
                    : renderText("%1 films are still being composed.").arg(open))
             .toStdString(),
         renderText("It can go on in the background: the list of jobs (Ctrl+J in Compare films) "
                    "tells how far it is.")
             .toStdString()},
        {.texts = {renderText("Go on in the background"), renderText("Stop it"),
                   renderText("Stay here")},
         .onEnter = GoOn,
         .onEscape = Stay},
        over);
    if (way == Stop)
        for (const std::uint64_t id : jobs)
            queue.stop(id);
    return way != Stay;
}

JobsWindow& JobsWindow::showOf(Workspace& workspace) {
    JobsWindow* window = nullptr;
    for (QWidget* const widget : QApplication::topLevelWidgets())
        if (auto* const jobs = qobject_cast<JobsWindow*>(widget);
            jobs && &jobs->m_workspace == &workspace)
            window = jobs;
    if (!window)
        window = new JobsWindow(workspace); // goes with the workspace's queue, or when closed
    window->show();
    bringToFront(*window);
    return *window;
}

JobsWindow::JobsWindow(Workspace& workspace)
    : m_workspace(workspace),
      m_queue(RenderQueue::of(workspace)),
      m_rows(renderColumns(), [](const RenderJob& job) { return job.id; }),
      m_table(new ColumnTable(m_rows, "renderJobs")),
      m_stop(new QPushButton(tr("S&top"))),
      m_folder(new QPushButton(tr("Show the &folder"))),
      m_clear(new QPushButton(tr("&Clear what is over"))) {
    setWindowTitle(tr("Films being composed"));
    setAttribute(Qt::WA_QuitOnClose);
    setAttribute(Qt::WA_DeleteOnClose);
    resize(720, 260);
    m_table->setEmptyText(tr("No film is being composed."));
    m_table->keepOneChosen();
    m_table->keepOrder();
    m_table->stretch({2});
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_stop);
    buttons->addWidget(m_folder);
    buttons->addStretch();
    buttons->addWidget(m_clear);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(m_table, 1);
    column->addLayout(buttons);
    connect(m_stop, &QPushButton::clicked, this, &JobsWindow::stopChosen);
    connect(m_folder, &QPushButton::clicked, this, &JobsWindow::showFolder);
    connect(m_clear, &QPushButton::clicked, &m_queue, &RenderQueue::clearFinished);
    connect(&m_queue, &RenderQueue::changed, this, &JobsWindow::showJobs);
    connect(&m_queue, &QObject::destroyed, this, &QObject::deleteLater);
    connect(m_table, &ColumnTable::chosen, this, &JobsWindow::enableButtons);
    showJobs();
}

void JobsWindow::showJobs() {
    m_rows.show(m_queue.jobs());
    enableButtons();
}

const RenderJob* JobsWindow::chosen() const {
    const int place = m_table->currentPlace();
    return place < 0 ? nullptr : m_queue.find(m_rows.key(place));
}

void JobsWindow::enableButtons() {
    const RenderJob* const job = chosen();
    m_stop->setEnabled(job && job->isOpen());
    m_folder->setEnabled(job && job->state == RenderJob::State::Done);
    m_clear->setEnabled(m_queue.openJobs() < static_cast<int>(m_queue.jobs().size()));
}

void JobsWindow::stopChosen() {
    if (const RenderJob* const job = chosen())
        m_queue.stop(job->id);
}

void JobsWindow::showFolder() {
    if (const RenderJob* const job = chosen())
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(job->target).absolutePath()));
}

void JobsWindow::closeEvent(QCloseEvent* event) {
    std::vector<std::uint64_t> jobs;
    for (const RenderJob& job : m_queue.jobs())
        jobs.push_back(job.id);
    event->setAccepted(mayLeaveRenders(m_workspace, jobs, this));
}

} // namespace kavela::desktop
