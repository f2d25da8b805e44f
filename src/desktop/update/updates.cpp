#include "desktop/update/updates.h"

#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/update_choice.h"
#include "desktop/shell/workspace.h"
#include "desktop/update/offer_dialog.h"
#include "update/update_look.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUrl>

namespace kavela::desktop {

namespace {

/// In the folder that runs without being installed.
constexpr const char* BundleMark = "kavela-bundle";

/// A wait between tries is for a server that is asked for many films; here a coach waits.
constexpr int ShortWait = 100;

std::string platformOfThis() {
    const bool isBundle = qEnvironmentVariableIsSet("KAVELA_BUNDLE") ||
                          QFileInfo::exists(QCoreApplication::applicationDirPath() + "/../" +
                                            QLatin1String(BundleMark));
    return update::platformName(QSysInfo::currentCpuArchitecture().toStdString(), isBundle);
}

std::filesystem::path downloadFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    const bool isThere = !folder.isEmpty() && QDir().mkpath(folder);
    return QFile::encodeName(isThere ? folder : QDir::homePath()).toStdString();
}

void showFolderOf(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

} // namespace

Updates::Updates(Workspace& workspace, const update::Version& own)
    : m_workspace(workspace), m_own(own), m_showFile(showFolderOf) {
    m_lookPace.secondMilliseconds = ShortWait;
    connect(&m_workspace, &Workspace::newerVersionRequested, this, &Updates::lookNow);
}

Updates::~Updates() {
    delete m_offer;
    delete m_progress;
    delete m_look;
}

OfferDialog* Updates::offer() const {
    return m_offer;
}

std::int64_t Updates::now() const {
    return static_cast<std::int64_t>(m_workspace.clock()().seconds + SecondsFrom1970To2001);
}

void Updates::beginAtStart(QWidget* over) {
    if (!m_workspace.updateSource())
        return;
    if (!lookHabit(m_workspace).mayLook) {
        const Alert question{
            tr("Newer versions").toStdString(),
            tr("May Kavela look once a day whether there is a newer version? It tells the server "
               "the version that you have, and nothing else. Without a yes it never looks by "
               "itself. You can change this in the settings.")
                .toStdString()};
        const QPointer<Updates> self(this);
        const bool mayLook = m_workspace.ask(question, tr("Yes, look once a day"), over);
        if (!self)
            return;
        setMayLook(m_workspace, mayLook);
    }
    // A computer whose owner said no, or that has looked today, is left alone.
    if (!m_look && update::isLookDue(lookHabit(m_workspace), now()))
        begin(over);
}

void Updates::lookNow(QWidget* over) {
    if (!m_workspace.updateSource())
        return;
    if (m_offer) {
        bringToFront(*m_offer);
        return;
    }
    m_isAskedFor = true;
    if (m_look)
        m_over = over;
    else
        begin(over);
    showLooking();
}

void Updates::begin(QWidget* over) {
    const auto source = updateSource(m_workspace);
    m_over = over;
    setLastLook(m_workspace, now()); // also where nobody answers
    m_look = new update::UpdateLook(*source, m_own, m_lookPace, this);
    m_look->start([this](const update::LookResult& result) { take(result); });
}

void Updates::showLooking() {
    if (m_progress)
        return;
    m_progress =
        new QProgressDialog(tr("Looking for a newer version…"), tr("Cancel"), 0, 0, m_over);
    m_progress->setWindowTitle(tr("Newer versions"));
    m_progress->setAttribute(Qt::WA_DeleteOnClose);
    m_progress->setMinimumDuration(300); // an answer at once needs no window
    m_progress->setValue(0);             // from here its time counts
    connect(m_progress, &QProgressDialog::canceled, this, &Updates::endLook);
}

void Updates::endLook() {
    if (m_progress) {
        m_progress->disconnect(this);
        m_progress->deleteLater();
        m_progress = nullptr;
    }
    if (m_look)
        m_look->deleteLater(); // it may be the one that calls
    m_look = nullptr;
    m_isAskedFor = false;
}

void Updates::take(const update::LookResult& result) {
    if (!m_look)
        return; // given up while the answer was on its way
    const bool isAskedFor = m_isAskedFor;
    endLook();
    if (!result.manifest) {
        m_workspace.log()("Newer version: " + result.reason);
        if (isAskedFor || result.isRefused)
            tell(result.reason);
        return;
    }
    const update::Verdict verdict = update::verdictOn(
        *result.manifest, knownVersions(m_workspace, m_own), platformOfThis(), isAskedFor);
    using Kind = update::Verdict::Kind;
    if (verdict.kind == Kind::Older) {
        tell(verdict.sentence);
        return;
    }
    noteSeen(m_workspace, verdict.version);
    if (verdict.kind == Kind::Offer)
        showOffer(*result.manifest, verdict, isAskedFor);
    else if (isAskedFor)
        tell(verdict.sentence);
}

void Updates::showOffer(const update::updatemanifest001& manifest, const update::Verdict& verdict,
                        bool isAskedFor) {
    m_offer = new OfferDialog({.own = m_own,
                               .version = verdict.version,
                               .date = QString::fromStdString(manifest.date),
                               .notes = QString::fromStdString(manifest.notes),
                               .file = verdict.file.value(),
                               .folder = m_folder.empty() ? downloadFolder() : m_folder,

                               .pace = m_downloadPace},
                              m_over);
    connect(m_offer, &OfferDialog::skipped, this,
            [this, version = verdict.version] { skipVersion(m_workspace, version); });
    connect(m_offer, &OfferDialog::fileReady, this, [this](const QString& path) {
        if (m_showFile)
            m_showFile(path);
    });
    // What nobody asked for takes no keys away from who is typing.
    m_offer->setAttribute(Qt::WA_ShowWithoutActivating, !isAskedFor);
    m_offer->show();
}

void Updates::tell(const std::string& sentence) const {
    m_workspace.showAlert({tr("Newer versions").toStdString(), sentence}, m_over);
}

} // namespace kavela::desktop
