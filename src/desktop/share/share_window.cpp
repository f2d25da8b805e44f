#include "desktop/share/share_window.h"

#include "common/error.h"
#include "desktop/share/share_actions.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/login_dialog.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "facts/fact_cache.h"
#include "share/shared_folders.h"
#include "share/web_place.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QSysInfo>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int MillisecondsBetweenShown = 150; ///< of the rows while files move
constexpr std::chrono::milliseconds BetweenReports(100);
constexpr int MostNamedDeletions = 10;

std::vector<std::string> keptFolders(const Workspace& workspace) {
    return workspace.preferences().rawList(share::SharedFoldersKey);
}

/// What was shared last.
ShareWindow::Typed rememberedPlace(const Workspace& workspace) {
    const std::vector<share::SharedFolder> kept = share::sharedFolders(keptFolders(workspace));
    return kept.empty() ? ShareWindow::Typed()
                        : ShareWindow::Typed{kept.front().folder, kept.front().address};
}

std::filesystem::path cachesOfShares() {
    const std::filesystem::path facts = userCacheFolder();
    return facts.empty() ? facts : facts.parent_path() / "share";
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

} // namespace

ShareWindow::ShareWindow(Workspace& workspace, std::unique_ptr<fetch::SecretStore> store)
    : ToolWindow(workspace, nullptr, {"share", tr("Share folders"), "*"}),
      m_place(rememberedPlace(workspace)),
      m_caches(cachesOfShares()),
      m_store(std::move(store)),
      m_files(sharedColumns([this](std::size_t place, bool isTicked) { tick(place, isTicked); }),
              RowsKnownBy::Number) {
    makeParts();
    m_actions = new ShareActions(*this);
    setWindowTitle(tr("Share folders") + QStringLiteral(" – Kavela"));
    rememberColumns(*this, workspace, kind());
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(MillisecondsBetweenShown);
    connect(&m_refresh, &QTimer::timeout, this, [this] { showRows(); });
    m_form->show(&m_place, true);
    showState();
    m_form->editField(m_place.folder.empty() ? "folder" : "address");
}

/// The worker holds by itself what it works on, and ends soon.
ShareWindow::~ShareWindow() {
    m_stop.request_stop();
    m_table->disconnect(this);
}

void ShareWindow::makeForm() {
    m_form = new RecordForm<Typed>(
        [this](const QString& /*what*/, const RecordForm<Typed>::Change& change) { edit(change); });
    m_form->text({.name = "folder",
                  .label = tr("F&older"),
                  .tip = tr("On this computer, with everything below it but hidden files"),
                  .placeholder = tr("the folder that is shared")},
                 &Typed::folder);
    m_form->text({.name = "address",
                  .label = tr("&Address"),
                  .tip = tr("Of a folder on a WebDAV server: Nextcloud, ownCloud, a NAS, Apache…"),
                  .placeholder = "https://cloud.example.org/dav/team/"},
                 &Typed::address);
}

QWidget* ShareWindow::makePlace() {
    makeForm();
    auto* const choose = new QPushButton(tr("Choose the folder…"));
    connect(choose, &QPushButton::clicked, this, &ShareWindow::chooseFolder);
    auto* const part = new QWidget;
    auto* const line = new QHBoxLayout(part);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(theme::Spacing);
    line->addWidget(m_form, 1);
    line->addWidget(choose, 0, Qt::AlignTop);
    return part;
}

QWidget* ShareWindow::makeButtons() {
    m_compareButton = new QPushButton(tr("Compare"));
    m_compareButton->setObjectName("compare");
    m_compareButton->setToolTip(tr("Shows what differs; nothing is changed by it"));
    m_startButton = new QPushButton(tr("Start"));
    m_startButton->setObjectName("start");
    m_startButton->setToolTip(tr("Shares the ticked files"));
    m_cancelButton = new QPushButton(tr("Cancel"));
    m_cancelButton->setObjectName("cancel");
    connect(m_compareButton, &QPushButton::clicked, this, &ShareWindow::compare);
    connect(m_startButton, &QPushButton::clicked, this, &ShareWindow::start);
    connect(m_cancelButton, &QPushButton::clicked, this, &ShareWindow::cancel);
    auto* const part = new QWidget;
    auto* const line = new QHBoxLayout(part);
    line->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* const button : {m_compareButton, m_startButton, m_cancelButton})
        line->addWidget(button);
    line->addStretch();
    return part;
}

