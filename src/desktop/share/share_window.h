#pragma once

#include "desktop/share/share_place.h"
#include "desktop/share/share_rows.h"
#include "desktop/share/share_run.h"
#include "desktop/shell/server_logins.h"
#include "desktop/shell/tool_window.h"

#include <QTimer>

#include <memory>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class FaultLabel;
class ShareActions;

/// Shares a folder with a server: what is new here, new there, changed on both sides, and what
/// became of it. Everything that waits for disk or server runs beside the window.
class ShareWindow : public ToolWindow {
    Q_OBJECT

public:
    using Typed = SharePlace::Typed;

    /// A store of its own, as in tests; that of the desktop by default.
    explicit ShareWindow(Workspace& workspace, std::unique_ptr<fetch::SecretStore> store =
                                                   std::make_unique<fetch::SecretStore>());
    ~ShareWindow() override;

    [[nodiscard]] QStringList paths() const override;
    /// A folder, or that of a file. False while files are being shared.
    [[nodiscard]] bool open(const QString& path) override;

    void setPlace(const Typed& place);
    [[nodiscard]] const Typed& place() const { return m_place->typed(); }
    void chooseFolder();
    /// Finds out what differs.
    void compare();
    /// Shares what is ticked, once deletions among it were agreed to.
    void start();
    void cancel();
    /// Deletions are ticked one by one alone.
    void tickAll(bool isTicked);
    void tick(std::size_t place, bool isTicked);
    void signIn();
    void forgetLogin();

    [[nodiscard]] bool isBusy() const { return m_run.isRunning() || m_logins.isFinding(); }
    [[nodiscard]] bool isSharing() const { return m_run.isSharing(); }
    [[nodiscard]] bool hasTicked() const;
    [[nodiscard]] const std::vector<SharedRow>& rows() const { return m_rows; }
    /// What the line above the table says is wrong; empty for nothing.
    [[nodiscard]] QString fault() const;
    /// What the line at the foot says.
    [[nodiscard]] QString status() const;
    /// Waits are shorter in tests, and states are kept elsewhere.
    void setRequest(const fetch::WebPace& pace, const std::filesystem::path& caches);

signals:
    void pathsChanged(); ///< another folder

protected:
    void takeFiles(const QStringList& paths) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeButtons();
    void noteOtherPlace();
    void connectRun();
    void connectRows();
    void connectLogins();
    void takeCompared(const ShareComparison& found);
    [[nodiscard]] bool isDeletionAgreed();
    void endShare(const QString& fault);
    void showRows(bool isOther = false);
    void showState();
    void tellStatus(const QString& text);
    [[nodiscard]] share::ShareRequest request() const;

    std::vector<SharedRow> m_rows;
    std::shared_ptr<share::ShareSurvey> m_survey; ///< of the rows; of the worker while it shares
    fetch::WebPace m_pace;
    std::filesystem::path m_caches;
    ServerLogins m_logins;
    ShareRun m_run;
    QTimer m_refresh;
    ShareActions* m_actions = nullptr;
    SharePlace* m_place = nullptr;
    ColumnModel<SharedRow> m_files;
    ColumnTable* m_table = nullptr;
    FaultLabel* m_fault = nullptr;
    QPushButton* m_compareButton = nullptr;
    QPushButton* m_startButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace kavela::desktop
