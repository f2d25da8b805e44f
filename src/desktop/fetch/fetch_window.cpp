#include "desktop/fetch/fetch_window.h"

#include "common/error.h"
#include "desktop/fetch/fetch_actions.h"
#include "desktop/fetch/site_list.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/login_dialog.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "fetch/bib_list.h"
#include "splittaking/video_names.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

using fetch::filmsource001;
using FilmState = fetch::PlannedFilm::State;

constexpr const char* FetchSourceKey = "fetch/source";
constexpr const char* TakenNamesKey = "filmNames"; ///< the pattern that split taking reads by
constexpr int FetchSideWidth = 340;
constexpr int FetchMainWidth = 940;
constexpr int MillisecondsBetweenLooks = 150; ///< of the rows while films come in

/// As it was left; the first time with the names that split taking reads.
filmsource001 rememberedSource(const Workspace& workspace) {
    const QStringList kept = workspace.remembered(FetchSourceKey);
    filmsource001 source{kept.value(0).toStdString(),
                         kept.value(1).toStdString(),
                         kept.value(2).toStdString(),
                         kept.value(3).toStdString(),
                         {}};
    for (const QString& host : kept.mid(4))
        source.hosts.push_back(host.toStdString());
    if (source.names.empty())
        source.names = workspace.remembered(TakenNamesKey).value(0).toStdString();
    if (source.names.empty())
        source.names = DefaultVideoPattern;
    return source;
}

/// What the coach decided is found again where the list gives the films another order.
std::string choiceKey(const fetch::PlannedFilm& film) {
    return film.address.text() + '\n' + film.name;
}

QPushButton* sideButton(const QString& text, const QString& tip) {
    auto* const button = new QPushButton(text);
    button->setToolTip(tip);
    return button;
}

} // namespace

FetchWindow::FetchWindow(Workspace& workspace, std::unique_ptr<fetch::SecretStore> store)
    : ToolWindow(workspace, nullptr, {"fetch", tr("Fetch films"), "json"}),
      m_source(rememberedSource(workspace)),
      m_store(std::move(store)),
      m_films(fetchColumns([this](std::size_t place, bool isTicked) { tick(place, isTicked); }),
              RowsKnownBy::Number) {
    makeParts();
    m_actions = new FetchActions(*this);
    connectJob();
    setWindowTitle(tr("Fetch films") + QStringLiteral(" – Kavela"));
    rememberColumns(*this, workspace, kind());
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(MillisecondsBetweenLooks);
    connect(&m_refresh, &QTimer::timeout, this, [this] {
        showRows();
        showState();
    });
    m_form->show(&m_source, true);
    showSites();
    showState();
    m_form->editField("address");
}

/// The parts tell of their ends while they go.
FetchWindow::~FetchWindow() {
    m_maker.forget();
    m_job.disconnect(this);
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

void FetchWindow::makeForm() {
    m_form = new RecordForm<filmsource001>(
        [this](const QString& /*what*/, const RecordForm<filmsource001>::Change& change) {
            edit(change);
        });
    m_form->text(
        {.name = "address",
         .label = tr("&Address"),
         .tip = tr("Of one film, with {bib}, {category}, {phase} or {run} where they stand "
                   "({bib:3} is 014); or of a list: a page, JSON, M3U8 or WebDAV folder"),
         .placeholder = "https://films.example.org/{bib:3}.mp4"},
        &filmsource001::address);
    m_form->text({.name = "bibs",
                  .label = tr("&Bibs from"),
                  .tip = tr("Start list or results (a column is called bib), or a split file"),
                  .placeholder = tr("start list, results or split file")},
                 &filmsource001::bibs);
    m_form->text({.name = "folder",
                  .label = tr("F&older"),
                  .tip = tr("Where the films are put; no file there is ever overwritten"),
                  .placeholder = tr("for the films")},
                 &filmsource001::folder);
    m_form->text({.name = "names",
                  .label = tr("&Names"),
                  .tip = tr("Of the files: {name}, {category}, {phase}, {bib} and {number}")},
                 &filmsource001::names);
}

QWidget* FetchWindow::makeSide() {
    makeForm();
    QPushButton* const bibs =
        sideButton(tr("Choose a list…"), tr("Start list, results, split file"));
    QPushButton* const folder = sideButton(tr("Choose a folder…"), tr("For the films"));
    connect(bibs, &QPushButton::clicked, this, &FetchWindow::chooseBibs);
    connect(folder, &QPushButton::clicked, this, &FetchWindow::chooseFolder);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(bibs);
    buttons->addWidget(folder);
    buttons->addStretch();
    m_sites = new SiteList;
    // Later: the list is shown anew, and the item that was ticked must not go meanwhile.
    connect(m_sites, &SiteList::ticked, this, &FetchWindow::tickSite, Qt::QueuedConnection);
    auto* const sites = new QLabel(tr("Other se&rvers that films may come from"));
    sites->setBuddy(m_sites);
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_form);
    column->addLayout(buttons);
    column->addWidget(sites);
    column->addWidget(m_sites);
    column->addStretch();
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
    m_table = new ColumnTable(m_films, "films", this);
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
    connect(&m_job, &fetch::FetchJob::filmStarted, this, [this](std::size_t place) {
        FetchRow& row = m_rows.at(m_fetched.at(place));
        row.isWaiting = false;
        row.isRunning = true;
        showRows();
    });
    connect(&m_job, &fetch::FetchJob::filmProgressed, this,
            [this](std::size_t place, qint64 done, qint64 all) {
                FetchRow& row = m_rows.at(m_fetched.at(place));
                row.done = done;
                row.all = all;
                if (!m_refresh.isActive())
                    m_refresh.start();
            });
    connect(&m_job, &fetch::FetchJob::filmEnded, this,
            [this](std::size_t place, const fetch::FilmResult& result) {
                endFilm(m_fetched.at(place), result);
            });
    connect(&m_job, &fetch::FetchJob::ended, this, &FetchWindow::endJob);
}