void ShareWindow::makeParts() {
    m_placePart = makePlace();
    m_fault = new FaultLabel;
    m_table = new ColumnTable(m_files, "files", this);
    m_table->setEmptyText(tr("Nothing is shared before it is shown here"));
    m_table->stretch({1, 4});
    auto* const main = new QWidget;
    auto* const column = new QVBoxLayout(main);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_placePart);
    column->addWidget(makeButtons());
    column->addWidget(m_fault);
    column->addWidget(m_table, 1);
    setCentralWidget(main);
    m_progress = new QProgressBar;
    m_progress->setMaximumWidth(grown(*this, 200));
    m_progress->hide();
    m_status = new QLabel;
    m_status->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_status);
}

QStringList ShareWindow::paths() const {
    return m_place.folder.empty() ? QStringList() : QStringList{qtText(m_place.folder)};
}

bool ShareWindow::open(const QString& path) {
    if (isBusy()) {
        m_fault->tell(tr("Another folder is shared once this one is done."));
        return false;
    }
    const QFileInfo file(path);
    const QString folder = file.isDir() ? file.absoluteFilePath() : file.absolutePath();
    const auto known = share::addressOfFolder(keptFolders(workspace()), folder.toStdString());
    setPlace({folder.toStdString(), known.value_or(m_place.address)});
    return true;
}

void ShareWindow::takeFiles(const QStringList& paths) {
    if (!paths.isEmpty())
        (void)open(paths.constFirst());
}

void ShareWindow::setPlace(const Typed& place) {
    if (isBusy())
        return;
    m_place = place;
    m_form->show(&m_place, true);
    noteOtherPlace();
}

void ShareWindow::edit(const std::function<void(Typed&)>& change) {
    const std::string before = m_place.folder;
    change(m_place);
    // A folder that was shared before goes to where it went.
    if (m_place.folder != before)
        m_place.address = share::addressOfFolder(keptFolders(workspace()), m_place.folder)
                              .value_or(m_place.address);
    m_form->show(&m_place);
    noteOtherPlace();
}

/// What was shown was of another place: it is not to be shared any more.
void ShareWindow::noteOtherPlace() {
    ++m_asked;
    m_stop.request_stop();
    m_isFindingLogin = false;
    m_rows.clear();
    m_survey.reset();
    m_fault->tell({});
    tellStatus({});
    showRows(true);
    showState();
    emit pathsChanged();
}

void ShareWindow::chooseFolder() {
    if (isBusy())
        return;
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("The folder to share"), qtText(m_place.folder));
    if (!folder.isEmpty())
        (void)open(folder);
}

fetch::Address ShareWindow::origin() const {
    return share::folderAt(m_place.address);
}

share::ShareRequest ShareWindow::request() const {
    const bool isFor = m_loginOrigin && m_loginOrigin->isSameOrigin(origin());
    return {.folder = m_place.folder,
            .address = m_place.address,
            .login = isFor ? m_login : std::nullopt,
            .caches = m_caches,
            .machine = QSysInfo::machineHostName().toStdString(),
            .pace = m_pace};
}

void ShareWindow::setRequest(const fetch::WebPace& pace, const std::filesystem::path& caches) {
    m_pace = pace;
    m_caches = caches;
}

void ShareWindow::compare() {
    if (!commit() || isBusy())
        return;
    m_fault->tell({});
    if (m_place.folder.empty() || !QFileInfo(qtText(m_place.folder)).isDir()) {
        m_fault->tell(m_place.folder.empty()
                          ? tr("There is no folder to share yet.")
                          : tr("“%1” is no folder.").arg(qtText(m_place.folder)));
        return;
    }
    if (const auto fault = share::faultOfPlace(m_place.address)) {
        m_fault->tell(qtText(*fault));
        return;
    }
    QStringList kept;
    for (const std::string& text :
         share::keptWith(keptFolders(workspace()), {m_place.folder, m_place.address}))
        kept.append(qtText(text));
    workspace().remember(share::SharedFoldersKey, kept);
    ++m_asked;
    findLogin();
    showState();
}

/// The store is asked once for a server; what was typed meanwhile stands.
void ShareWindow::findLogin() {
    const fetch::Address from = origin();
    if (m_loginOrigin && m_loginOrigin->isSameOrigin(from)) {
        runCompare();
        return;
    }
    m_isFindingLogin = true;
    m_store->find(from, [this, from, asked = m_asked](const std::optional<fetch::WebLogin>& login) {
        if (asked != m_asked)
            return;
        m_isFindingLogin = false;
        m_login = login;
        m_loginOrigin = from;
        runCompare();
    });
}

