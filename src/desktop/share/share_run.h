#pragma once

#include "desktop/shell/background_work.h"
#include "share/folder_exchange.h"
#include "share/shared_folders.h"

#include <QObject>
#include <QString>

#include <memory>
#include <stop_token>
#include <utility>
#include <vector>

namespace kavela::desktop {

/// What came of a comparison.
struct ShareComparison {
    std::shared_ptr<share::ShareSurvey> survey = nullptr; ///< null where there is none
    QString reason = {};                                  ///< why there is none
    bool wantsLogin = false;
};

/// Tells of work on another thread, to whoever listens on this one.
class ShareReports : public QObject {
    Q_OBJECT

signals:
    void comparing(const QString& what, qint64 done, qint64 all);
    void begun(int place);
    void moved(int place, qint64 done, qint64 all);
    void ended(int place, const kavela::share::ShareResult& result);
};

/// Compares a folder with a server, and shares files of it. Everything that waits for disk or
/// server runs on another thread, which holds by itself what it works on and ends soon when this
/// goes.
class ShareRun : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~ShareRun() override { m_stop.request_stop(); }

    /// A row that is to be shared, by its number in the table.
    using Wanted = std::pair<int, share::ShareRow>;

    /// Finds out what differs.
    void compare(const share::ShareRequest& request);
    /// Shares files of a comparison, which nothing else may use until shared() is told.
    void share(const share::ShareRequest& request,
               const std::shared_ptr<share::ShareSurvey>& survey, std::vector<Wanted> wanted);
    /// A comparison comes to nothing then; of files that are shared, what became of each is told.
    void cancel();

    /// Up to the end of what was cancelled, too.
    [[nodiscard]] bool isRunning() const { return m_work.isRunning(); }
    [[nodiscard]] bool isSharing() const { return m_isSharing; }

signals:
    void comparing(const QString& what, qint64 done, qint64 all); ///< `all` is 0 where not known
    void compared(const kavela::desktop::ShareComparison& found);
    void stopped(); ///< a comparison that was cancelled has ended

    // Of the file of a row.
    void begun(int place);
    void moved(int place, qint64 done, qint64 all); ///< bytes
    void ended(int place, const kavela::share::ShareResult& result);
    /// All have ended; `fault` says why the rest was not begun, empty for nothing.
    void shared(const QString& fault);

private:
    void endShare(const QString& fault);

    std::stop_source m_stop; ///< of what runs
    BackgroundWork m_work;
    bool m_isSharing = false;
    int m_asked = 0; ///< counts comparisons: one that was cancelled is not shown
};

} // namespace kavela::desktop