void FetchWindow::edit(const std::function<void(filmsource001&)>& change) {
    change(m_source);
    noteSource();
}

/// What was shown was of another source: it is not to be fetched any more.
void FetchWindow::noteSource() {
    ++m_plan;
    m_maker.forget();
    m_isFindingLogin = false;
    m_rows.clear();
    m_fetched.clear();
    tellStatus({});
    QStringList kept{qtText(m_source.address), qtText(m_source.bibs), qtText(m_source.folder),
                     qtText(m_source.names)};
    for (const std::string& host : m_source.hosts)
        kept.append(qtText(host));
    workspace().remember(FetchSourceKey, kept);
    m_form->show(&m_source);
    tell({});
    showSites();
    showRows(true);
    showState();
}

void FetchWindow::setSource(const filmsource001& source) {
    if (isFetching())
        return;
    m_source = source;
    m_choices.clear();
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

void FetchWindow::chooseBibs() {
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Start list, results or split file"), qtText(m_source.bibs),
        tr("Lists and split files (*.csv *.txt *.tsv *.kvx);;All files (*)"));
    if (!path.isEmpty())
        (void)open(path);
}

void FetchWindow::chooseFolder() {
    const QString path = QFileDialog::getExistingDirectory(this, tr("Folder for the films"),
                                                           qtText(m_source.folder));
    if (!path.isEmpty())
        (void)open(path);
}

void FetchWindow::chooseSource() {
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open a source of films"), qtText(m_source.folder),
                                     tr("Sources of films (*.json)"));
    if (!path.isEmpty())
        (void)open(path);
}

void FetchWindow::chooseAndSaveSource() {
    if (!commit())
        return;
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save the source of films"), QDir(qtText(m_source.folder)).filePath("films.json"),
        tr("Sources of films (*.json)"));
    if (!path.isEmpty())
        (void)saveSource(path.endsWith(".json", Qt::CaseInsensitive) ? path : path + ".json");
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
    const bool isFor = m_loginOrigin && m_loginOrigin->isSameOrigin(origin());
    fetch::WebRules rules = fetch::rulesOf(m_source, isFor ? m_login : std::nullopt);
    rules.pace = m_pace;
    return rules;
}

