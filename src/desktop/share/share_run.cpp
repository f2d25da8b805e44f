#include "desktop/share/share_run.h"

#include "desktop/shell/qt_text.h"

#include <chrono>
#include <exception>

namespace kavela::desktop {

namespace {

constexpr std::chrono::milliseconds BetweenReports(100);

/// The last one to hold it may be the other thread, which it does not belong to.
std::shared_ptr<ShareReports> newReports() {
    return {new ShareReports, [](ShareReports* one) { one->deleteLater(); }};
}

/// Tells of bytes a few times a second, however small the pieces are.
share::BytesMoved bytesReport(ShareReports& reports, const int& place) {
    return [&reports, &place, last = std::chrono::steady_clock::time_point()](
               std::int64_t done, std::int64_t all) mutable {
        const auto now = std::chrono::steady_clock::now();
        if (now - last < BetweenReports)
            return;
        last = now;
        emit reports.moved(place, done, all);
    };
}

ShareComparison comparisonOf(const share::ShareRequest& request, const share::ShareSteps& steps) {
    try {
        return {.survey =
                    std::make_shared<share::ShareSurvey>(share::compareFolder(request, steps))};
    } catch (const share::ShareStopped&) {
        return {};
    } catch (const share::ShareError& error) {
        return {.reason = qtText(error.what()), .wantsLogin = error.wantsLogin()};
    } catch (const std::exception& error) {
        return {.reason = qtText(error.what())};
    }
}

} // namespace

void ShareRun::compare(const share::ShareRequest& request) {
    m_stop = std::stop_source();
    const int asked = ++m_asked;
    const std::shared_ptr<ShareReports> reports = newReports();
    connect(reports.get(), &ShareReports::comparing, this,
            [this, asked](const QString& what, qint64 done, qint64 all) {
                if (asked == m_asked && isRunning())
                    emit comparing(what, done, all);
            });
    m_work.run(
        [request, reports, stop = m_stop.get_token()] {
            return comparisonOf(request, {.stop = stop,
                                          .progress = [&](const std::string& what,
                                                          std::int64_t done, std::int64_t all) {
                                              emit reports->comparing(qtText(what), done, all);
                                          }});
        },
        [this, asked](const ShareComparison& found) {
            if (asked == m_asked)
                emit compared(found);
            else
                emit stopped();
        });
}

void ShareRun::share(const share::ShareRequest& request,
                     const std::shared_ptr<share::ShareSurvey>& survey,
                     std::vector<Wanted> wanted) {
    m_stop = std::stop_source();
    m_isSharing = true;
    const std::shared_ptr<ShareReports> reports = newReports();
    connect(reports.get(), &ShareReports::begun, this, &ShareRun::begun);
    connect(reports.get(), &ShareReports::moved, this, &ShareRun::moved);
    connect(reports.get(), &ShareReports::ended, this, &ShareRun::ended);
    m_work.run(
        [request, survey, wanted = std::move(wanted), reports, stop = m_stop.get_token()] {
            share::FolderExchange exchange(request, *survey, {.stop = stop});
            int running = 0;
            exchange.setMoved(bytesReport(*reports, running));
            for (const auto& [place, file] : wanted) {
                running = place;
                emit reports->begun(place);
                emit reports->ended(place, exchange.carryOut(file));
            }
        },
        [this] { endShare({}); }, {.failed = [this](const std::exception_ptr& fault) {
            endShare(qtText(messageOf(fault)));
        }});
}

void ShareRun::endShare(const QString& fault) {
    m_isSharing = false;
    emit shared(fault);
}

void ShareRun::cancel() {
    m_stop.request_stop();
    if (!m_isSharing)
        ++m_asked;
}

} // namespace kavela::desktop
