#pragma once

#include "desktop/fetch/fetch_list.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/forms/record_form.h"
#include "desktop/shell/server_logins.h"
#include "desktop/shell/tool_window.h"
#include "fetch/fetch_job.h"
#include "fetch/fetch_source.h"
#include "fetch/plan_maker.h"
#include "fetch/secret_store.h"

#include <QTimer>

#include <memory>
#include <set>

class QLabel;
class QProgressBar;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class FaultLabel;
class FetchActions;
class SiteList;

/// Fetches the films of a race by their bibs: where from, whose, what would be fetched, and what
/// became of it.
class FetchWindow : public ToolWindow {
    Q_OBJECT

public:
    /// A store of its own, as in tests; that of the desktop by default.
    explicit FetchWindow(Workspace& workspace, std::unique_ptr<fetch::SecretStore> store =
                                                   std::make_unique<fetch::SecretStore>());
    ~FetchWindow() override;

    /// A source, or a list or split file for the bibs.
    [[nodiscard]] bool open(const QString& path) override;

    void setSource(const fetch::filmsource001& source);
    [[nodiscard]] const fetch::filmsource001& source() const { return m_source; }
    void chooseBibs();
    void chooseFolder();
    void chooseSource();
    void chooseAndSaveSource();
    /// False, after an alert, when it could not be written.
    bool saveSource(const QString& path);

    /// Finds out what would be fetched.
    void showPlan();
    /// Fetches the films that are ticked.
    void fetchTicked();
    void cancel();
    void tickAll(bool isTicked);
    /// Opens the folder in the tool that its films belong to.
    void openFolder();
    void signIn();
    void forgetLogin();

    [[nodiscard]] bool isBusy() const { return isPlanning() || isFetching(); }
    [[nodiscard]] bool isPlanning() const;
    [[nodiscard]] bool isFetching() const { return m_job.isRunning(); }
    [[nodiscard]] bool hasTicked() const { return m_list.hasTicked(); }
    [[nodiscard]] const std::vector<FetchRow>& rows() const { return m_list.rows(); }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] SiteList& sites() const { return *m_sites; }
    /// What the line above the table says is wrong; empty for nothing.
    [[nodiscard]] QString fault() const;
    /// What the line at the foot says.
    [[nodiscard]] QString status() const;
    /// Waits are shorter in tests.
    void setPace(const fetch::WebPace& pace) { m_pace = pace; }

protected:
    void takeFiles(const QStringList& paths) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeSide();
    [[nodiscard]] QWidget* makeMain();
    void connectJob();
    void connectLogins();
    void edit(const std::function<void(fetch::filmsource001&)>& change);
    void noteSource();
    void openChosen(const QString& path);
    void makePlan(const std::vector<fetch::FetchRun>& runs);
    void takePlan(const fetch::MadePlan& plan);
    void tickSite(const std::string& site, bool isTicked);
    void noteSite(const std::string& site) {
        if (!site.empty())
            m_seenSites.insert(site);
    }
    void endJob();
    void showSites();
    void showState();
    void tell(const QString& fault);
    void tellStatus(const QString& text);
    [[nodiscard]] fetch::WebRules rules() const;
    [[nodiscard]] fetch::Address origin() const;

    fetch::filmsource001 m_source;
    std::set<std::string> m_seenSites; ///< that films lie on, or were led to
    fetch::WebPace m_pace;
    ServerLogins m_logins;
    FetchList m_list;
    fetch::PlanMaker m_maker;
    fetch::FetchJob m_job;
    BackgroundWork m_reading;
    int m_plan = 0; ///< counts what was asked for: what comes later than another is not shown
    QTimer m_refresh;
    FetchActions* m_actions = nullptr;
    RecordForm<fetch::filmsource001>* m_form = nullptr;
    QWidget* m_side = nullptr;
    SiteList* m_sites = nullptr;
    ColumnTable* m_table = nullptr;
    FaultLabel* m_fault = nullptr;
    QPushButton* m_showButton = nullptr;
    QPushButton* m_fetchButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace kavela::desktop