bool FetchWindow::isPlanning() const {
    return m_reading.isRunning() || m_isFindingLogin || m_maker.isMaking();
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
                          findLogin(list.runs);
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

/// The store is asked once for a server; what was typed meanwhile stands.
void FetchWindow::findLogin(const std::vector<fetch::FetchRun>& runs) {
    const fetch::Address from = origin();
    if (m_loginOrigin && m_loginOrigin->isSameOrigin(from)) {
        makePlan(runs);
        return;
    }
    m_isFindingLogin = true;
    m_store->find(from,
                  [this, from, runs, plan = m_plan](const std::optional<fetch::WebLogin>& login) {
                      if (plan != m_plan)
                          return;
                      m_isFindingLogin = false;
                      m_login = login;
                      m_loginOrigin = from;
                      makePlan(runs);
                  });
}

void FetchWindow::makePlan(const std::vector<fetch::FetchRun>& runs) {
    m_maker.make(m_source, runs, rules(), [this](const fetch::MadePlan& plan) { takePlan(plan); });
    showState();
}

void FetchWindow::takePlan(const fetch::MadePlan& plan) {
    tellStatus({});
    tell(qtText(plan.reason));
    m_rows.clear();
    m_fetched.clear();
    for (const fetch::PlannedFilm& film : plan.films) {
        FetchRow row{.film = film};
        const auto choice = m_choices.find(choiceKey(film));
        row.isTicked =
            row.canBeTicked() &&
            (choice != m_choices.end() ? choice->second : film.state == FilmState::Wanted);
        m_rows.push_back(std::move(row));
    }
    for (const std::string& site : fetch::otherSites(plan.films, origin().site()))
        m_seenSites.insert(site);
    noteSite(plan.otherSite);
    showSites();
    showRows(true);
    showState();
    if (plan.wantsLogin)
        signIn();
}

void FetchWindow::tick(std::size_t place, bool isTicked) {
    FetchRow& row = m_rows.at(place);
    row.isTicked = isTicked;
    m_choices[choiceKey(row.film)] = isTicked;
    tellStatus({});
    showRows();
    showState();
}

void FetchWindow::tickAll(bool isTicked) {
    if (isFetching())
        return;
    for (FetchRow& row : m_rows) {
        // Which of several runs a film is of is decided one by one.
        const bool isOwn = row.canBeTicked() && row.film.state == FilmState::Wanted;
        if (!isOwn && (isTicked || !row.isTicked))
            continue;
        row.isTicked = isTicked;
        m_choices[choiceKey(row.film)] = isTicked;
    }
    tellStatus({});
    showRows();
    showState();
}

void FetchWindow::tickSite(const std::string& site, bool isTicked) {
    const bool wasShown = !m_rows.empty();
    edit([&](filmsource001& source) {
        std::erase(source.hosts, site);
        if (isTicked)
            source.hosts.push_back(site);
    });
    if (wasShown)
        showPlan();
}

void FetchWindow::noteSite(const std::string& site) {
    if (!site.empty())
        m_seenSites.insert(site);
}

bool FetchWindow::hasTicked() const {
    return std::ranges::any_of(m_rows, [](const FetchRow& row) { return row.isTicked; });
}

void FetchWindow::fetchTicked() {
    if (!commit() || isBusy() || !hasTicked())
        return;
    if (!QDir().mkpath(qtText(m_source.folder))) {
        tell(tr("The folder “%1” cannot be made.").arg(qtText(m_source.folder)));
        return;
    }
    tell({});
    m_fetched.clear();
    std::vector<fetch::PlannedFilm> films;
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        FetchRow& row = m_rows[place];
        row.result.reset();
        row.isWaiting = row.isTicked;
        if (!row.isTicked)
            continue;
        m_fetched.push_back(place);
        films.push_back(row.film);
    }
    tellStatus(tr("Films are being fetched…"));
    m_job.start(std::move(films), m_source.folder, rules());
    showRows();
    showState();
}

void FetchWindow::cancel() {
    if (isFetching()) {
        m_job.cancel();
        return;
    }
    ++m_plan;
    m_isFindingLogin = false;
    m_reading.cancel();
    m_maker.forget();
    tellStatus({});
    showState();
}

void FetchWindow::endFilm(std::size_t row, const fetch::FilmResult& result) {
    FetchRow& film = m_rows.at(row);
    film.isRunning = false;
    film.isWaiting = false;
    film.result = result;
    // What failed stays ticked: fetching again goes on with it.
    if (result.kind == fetch::FilmResult::Kind::Fetched)
        film.isTicked = false;
    noteSite(result.otherSite);
    showRows();
    showState();
}

void FetchWindow::endJob() {
    m_refresh.stop();
    tellStatus(resultText(m_rows));
    showSites();
    showRows();
    showState();
    if (std::ranges::any_of(
            m_rows, [](const FetchRow& row) { return row.result && row.result->wantsLogin; }))
        signIn();
}

void FetchWindow::openFolder() {
    if (!m_source.folder.empty())
        emit openRequested({qtText(m_source.folder)});
}

void FetchWindow::signIn() {
    // Several films may have been refused: it is asked once.
    if (findChild<LoginDialog*>() || !commit())
        return;
    const fetch::Address from = origin();
    if (from.host.empty()) {
        tell(tr("There is no address to sign in to yet."));
        return;
    }
    auto* const dialog = new LoginDialog(qtText(from.site()), m_login, this);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { takeLogin(*dialog); });
    dialog->open();
}

void FetchWindow::takeLogin(const LoginDialog& dialog) {
    m_login = dialog.login();
    m_loginOrigin = origin();
    if (dialog.isToKeep())
        m_store->keep(*m_loginOrigin, *m_login, [this](bool isKept) {
            if (!isKept)
                tell(tr("This computer has no password store that is open. The password holds "
                        "until this window is closed."));
        });
    if (m_rows.empty())
        showPlan();
}

void FetchWindow::forgetLogin() {
    m_login.reset();
    m_loginOrigin = origin();
    m_store->forget(*m_loginOrigin);
    tellStatus(tr("The password of %1 was forgotten.").arg(qtText(m_loginOrigin->site())));
}

void FetchWindow::showRows(bool isOther) {
    m_films.show(m_rows, isOther);
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
    const auto ended = std::ranges::count_if(m_fetched, [this](std::size_t row) {
        return row < m_rows.size() && m_rows[row].result.has_value();
    });
    m_progress->setRange(0, isFetching() ? static_cast<int>(m_fetched.size()) : 0);
    m_progress->setValue(static_cast<int>(ended));
    m_progress->setFormat(tr("%v of %m films"));
    if (isFree && m_status->text().isEmpty() && !m_rows.empty())
        m_status->setText(tickedText(m_rows));
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
