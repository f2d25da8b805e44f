#include "desktop/compose/render_queue.h"

#include "captions/film_captions.h"
#include "compose/composer.h"
#include "desktop/shell/workspace.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoopLocker>

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

namespace kavela::desktop {

/// As the thread that composes tells it.
struct RenderQueue::Progress {
    std::mutex guard;
    ComposeProgress progress;
};

RenderQueue::RenderQueue(Workspace& workspace) : QObject(&workspace), m_workspace(workspace) {
    constexpr int PollMilliseconds = 100;
    m_poll.setInterval(PollMilliseconds);
    connect(&m_poll, &QTimer::timeout, this, &RenderQueue::showProgress);
    qApp->installEventFilter(this);
}

RenderQueue::~RenderQueue() {
    m_stop.request_stop();
}

RenderQueue& RenderQueue::of(Workspace& workspace) {
    auto* queue = workspace.findChild<RenderQueue*>(QString(), Qt::FindDirectChildrenOnly);
    if (!queue)
        queue = new RenderQueue(workspace); // the workspace owns it
    return *queue;
}

std::uint64_t RenderQueue::add(composejob002 job, const QString& target) {
    const std::uint64_t id = ++m_lastId;
    RenderJob added;
    added.id = id;
    added.job = std::move(job);
    added.target = target;
    m_jobs.push_back(std::move(added));
    emit changed();
    startNext();
    return id;
}

const RenderJob* RenderQueue::find(std::uint64_t id) const {
    const auto job = std::ranges::find(m_jobs, id, &RenderJob::id);
    return job == m_jobs.end() ? nullptr : &*job;
}

RenderJob* RenderQueue::findJob(std::uint64_t id) {
    const auto job = std::ranges::find(m_jobs, id, &RenderJob::id);
    return job == m_jobs.end() ? nullptr : &*job;
}

int RenderQueue::openJobs() const {
    return static_cast<int>(std::ranges::count_if(m_jobs, &RenderJob::isOpen));
}

/// The running one tells by itself that it has stopped.
void RenderQueue::stop(std::uint64_t id) {
    RenderJob* const job = findJob(id);
    if (!job || !job->isOpen())
        return;
    if (id == m_running)
        m_stop.request_stop();
    else
        end(id, RenderJob::State::Stopped, {});
}

void RenderQueue::stopAll() {
    std::vector<std::uint64_t> open;
    for (const RenderJob& job : m_jobs)
        if (job.isOpen() && job.id != m_running)
            open.push_back(job.id);
    for (const std::uint64_t id : open)
        stop(id);
    stop(m_running);
}

void RenderQueue::clearFinished() {
    std::erase_if(m_jobs, [](const RenderJob& job) { return !job.isOpen(); });
    emit changed();
}

void RenderQueue::startNext() {
    if (m_running != 0)
        return;
    const auto next = std::ranges::find(m_jobs, RenderJob::State::Waiting, &RenderJob::state);
    if (next == m_jobs.end()) {
        m_poll.stop();
        m_keepsProgram.reset();
        return;
    }
    if (!m_keepsProgram)
        m_keepsProgram = std::make_unique<QEventLoopLocker>();
    run(*next);
}

void RenderQueue::run(RenderJob& job) {
    m_running = job.id;
    job.state = RenderJob::State::Running;
    m_stop = std::stop_source();
    m_progress = std::make_shared<Progress>();
    m_since.invalidate();
    m_poll.start();
    emit changed();
    const auto task = [asked = job.job, target = job.target.toStdString(), stop = m_stop,
                       progress = m_progress](const WorkSteps& steps) {
        std::stop_source source = stop;
        const std::stop_callback also(steps.stopToken(), [&source] { source.request_stop(); });
        // Every name is a full one, so that the folder plays no part.
        const Composition composition = compositionOf(asked, {});
        FilmCaptions captions;
        return compose(composition, &captions, target, source.get_token(),
                       [&progress](const ComposeProgress& now) {
                           const std::scoped_lock lock(progress->guard);
                           progress->progress = now;
                       });
    };
    const std::uint64_t id = job.id;
    m_work.run(task,
               [this, id](const std::optional<ComposedFilmFile>& film) {
                   if (!film) {
                       end(id, RenderJob::State::Stopped, {});
                       return;
                   }
                   QStringList notes;
                   for (const std::string& note : film->notes)
                       notes.append(QString::fromStdString(note));
                   end(id, RenderJob::State::Done, notes.join(' '),
                       QString::fromStdString(film->path.string()));
               },
               {.failed =
                    [this, id](const std::exception_ptr& fault) {
                        m_workspace.log()(messageOf(fault));
                        end(id, RenderJob::State::Failed, QString::fromStdString(messageOf(fault)));
                    },
                .cancelled = [this, id] { end(id, RenderJob::State::Stopped, {}); }});
}

/// Reading the films is a small part of all; from the first frame on, frames are counted.
void RenderQueue::showProgress() {
    RenderJob* const job = findJob(m_running);
    if (!job || !m_progress)
        return;
    ComposeProgress now;
    {
        const std::scoped_lock lock(m_progress->guard);
        now = m_progress->progress;
    }
    constexpr double OpeningShare = 0.05;
    constexpr qint64 LeastMilliseconds = 1000; // before it can be told how fast it goes
    job->done = OpeningShare * now.opened;
    if (now.all > 0) {
        const double made = static_cast<double>(now.frames) / static_cast<double>(now.all);
        job->done = OpeningShare + (1 - OpeningShare) * made;
        if (!m_since.isValid())
            m_since.start();
        else if (m_since.elapsed() > LeastMilliseconds && made > 0)
            job->secondsLeft = static_cast<double>(m_since.elapsed()) / 1000 * (1 - made) / made;
    }
    emit changed();
}

void RenderQueue::end(std::uint64_t id, RenderJob::State state, const QString& told,
                      const QString& target) {
    if (RenderJob* const job = findJob(id)) {
        job->state = state;
        job->told = told;
        job->secondsLeft = 0;
        if (state == RenderJob::State::Done)
            job->done = 1;
        if (!target.isEmpty())
            job->target = target;
    }
    if (id == m_running)
        m_running = 0;
    emit changed();
    emit ended(id);
    startNext();
}

/// Asked before the windows are: what they would ask for is answered by it.
bool RenderQueue::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qApp || event->type() != QEvent::Quit || openJobs() == 0 ||
        QApplication::activeModalWidget())
        return QObject::eventFilter(watched, event);
    const int open = openJobs();
    const QString question =
        open == 1 ? tr("A film is still being composed.")
                  : tr("%n films are still being composed.", nullptr, static_cast<int>(open));
    if (m_workspace.askBeforeLoss(
            {question.toStdString(),
             tr("Leaving the program stops that, and nothing of an unfinished film is kept.")
                 .toStdString()},
            tr("Stop and leave"), QApplication::activeWindow())) {
        stopAll();
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
}

} // namespace kavela::desktop
