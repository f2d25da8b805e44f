#include "desktop/share/share_window.h"

#include "common/error.h"
#include "desktop/share/share_actions.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "facts/fact_cache.h"

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
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int MillisecondsBetweenShown = 150; ///< of the rows while files move
constexpr int MostNamedDeletions = 10;

std::filesystem::path cachesOfShares() {
    const std::filesystem::path facts = userCacheFolder();
    return facts.empty() ? facts : facts.parent_path() / "share";
}

} // namespace

ShareWindow::ShareWindow(Workspace& workspace, std::unique_ptr<fetch::SecretStore> store)
    : ToolWindow(workspace, nullptr, {"share", tr("Share folders"), "*"}),
      m_caches(cachesOfShares()),
      m_logins(std::move(store), *this),
      m_files(sharedColumns([this](std::size_t place, bool isTicked) { tick(place, isTicked); }),
              RowsKnownBy::Number) {
    makeParts();
    m_actions = new ShareActions(*this);
    setWindowTitle(tr("Share folders") + QStringLiteral(" – Kavela"));
    rememberColumns(*this, workspace, kind());
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(MillisecondsBetweenShown);
    connect(&m_refresh, &QTimer::timeout, this, [this] { showRows(); });
    connectRun();
    connectRows();
    connectLogins();
    showState();
    m_place->editEmpty();
}

ShareWindow::~ShareWindow() {
    m_table->disconnect(this);
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
    m_place = new SharePlace(workspace());
    connect(m_place, &SharePlace::changed, this, &ShareWindow::noteOtherPlace);
    connect(m_place, &SharePlace::folderWanted, this, &ShareWindow::chooseFolder);
    connect(m_place, &SharePlace::entered, this, &ShareWindow::compare);
    m_fault = new FaultLabel;
    m_table = new ColumnTable(m_files, "files", this);
    m_table->setEmptyText(tr("Nothing is shared before it is shown here"));
    m_table->stretch({1, 4});
    auto* const main = new QWidget;
    auto* const column = new QVBoxLayout(main);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_place);
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
    return place().folder.empty() ? QStringList() : QStringList{qtText(place().folder)};
}

bool ShareWindow::open(const QString& path) {
    if (isBusy()) {
        m_fault->tell(tr("Another folder is shared once this one is done."));
        return false;
    }
    const QFileInfo file(path);
    m_place->setFolder(file.isDir() ? file.absoluteFilePath() : file.absolutePath());
    return true;
}

void ShareWindow::takeFiles(const QStringList& paths) {
    if (!paths.isEmpty())
        (void)open(paths.constFirst());
}

void ShareWindow::setPlace(const Typed& place) {
    if (!isBusy())
        m_place->set(place);
}

/// What was shown was of another place: it is not to be shared any more.
void ShareWindow::noteOtherPlace() {
    m_logins.giveUp();
    m_run.cancel();
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
        QFileDialog::getExistingDirectory(this, tr("The folder to share"), qtText(place().folder));
    if (!folder.isEmpty())
        (void)open(folder);
}

share::ShareRequest ShareWindow::request() const {
    return {.folder = place().folder,
            .address = place().address,
            .login = m_logins.loginFor(m_place->address()),
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
    if (const QString fault = m_place->fault(); !fault.isEmpty()) {
        m_fault->tell(fault);
        return;
    }
    m_place->remember();
    m_logins.find(m_place->address(), [this] {
        tellStatus(tr("Both sides are looked at…"));
        m_run.compare(request());
        showState();
    });
    showState();
}

void ShareWindow::connectRun() {
    connect(&m_run, &ShareRun::comparing, this,
            [this](const QString& what, qint64 done, qint64 all) {
                tellStatus(all > 0 ? tr("%1: %2 of %3").arg(what).arg(done).arg(all)
                                   : tr("%1: %2 files").arg(what).arg(done));
            });
    connect(&m_run, &ShareRun::compared, this, &ShareWindow::takeCompared);
    connect(&m_run, &ShareRun::stopped, this, &ShareWindow::showState);
    connect(&m_run, &ShareRun::shared, this, &ShareWindow::endShare);
}

void ShareWindow::takeCompared(const ShareComparison& found) {
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
    std::vector<ShareRun::Wanted> wanted;
    for (std::size_t place = 0; place < m_rows.size(); ++place)
        if (m_rows[place].isTicked)
            wanted.emplace_back(static_cast<int>(place), m_rows[place].row);
    tellStatus(tr("Files are being shared…"));
    m_run.share(request(), m_survey, std::move(wanted));
    showRows();
    showState();
}

void ShareWindow::connectRows() {
    const auto row = [this](int place) -> SharedRow& {
        return m_rows.at(static_cast<std::size_t>(place));
    };
    const auto showSoon = [this] {
        if (!m_refresh.isActive())
            m_refresh.start();
    };
    connect(&m_run, &ShareRun::begun, this, [=](int place) {
        row(place).isWaiting = false;
        row(place).isRunning = true;
        showSoon();
    });
    connect(&m_run, &ShareRun::moved, this, [=](int place, qint64 done, qint64 all) {
        row(place).done = done;
        row(place).all = all;
        showSoon();
    });
    connect(&m_run, &ShareRun::ended, this, [=, this](int place, const share::ShareResult& result) {
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

void ShareWindow::endShare(const QString& fault) {
    if (!fault.isEmpty())
        m_fault->tell(fault);
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
    m_run.cancel();
    if (isSharing())
        return; // what became of the rows is told
    m_logins.giveUp();
    tellStatus({});
    showState();
}

void ShareWindow::signIn() {
    if (m_logins.isAsking() || isBusy() || !commit())
        return;
    if (const QString fault = m_place->faultOfAddress(); !fault.isEmpty())
        m_fault->tell(fault);
    else
        m_logins.ask(m_place->address());
}

void ShareWindow::connectLogins() {
    connect(&m_logins, &ServerLogins::signedIn, this, [this] {
        if (m_rows.empty())
            compare();
    });
    connect(&m_logins, &ServerLogins::notKept, this, [this] {
        m_fault->tell(tr("This computer has no password store that is open. The password "
                         "holds until this window is closed."));
    });
}

void ShareWindow::forgetLogin() {
    const fetch::Address server = m_place->address();
    m_logins.forget(server);
    tellStatus(tr("The password of %1 was forgotten.").arg(qtText(server.site())));
}

void ShareWindow::showRows(bool isOther) {
    m_files.show(m_rows, isOther);
}

void ShareWindow::showState() {
    const bool isFree = !isBusy();
    m_place->setEnabled(isFree);
    m_compareButton->setEnabled(isFree);
    m_startButton->setEnabled(isFree && hasTicked());
    m_cancelButton->setEnabled(!isFree);
    m_progress->setVisible(!isFree);
    const auto waiting = std::ranges::count_if(
        m_rows, [](const SharedRow& row) { return row.isWaiting || row.isRunning; });
    const auto ended =
        std::ranges::count_if(m_rows, [](const SharedRow& row) { return row.result.has_value(); });
    m_progress->setRange(0, isSharing() ? static_cast<int>(waiting + ended) : 0);
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