ShareWindow::Compared ShareWindow::compared(const share::ShareRequest& request,
                                            const share::ShareSteps& steps) {
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

void ShareWindow::runCompare() {
    m_stop = std::stop_source();
    tellStatus(tr("Both sides are looked at…"));
    const std::shared_ptr<ShareReports> reports(new ShareReports,
                                                [](ShareReports* one) { one->deleteLater(); });
    connect(reports.get(), &ShareReports::compared, this,
            [this, asked = m_asked](const QString& what, qint64 done, qint64 all) {
                if (asked != m_asked || !isBusy())
                    return;
                tellStatus(all > 0 ? tr("%1: %2 of %3").arg(what).arg(done).arg(all)
                                   : tr("%1: %2 files").arg(what).arg(done));
            });
    m_work.run(
        [place = request(), reports, stop = m_stop.get_token()] {
            return compared(place, {.stop = stop,
                                    .progress = [&](const std::string& what, std::int64_t done,
                                                    std::int64_t all) {
                                        emit reports->compared(qtText(what), done, all);
                                    }});
        },
        [this, asked = m_asked](const Compared& found) {
            if (asked == m_asked)
                takeCompared(found);
            else
                showState();
        });
    showState();
}

void ShareWindow::takeCompared(const Compared& found) {
    tellStatus({});
    m_fault->tell(found.reason);
    m_survey = found.survey;
    m_rows = m_survey ? sharedRows(*m_survey) : std::vector<SharedRow>();
    if (m_survey)
        tellStatus(differenceText(m_rows));
    showRows(true);
    showState();
    if (found.wantsLogin)
        signIn();
}

void ShareWindow::tick(std::size_t place, bool isTicked) {
    if (isBusy() || place >= m_rows.size() || !m_rows[place].canBeTicked())
        return;
    m_rows[place].isTicked = isTicked;
    showRows();
    showState();
}

void ShareWindow::tickAll(bool isTicked) {
    if (isBusy())
        return;
    for (SharedRow& row : m_rows)
        if (row.canBeTicked() && (!isTicked || !row.row.isDeletion()))
            row.isTicked = isTicked;
    showRows();
    showState();
}

bool ShareWindow::hasTicked() const {
    return std::ranges::any_of(m_rows, [](const SharedRow& row) { return row.isTicked; });
}

/// What is deleted is gone on both sides: it is named once more.
bool ShareWindow::isDeletionAgreed() {
    QStringList names;
    for (const SharedRow& row : m_rows)
        if (row.isTicked && row.row.isDeletion())
            names.append(row.row.change == share::Change::DeletedHere
                             ? tr("%1 (on the server)").arg(qtText(row.row.path))
                             : tr("%1 (here)").arg(qtText(row.row.path)));
    if (names.isEmpty())
        return true;
    const QString title =
        names.size() == 1 ? tr("Delete 1 file?") : tr("Delete %1 files?").arg(names.size());
    QString text = names.mid(0, MostNamedDeletions).join('\n');
    if (names.size() > MostNamedDeletions)
        text += tr("\nand %1 more").arg(names.size() - MostNamedDeletions);
    return workspace().askBeforeLoss({title.toStdString(), text.toStdString()}, tr("Delete"), this);
}

void ShareWindow::start() {
    if (!commit() || isBusy() || !m_survey || !hasTicked() || !isDeletionAgreed())
        return;
    m_fault->tell({});
    for (SharedRow& row : m_rows) {
        if (row.isTicked)
            row.result.reset();
        row.isWaiting = row.isTicked;
        row.done = row.all = 0;
    }
    m_isSharing = true;
    runShare();
    showRows();
    showState();
}

void ShareWindow::runShare() {
    m_stop = std::stop_source();
    tellStatus(tr("Files are being shared…"));
    std::vector<std::pair<int, share::ShareRow>> wanted;
    for (std::size_t place = 0; place < m_rows.size(); ++place)
        if (m_rows[place].isTicked)
            wanted.emplace_back(static_cast<int>(place), m_rows[place].row);
    const std::shared_ptr<ShareReports> reports(new ShareReports,
                                                [](ShareReports* one) { one->deleteLater(); });
    listen(*reports);
    m_work.run(
        [wanted = std::move(wanted), survey = m_survey, place = request(), reports,
         stop = m_stop.get_token()] {
            share::FolderExchange exchange(place, *survey, {.stop = stop});
            int running = 0;
            exchange.setMoved(bytesReport(*reports, running));
            for (const auto& [row, file] : wanted) {
                running = row;
                emit reports->begun(row);
                emit reports->ended(row, exchange.carryOut(file));
            }
        },
        [this] { endShare(); }, {.failed = [this](const std::exception_ptr& fault) {
            m_fault->tell(qtText(messageOf(fault)));
            endShare();
        }});
}

void ShareWindow::listen(ShareReports& reports) {
    const auto row = [this](int place) -> SharedRow& {
        return m_rows.at(static_cast<std::size_t>(place));
    };
    const auto showSoon = [this] {
        if (!m_refresh.isActive())
            m_refresh.start();
    };
    connect(&reports, &ShareReports::begun, this, [=](int place) {
        row(place).isWaiting = false;
        row(place).isRunning = true;
        showSoon();
    });
    connect(&reports, &ShareReports::moved, this, [=](int place, qint64 done, qint64 all) {
        row(place).done = done;
        row(place).all = all;
        showSoon();
    });
    connect(&reports, &ShareReports::ended, this,
            [=, this](int place, const share::ShareResult& result) {
                SharedRow& file = row(place);
                file.isRunning = false;
                file.isWaiting = false;
                file.result = result;
                // What failed stays ticked: starting again tries it again.
                file.isTicked = file.canBeTicked();
                showSoon();
                showState();
            });
}

void ShareWindow::endShare() {
    m_isSharing = false;
    m_refresh.stop();
    for (SharedRow& row : m_rows)
        row.isRunning = row.isWaiting = false;
    tellStatus(sharedText(m_rows));
    showRows();
    showState();
    if (std::ranges::any_of(
            m_rows, [](const SharedRow& row) { return row.result && row.result->wantsLogin; }))
        signIn();
}

void ShareWindow::cancel() {
    m_stop.request_stop();
    if (m_isSharing)
        return; // what became of the rows is told
    ++m_asked;
    m_isFindingLogin = false;
    tellStatus({});
    showState();
}

void ShareWindow::signIn() {
    if (findChild<LoginDialog*>() || isBusy() || !commit())
        return;
    if (const auto fault = share::faultOfPlace(m_place.address)) {
        m_fault->tell(qtText(*fault));
        return;
    }
    auto* const dialog = new LoginDialog(qtText(origin().site()), m_login, this);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { takeLogin(*dialog); });
    dialog->open();
}

