#include "desktop/fetch/fetch_window.h"

#include "common/error.h"
#include "desktop/fetch/fetch_actions.h"
#include "desktop/fetch/fetch_side.h"
#include "desktop/fetch/site_list.h"
#include "desktop/fetch/source_choice.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "fetch/bib_list.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

using fetch::filmsource001;

constexpr int FetchSideWidth = 340;
constexpr int FetchMainWidth = 940;
constexpr int MillisecondsBetweenLooks = 150; ///< of the rows while films come in

} // namespace

FetchWindow::FetchWindow(Workspace& workspace, std::unique_ptr<fetch::SecretStore> store)
    : ToolWindow(workspace, nullptr, {"fetch", tr("Fetch films"), "json"}),
      m_source(rememberedSource(workspace)),
      m_logins(std::move(store), *this) {
    makeParts();
    m_actions = new FetchActions(*this);
    connectJob();
    connectLogins();
    setWindowTitle(tr("Fetch films") + QStringLiteral(" – Kavela"));
    rememberColumns(*this, workspace, kind());
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(MillisecondsBetweenLooks);
    connect(&m_refresh, &QTimer::timeout, this, [this] {
        m_list.refresh();
        showState();
    });
    m_form->show(&m_source, true);
    showSites();
    showState();
    m_form->editField("address");
}

/// The parts tell of their ends while they go.
FetchWindow::~FetchWindow() {
    m_logins.disconnect(this);
    m_maker.forget();
    m_job.disconnect(this);
    m_job.disconnect(&m_list);
    m_job.cancel();
    m_table->disconnect(this);
}

void FetchWindow::makeParts() {
    auto* const splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    m_side = makeSide();
    splitter->addWidget(m_side);
    splitter->addWidget(makeMain());
    splitter->setStretchFactor(1, 1);
    shareSizes(*splitter, {FetchSideWidth, FetchMainWidth});
    rememberSizes(*splitter, workspace(), "fetch");
    setCentralWidget(splitter);
    m_progress = new QProgressBar;
    m_progress->setMaximumWidth(grown(*this, 200));
    m_progress->hide();
    m_status = new QLabel;
    m_status->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_status);
}

QWidget* FetchWindow::makeSide() {
    auto* const page =
        new FetchSide([this](const std::function<void(filmsource001&)>& change) { edit(change); });
    m_form = &page->form();
    m_sites = &page->sites();
    connect(page, &FetchSide::bibsWanted, this, &FetchWindow::chooseBibs);
    connect(page, &FetchSide::folderWanted, this, &FetchWindow::chooseFolder);
    connect(page, &FetchSide::entered, this, &FetchWindow::showPlan);
    connect(page, &FetchSide::siteTicked, this, &FetchWindow::tickSite);
    auto* const side = new ScrollPage(page);
    side->setMinimumWidth(grown(*this, 280));
    return side;
}

QWidget* FetchWindow::makeMain() {
    m_showButton = new QPushButton(tr("Show what would be fetched"));
    m_showButton->setObjectName("showPlan");
    m_fetchButton = new QPushButton(tr("Fetch the ticked films"));
    m_fetchButton->setObjectName("fetch");
    m_cancelButton = new QPushButton(tr("Cancel"));
    m_cancelButton->setObjectName("cancel");
    connect(m_showButton, &QPushButton::clicked, this, &FetchWindow::showPlan);
    connect(m_fetchButton, &QPushButton::clicked, this, &FetchWindow::fetchTicked);
    connect(m_cancelButton, &QPushButton::clicked, this, &FetchWindow::cancel);
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {m_showButton, m_fetchButton, m_cancelButton})
        buttons->addWidget(button);
    buttons->addStretch();
    m_fault = new FaultLabel;
    m_table = new ColumnTable(m_list.model(), "films", this);
    m_table->setEmptyText(tr("Nothing is fetched before it is shown here"));
    m_table->stretch({5, 8});
    auto* const main = new QWidget;
    auto* const column = new QVBoxLayout(main);
    column->setContentsMargins(0, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addLayout(buttons);
    column->addWidget(m_fault);
    column->addWidget(m_table, 1);
    return main;
}

