#pragma once

#include "fetch/web_rules.h"
#include "update/version.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <filesystem>
#include <functional>
#include <utility>

class QProgressDialog;
class QWidget;

namespace kavela::update {
class UpdateLook;
struct LookResult;
struct Verdict;
struct updatemanifest001;
} // namespace kavela::update

namespace kavela::desktop {

class OfferDialog;
class Workspace;

/// Looks for newer versions of the program: when the coach asks, and by itself once a day where the
/// coach said yes. What is there is offered; what must not be used is told. Without an address that
/// the workspace has, it does nothing at all.
class Updates : public QObject {
    Q_OBJECT

public:
    Updates(Workspace& workspace, const update::Version& own);
    ~Updates() override;

    /// Asks, at the first start alone, whether it may look by itself; then looks if it is time to.
    void beginAtStart(QWidget* over);
    /// Looks now, and tells also that there is nothing.
    void lookNow(QWidget* over);
    [[nodiscard]] bool isLooking() const { return m_look != nullptr; }
    /// What is offered at present; null for nothing.
    [[nodiscard]] OfferDialog* offer() const;

    /// Instead of the folder for downloads, the showing of a folder and the usual waits, as in
    /// tests.
    void setFolder(std::filesystem::path folder) { m_folder = std::move(folder); }
    void setShowFile(std::function<void(const QString& path)> show) {
        m_showFile = std::move(show);
    }
    void setPace(const fetch::WebPace& pace) { m_lookPace = m_downloadPace = pace; }

private:
    void begin(QWidget* over);
    void showLooking();
    void endLook();
    void take(const update::LookResult& result);
    void showOffer(const update::updatemanifest001& manifest, const update::Verdict& verdict,
                   bool isAskedFor);
    void tell(const std::string& sentence) const;
    [[nodiscard]] std::int64_t now() const;

    Workspace& m_workspace;
    update::Version m_own;
    fetch::WebPace m_lookPace;
    fetch::WebPace m_downloadPace;
    std::filesystem::path m_folder;
    std::function<void(const QString& path)> m_showFile;
    QPointer<QWidget> m_over;
    QPointer<OfferDialog> m_offer;
    QPointer<QProgressDialog> m_progress;
    update::UpdateLook* m_look = nullptr;
    bool m_isAskedFor = false;
};

} // namespace kavela::desktop