void ShareWindow::takeLogin(const LoginDialog& dialog) {
    m_login = dialog.login();
    m_loginOrigin = origin();
    if (dialog.isToKeep())
        m_store->keep(*m_loginOrigin, *m_login, [this](bool isKept) {
            if (!isKept)
                m_fault->tell(tr("This computer has no password store that is open. The password "
                                 "holds until this window is closed."));
        });
    if (m_rows.empty())
        compare();
}

void ShareWindow::forgetLogin() {
    m_login.reset();
    m_loginOrigin = origin();
    m_store->forget(*m_loginOrigin);
    tellStatus(tr("The password of %1 was forgotten.").arg(qtText(m_loginOrigin->site())));
}

void ShareWindow::showRows(bool isOther) {
    m_files.show(m_rows, isOther);
}

void ShareWindow::showState() {
    const bool isFree = !isBusy();
    m_placePart->setEnabled(isFree);
    m_compareButton->setEnabled(isFree);
    m_startButton->setEnabled(isFree && hasTicked());
    m_cancelButton->setEnabled(!isFree);
    m_progress->setVisible(!isFree);
    const auto waiting = std::ranges::count_if(
        m_rows, [](const SharedRow& row) { return row.isWaiting || row.isRunning; });
    const auto ended =
        std::ranges::count_if(m_rows, [](const SharedRow& row) { return row.result.has_value(); });
    m_progress->setRange(0, m_isSharing ? static_cast<int>(waiting + ended) : 0);
    m_progress->setValue(static_cast<int>(ended));
    m_progress->setFormat(tr("%v of %m files"));
    m_actions->refresh();
}

void ShareWindow::tellStatus(const QString& text) {
    m_status->setText(text);
}

QString ShareWindow::fault() const {
    return m_fault->text();
}

QString ShareWindow::status() const {
    return m_status->text();
}

void ShareWindow::closeEvent(QCloseEvent* event) {
    const Alert question{
        tr("Files are being shared").toStdString(),
        tr("What is done stays done; sharing again goes on with the rest.").toStdString()};
    if (isSharing() && !workspace().ask(question, tr("Stop and close"), this)) {
        event->ignore();
        emit stayed();
        return;
    }
    ToolWindow::closeEvent(event);
}

} // namespace kavela::desktop