void FetchWindow::connectJob() {
    connect(&m_job, &fetch::FetchJob::filmStarted, &m_list, &FetchList::startFilm);
    connect(&m_job, &fetch::FetchJob::filmProgressed, this,
            [this](std::size_t place, qint64 done, qint64 all) {
                m_list.noteProgress(place, done, all);
                if (!m_refresh.isActive())
                    m_refresh.start();
            });
    connect(&m_job, &fetch::FetchJob::filmEnded, this,
            [this](std::size_t place, const fetch::FilmResult& result) {
                m_list.endFilm(place, result);
                noteSite(result.otherSite);
                showState();
            });
    connect(&m_job, &fetch::FetchJob::ended, this, &FetchWindow::endJob);
    connect(&m_list, &FetchList::ticked, this, [this] {
        tellStatus({});
        showState();
    });
}

void FetchWindow::edit(const std::function<void(filmsource001&)>& change) {
    change(m_source);
    noteSource();
}

/// What was shown was of another source: it is not to be fetched any more.
void FetchWindow::noteSource() {
    ++m_plan;
    m_maker.forget();
    m_logins.giveUp();
    m_list.setFilms({});
    tellStatus({});
    rememberSource(workspace(), m_source);
    m_form->show(&m_source);
    tell({});
    showSites();
    showState();
}

void FetchWindow::setSource(const filmsource001& source) {
    if (isFetching())
        return;
    m_source = source;
    m_list.forgetChoices();
    m_seenSites.clear();
    m_form->show(&m_source, true);
    noteSource();
}

bool FetchWindow::open(const QString& path) {
    if (isFetching()) {
        tell(tr("Films are being fetched. Another source or list is opened after that."));
        return false;
    }
    if (QFileInfo(path).isDir()) {
        edit([&](filmsource001& source) { source.folder = path.toStdString(); });
        return true;
    }
    if (!path.endsWith(".json", Qt::CaseInsensitive)) {
        edit([&](filmsource001& source) {
            source.bibs = path.toStdString();
            if (source.folder.empty())
                source.folder = QFileInfo(path).absolutePath().toStdString();
        });
        return true;
    }
    try {
        setSource(fetch::readSource(path.toStdString()));
        return true;
    } catch (const std::runtime_error& error) {
        workspace().showAlert(
            {tr("“%1” is no source of films").arg(QFileInfo(path).fileName()).toStdString(),
             error.what()},
            this);
        return false;
    }
}

void FetchWindow::takeFiles(const QStringList& paths) {
    for (const QString& path : paths)
        (void)open(path);
}

void FetchWindow::openChosen(const QString& path) {
    if (!path.isEmpty())
        (void)open(path);
}

void FetchWindow::chooseBibs() {
    openChosen(askForBibs(*this, m_source));
}

void FetchWindow::chooseFolder() {
    openChosen(askForFilmFolder(*this, m_source));
}

void FetchWindow::chooseSource() {
    openChosen(askForSource(*this, m_source));
}

void FetchWindow::chooseAndSaveSource() {
    if (!commit())
        return;
    if (const QString path = askForSourceTarget(*this, m_source); !path.isEmpty())
        (void)saveSource(path);
}

bool FetchWindow::saveSource(const QString& path) {
    try {
        fetch::writeSource(m_source, path.toStdString());
        tellStatus(tr("The source was saved. “kavela fetch” takes the file, too."));
        return true;
    } catch (const std::runtime_error& error) {
        workspace().showAlert({tr("The source could not be saved").toStdString(), error.what()},
                              this);
        return false;
    }
}

fetch::Address FetchWindow::origin() const {
    return fetch::rulesOf(m_source, std::nullopt).source;
}

fetch::WebRules FetchWindow::rules() const {
    fetch::WebRules rules = fetch::rulesOf(m_source, m_logins.loginFor(origin()));
    rules.pace = m_pace;
    return rules;
}

bool FetchWindow::isPlanning() const {
    return m_reading.isRunning() || m_logins.isFinding() || m_maker.isMaking();
}

void FetchWindow::showPlan() {
    if (!commit() || isBusy())
        return;
    tell({});
    if (const auto fault = fetch::faultOfSource(m_source)) {
        tell(qtText(*fault));
        return;
    }
    tellStatus(tr("What there is to fetch is being found out…"));
    ++m_plan;
    m_reading.run([bibs = m_source.bibs] { return fetch::bibsIn(bibs); },
                  [this, plan = m_plan](const fetch::BibList& list) {
                      if (plan == m_plan)
                          m_logins.find(origin(), [this, runs = list.runs, plan] {
                              if (plan == m_plan)
                                  makePlan(runs);
                          });
                      showState();
                  },
                  {.failed = [this, plan = m_plan](const std::exception_ptr& fault) {
                      if (plan != m_plan)
                          return;
                      tell(qtText(messageOf(fault)));
                      tellStatus({});
                      showState();
                  }});
    showState();
}

