#pragma once

#include "desktop/share/share_rows.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/forms/record_form.h"
#include "desktop/shell/tool_window.h"
#include "fetch/secret_store.h"

#include <QTimer>

#include <memory>
#include <optional>
#include <stop_token>
#include <string>

class QLabel;
class QProgressBar;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class FaultLabel;
class LoginDialog;
class ShareActions;

/// Tells of work on another thread, to whoever listens on this one.
class ShareReports : public QObject {
    Q_OBJECT

signals:
    void compared(const QString& what, qint64 done, qint64 all);
    void begun(int place);
    void moved(int place, qint64 done, qint64 all);
    void ended(int place, const kavela::share::ShareResult& result);
};

/// Shares a folder with a server: what is new here, new there, changed on both sides, and what
/// became of it. Everything that waits for disk or server runs beside the window.
class ShareWindow : public ToolWindow {
    Q_OBJECT

public:
    /// What is shared, as it is typed.
    struct Typed {
        std::string folder;
        std::string address;
    };

    /// A store of its own, as in tests; that of the desktop by default.
    explicit ShareWindow(Workspace& workspace, std::unique_ptr<fetch::SecretStore> store =
                                                   std::make_unique<fetch::SecretStore>());
    ~ShareWindow() override;

    [[nodiscard]] QStringList paths() const override;
    /// A folder, or that of a file. False while files are being shared.
    [[nodiscard]] bool open(const QString& path) override;

    void setPlace(const Typed& place);
    [[nodiscard]] const Typed& place() const { return m_place; }
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

    [[nodiscard]] bool isBusy() const { return m_work.isRunning() || m_isFindingLogin; }
    [[nodiscard]] bool isSharing() const { return m_isSharing; }
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
    /// What came of a comparison.
    struct Compared {
        std::shared_ptr<share::ShareSurvey> survey = nullptr; ///< null where there is none
        QString reason = {};
        bool wantsLogin = false;
    };

    void makeParts();
    void makeForm();
    [[nodiscard]] QWidget* makePlace();
    [[nodiscard]] QWidget* makeButtons();
    void edit(const std::function<void(Typed&)>& change);
    void noteOtherPlace();
    void findLogin();
    void runCompare();
    void takeCompared(const Compared& compared);
    [[nodiscard]] bool isDeletionAgreed();
    void runShare();
    void listen(ShareReports& reports);
    void endShare();
    void takeLogin(const LoginDialog& dialog);
    void showRows(bool isOther = false);
    void showState();
    void tellStatus(const QString& text);
    [[nodiscard]] fetch::Address origin() const;
    [[nodiscard]] share::ShareRequest request() const;
    [[nodiscard]] static Compared compared(const share::ShareRequest& request,
                                           const share::ShareSteps& steps);

    Typed m_place;
    std::vector<SharedRow> m_rows;
    std::shared_ptr<share::ShareSurvey> m_survey; ///< of the rows; of the worker while it shares
    std::optional<fetch::WebLogin> m_login;       ///< for m_loginOrigin
    std::optional<fetch::Address> m_loginOrigin;
    fetch::WebPace m_pace;
    std::filesystem::path m_caches;
    std::unique_ptr<fetch::SecretStore> m_store;
    std::stop_source m_stop; ///< of what runs
    BackgroundWork m_work;
    bool m_isFindingLogin = false;
    bool m_isSharing = false;
    int m_asked = 0; ///< counts comparisons: what comes later than another is not shown
    QTimer m_refresh;
    ShareActions* m_actions = nullptr;
    RecordForm<Typed>* m_form = nullptr;
    ColumnModel<SharedRow> m_files;
    ColumnTable* m_table = nullptr;
    FaultLabel* m_fault = nullptr;
    QWidget* m_placePart = nullptr;
    QPushButton* m_compareButton = nullptr;
    QPushButton* m_startButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace kavela::desktop
