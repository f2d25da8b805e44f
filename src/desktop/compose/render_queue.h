#pragma once

#include "compose/compose_job.h"
#include "desktop/shell/background_work.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <stop_token>
#include <vector>

class QEventLoopLocker;

namespace kavela::desktop {

class Workspace;

/// A film that is to be composed, is being composed or was.
struct RenderJob {
    enum class State { Waiting, Running, Done, Failed, Stopped };

    std::uint64_t id = 0;
    composejob002 job; ///< names its files in full
    QString target;    ///< path that was asked for; as it was written once it is done
    State state = State::Waiting;
    double done = 0;        ///< 0 to 1
    double secondsLeft = 0; ///< 0 where that cannot be told yet
    QString told;           ///< why it failed, or what a viewer should know of the film

    [[nodiscard]] bool isOpen() const { return state == State::Waiting || state == State::Running; }
};

/// Composes films in the background, one after the other, whichever windows are open. The program
/// goes on until the last one is there; leaving it while one is being made asks.
class RenderQueue : public QObject {
    Q_OBJECT

public:
    /// The one of the workspace, which keeps it.
    [[nodiscard]] static RenderQueue& of(Workspace& workspace);
    ~RenderQueue() override;

    /// Appends a film; gives the id of its job.
    std::uint64_t add(composejob002 job, const QString& target);
    /// Stops a job that waits or runs; nothing of its film is left then.
    void stop(std::uint64_t id);
    void stopAll();
    /// Takes those out that are over.
    void clearFinished();

    [[nodiscard]] const std::vector<RenderJob>& jobs() const { return m_jobs; }
    /// Null for none.
    [[nodiscard]] const RenderJob* find(std::uint64_t id) const;
    [[nodiscard]] int openJobs() const;

signals:
    /// A job came, went on or ended.
    void changed();
    void ended(std::uint64_t id);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Progress;

    explicit RenderQueue(Workspace& workspace);
    [[nodiscard]] RenderJob* findJob(std::uint64_t id);
    void startNext();
    void run(RenderJob& job);
    void showProgress();
    void end(std::uint64_t id, RenderJob::State state, const QString& told,
             const QString& target = {});

    Workspace& m_workspace;
    std::vector<RenderJob> m_jobs;
    std::uint64_t m_lastId = 0;
    std::uint64_t m_running = 0; ///< id; 0 for none
    std::stop_source m_stop;     ///< of the running one
    std::shared_ptr<Progress> m_progress;
    QElapsedTimer m_since; ///< the first frame of the running one
    QTimer m_poll;
    std::unique_ptr<QEventLoopLocker> m_keepsProgram;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