void FetchWindow::makePlan(const std::vector<fetch::FetchRun>& runs) {
    m_maker.make(m_source, runs, rules(), [this](const fetch::MadePlan& plan) { takePlan(plan); });
    showState();
}

void FetchWindow::takePlan(const fetch::MadePlan& plan) {
    tellStatus({});
    tell(qtText(plan.reason));
    m_list.setFilms(plan.films);
    for (const std::string& site : fetch::otherSites(plan.films, origin().site()))
        m_seenSites.insert(site);
    noteSite(plan.otherSite);
    showSites();
    showState();
    if (plan.wantsLogin)
        signIn();
}

void FetchWindow::tickAll(bool isTicked) {
    if (!isFetching())
        m_list.tickAll(isTicked);
}

void FetchWindow::tickSite(const std::string& site, bool isTicked) {
    const bool wasShown = !rows().empty();
    edit([&](filmsource001& source) {
        std::erase(source.hosts, site);
        if (isTicked)
            source.hosts.push_back(site);
    });
    if (wasShown)
        showPlan();
}

void FetchWindow::fetchTicked() {
    if (!commit() || isBusy() || !hasTicked())
        return;
    if (!QDir().mkpath(qtText(m_source.folder))) {
        tell(tr("The folder “%1” cannot be made.").arg(qtText(m_source.folder)));
        return;
    }
    tell({});
    tellStatus(tr("Films are being fetched…"));
    m_job.start(m_list.startJob(), m_source.folder, rules());
    showState();
}

void FetchWindow::cancel() {
    if (isFetching()) {
        m_job.cancel();
        return;
    }
    ++m_plan;
    m_logins.giveUp();
    m_reading.cancel();
    m_maker.forget();
    tellStatus({});
    showState();
}

void FetchWindow::endJob() {
    m_refresh.stop();
    tellStatus(resultText(rows()));
    showSites();
    m_list.refresh();
    showState();
    if (m_list.wantsLogin())
        signIn();
}

void FetchWindow::openFolder() {
    if (!m_source.folder.empty())
        emit openRequested({qtText(m_source.folder)});
}

void FetchWindow::signIn() {
    // Several films may have been refused: it is asked once.
    if (m_logins.isAsking() || !commit())
        return;
    if (origin().host.empty())
        tell(tr("There is no address to sign in to yet."));
    else
        m_logins.ask(origin());
}

void FetchWindow::forgetLogin() {
    m_logins.forget(origin());
    tellStatus(tr("The password of %1 was forgotten.").arg(qtText(origin().site())));
}

void FetchWindow::connectLogins() {
    connect(&m_logins, &ServerLogins::signedIn, this, [this] {
        if (rows().empty())
            showPlan();
    });
    connect(&m_logins, &ServerLogins::notKept, this, [this] {
        tell(tr("This computer has no password store that is open. The password holds "
                "until this window is closed."));
    });
}

void FetchWindow::showSites() {
    std::set<std::string> sites = m_seenSites;
    sites.insert(m_source.hosts.begin(), m_source.hosts.end());
    sites.erase(origin().site());
    m_sites->show({sites.begin(), sites.end()}, m_source.hosts);
}

void FetchWindow::showState() {
    const bool isFree = !isBusy();
    m_side->setEnabled(!isFetching());
    m_showButton->setEnabled(isFree);
    m_fetchButton->setEnabled(isFree && hasTicked());
    m_cancelButton->setEnabled(!isFree);
    m_progress->setVisible(!isFree);
    m_progress->setRange(0, isFetching() ? m_list.jobFilms() : 0);
    m_progress->setValue(m_list.endedFilms());
    m_progress->setFormat(tr("%v of %m films"));
    if (isFree && m_status->text().isEmpty() && !rows().empty())
        m_status->setText(tickedText(rows()));
    m_actions->refresh();
}

void FetchWindow::tell(const QString& fault) {
    m_fault->tell(fault);
}

void FetchWindow::tellStatus(const QString& text) {
    m_status->setText(text);
}

QString FetchWindow::fault() const {
    return m_fault->text();
}

QString FetchWindow::status() const {
    return m_status->text();
}

void FetchWindow::closeEvent(QCloseEvent* event) {
    const Alert question{
        tr("Films are being fetched").toStdString(),
        tr("What is there of them stays; fetching them again goes on with it.").toStdString()};
    if (isFetching() && !workspace().ask(question, tr("Stop and close"), this)) {
        event->ignore();
        emit stayed();
        return;
    }
    ToolWindow::closeEvent(event);
}

} // namespace kavela::desktop
