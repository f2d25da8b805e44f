#include "desktop/find/find_window.h"

#include "desktop/facts/failed_files.h"
#include "desktop/facts/reading_progress.h"
#include "desktop/find/find_actions.h"
#include "desktop/find/found_saving.h"
#include "desktop/find/kept_queries.h"
#include "desktop/find/query_edit.h"
#include "desktop/find/query_fault.h"
#include "desktop/find/query_form.h"
#include "desktop/find/search_places.h"
#include "desktop/find/unknown_names.h"
#include "desktop/shell/empty_page.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "facts/found_text.h"
#include "facts/query_edit.h"

#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* PathsKey = "find/paths";
constexpr int SideWidth = 330;
constexpr int MainWidth = 950;

} // namespace

FindWindow::FindWindow(Workspace& workspace, std::filesystem::path cacheFolder)
    : ToolWindow(workspace, nullptr, {"find", tr("Find"), "kvx"}),
      m_facts(nullptr, std::move(cacheFolder)) {
    makeParts();
    m_actions = new FindActions(*this);
    connectParts();
    connectReading();
    setWindowTitle(tr("Find") + QStringLiteral(" – Kavela"));
    offerValues();
    const bool isNew = m_queries->kept().isEmpty() && m_queries->last().isEmpty();
    m_side->setCurrentIndex(isNew ? 1 : 0);
    searchIn(workspace.remembered(PathsKey)); // a disk that is not there now may come again
    m_edit->setText(m_queries->last().value(0));
    readQuery();
    m_edit->setFocus();
}

/// The parts tell of changes while they go.
FindWindow::~FindWindow() {
    m_facts.disconnect(this);
    m_results->disconnect(this);
    m_members->disconnect(this);
    m_queries->disconnect(this);
}

void FindWindow::makeParts() {
    auto* const splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(makeSide());
    splitter->addWidget(makeMain());
    splitter->setStretchFactor(1, 1);
    shareSizes(*splitter, {SideWidth, MainWidth});
    rememberSizes(*splitter, workspace(), "find");
    setCentralWidget(splitter);
    makeStatus();
}

QWidget* FindWindow::makeSide() {
    m_places = new SearchPlaces;
    m_form = new QueryForm;
    m_queries = new KeptQueries(workspace());
    auto* const page = new QWidget;
    auto* const fields = new QVBoxLayout(page);
    fields->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    fields->addWidget(m_form);
    fields->addStretch();
    m_side = new QTabWidget;
    m_side->addTab(new ScrollPage(page), tr("Fields"));
    m_side->addTab(m_queries, tr("Queries"));
    auto* const side = new QWidget;
    auto* const column = new QVBoxLayout(side);
    column->setContentsMargins(theme::Spacing, theme::Spacing, 0, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_places);
    column->addWidget(m_side, 1);
    side->setMinimumWidth(grown(*this, 280));
    return side;
}

QWidget* FindWindow::makeMain() {
    m_edit = new QueryEdit;
    m_edit->setPlaceholderText(tr("gates up left cat K1W time<4 – what, then what is asked of it"));
    m_keep = new QPushButton(tr("Keep"));
    m_keep->setToolTip(tr("Keeps this query among those at hand"));
    auto* const line = new QHBoxLayout;
    line->addWidget(m_edit, 1);
    line->addWidget(m_keep, 0, Qt::AlignTop);
    m_fault = new QueryFault;
    m_results = new FoundTable("found");
    m_members = new FoundTable("foundInGroup");
    m_members->hide();
    auto* const tables = new QSplitter(Qt::Vertical);
    tables->setChildrenCollapsible(false);
    tables->addWidget(m_results);
    tables->addWidget(m_members);
    m_pages = new QStackedWidget;
    m_pages->addWidget(
        new EmptyPage(tr("Drop a folder of split files (.kvx) here"),
                      tr("All races below it are searched. They are only read."),
                      {{tr("Search a folder…"), [this] { m_places->chooseFolder(); }}}));
    m_pages->addWidget(tables);
    auto* const main = new QWidget;
    auto* const column = new QVBoxLayout(main);
    column->setContentsMargins(0, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addLayout(line);
    column->addWidget(m_fault);
    column->addWidget(m_pages, 1);
    return main;
}

void FindWindow::makeStatus() {
    m_progress = new ReadingProgress(m_facts);
    m_status = new QLabel;
    m_status->setTextFormat(Qt::PlainText);
    m_place = new QLabel;
    m_place->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_status);
    statusBar()->addPermanentWidget(m_place);
}

void FindWindow::connectParts() {
    connect(m_edit, &QueryEdit::rested, this, &FindWindow::readQuery);
    connect(m_edit, &QueryEdit::entered, this, [this] {
        m_isEntered = true;
        readQuery();
    });
    connect(m_edit, &QueryEdit::textChanged, m_fault, &QueryFault::clear);
    connect(m_fault, &QueryFault::mended, this, [this](const QString& query) {
        ask(query);
        m_edit->setFocus();
    });
    connect(m_form, &QueryForm::edited, this, &FindWindow::take);
    connect(m_queries, &KeptQueries::asked, this, &FindWindow::ask);
    connect(m_queries, &KeptQueries::currentRowChanged, m_actions, &FindActions::refresh);
    connect(m_keep, &QPushButton::clicked, this, &FindWindow::keepQuery);
    connect(&m_search, &QuerySearch::found, this, &FindWindow::showFound);
    connect(&m_groupSearch, &QuerySearch::found, this,
            [this](const std::shared_ptr<const Found>& found) {
                m_members->show(found, true);
                showPlace();
            });
    connect(m_results, &FoundTable::chosen, this, [this] {
        showGroup();
        showPlace();
    });
    connect(m_results, &FoundTable::activated, this,
            [this] { isGrouped() ? enterGroup() : showRun(); });
    connect(m_members, &FoundTable::chosen, this, &FindWindow::showPlace);
    connect(m_members, &FoundTable::activated, this, &FindWindow::showRun);
}

void FindWindow::connectReading() {
    connect(m_places, &SearchPlaces::edited, this, &FindWindow::searchIn);
    connect(m_places, &SearchPlaces::failuresRequested, this, &FindWindow::showFailed);
    connect(&m_facts, &WatchedFacts::changed, this, &FindWindow::takeFacts);
    connect(&m_facts, &WatchedFacts::readingChanged, this, &FindWindow::showReading);
}

QStringList FindWindow::paths() const {
    return m_places->paths();
}

bool FindWindow::open(const QString& path) {
    searchAlso({path});
    return true;
}

void FindWindow::searchAlso(const QStringList& paths) {
    QStringList all = this->paths();
    for (const QString& path : paths) {
        const QString known = canonicalPath(path);
        const bool isThere = std::ranges::any_of(
            all, [&](const QString& other) { return isSameFile(other, known); });
        if (!isThere)
            all.append(known);
    }
    if (all != this->paths())
        searchIn(all);
}

void FindWindow::searchIn(const QStringList& paths) {
    m_places->show(paths);
    workspace().remember(PathsKey, paths);
    m_pages->setCurrentIndex(paths.isEmpty() ? 0 : 1);
    m_facts.setPaths(paths);
    tellContent();
    m_actions->refresh();
    emit pathsChanged();
}

void FindWindow::takeFiles(const QStringList& paths) {
    searchAlso(paths);
}

void FindWindow::showReading() {
    const bool isReading = m_facts.isReading() && !paths().isEmpty();
    m_progress->showReading(isReading);
    if (isReading)
        m_results->setEmptyText(tr("The files are being read…"));
    m_actions->refresh();
}

void FindWindow::takeFacts() {
    m_values.setFacts(m_facts.facts());
    offerValues();
    tellContent();
    search();
}

void FindWindow::tellContent() {
    const std::size_t files = m_facts.facts()->files().size();
    const std::size_t runs = m_facts.facts()->runs().size();
    QString text = tr("%1, %2").arg(
        files == 1 ? tr("1 file") : tr("%n files", nullptr, static_cast<int>(files)),
        runs == 1 ? tr("1 run") : tr("%n runs", nullptr, static_cast<int>(runs)));
    if (m_facts.isIncomplete())
        text += tr(". Reading was stopped: the others are not searched.");
    m_places->setContent(paths().isEmpty() ? QString() : text);
    m_places->setFailed(static_cast<int>(m_facts.failed().size()));
    m_actions->refresh();
}

void FindWindow::offerValues() {
    const auto valuesOf = [this](What what, const QueryColumn& column) {
        return m_values.of(what, column);
    };
    m_form->setValues(valuesOf);
    m_edit->setValues(valuesOf);
}

void FindWindow::ask(const QString& query) {
    m_edit->setText(query);
    readQuery();
}

void FindWindow::typeQuery() {
    m_edit->setFocus();
    m_edit->selectAll();
}

void FindWindow::showSide(int page) {
    m_side->setCurrentIndex(page);
    if (page == 0)
        m_form->editField("what");
    else
        m_queries->setFocus();
}

/// What was found for the query before stays as long as the new one cannot be read.
void FindWindow::readQuery() {
    const QString text = m_edit->text();
    m_fault->clear();
    m_edit->clearFault();
    try {
        m_query = parsedQuery(text.toStdString());
        m_form->show(m_query);
        search();
    } catch (const QueryError& error) {
        m_isEntered = false;
        m_edit->showFault(error.place(), error.length());
        m_fault->tell(error, text);
        m_form->setEnabled(false); // it cannot show what the text asks
    }
    m_keep->setEnabled(canKeepQuery());
    m_actions->refresh();
}

/// The text is the truth: the fields show what it reads.
void FindWindow::take(const Query& query) {
    ask(qtText(textOf(query)));
}

void FindWindow::search() {
    if (paths().isEmpty()) {
        m_search.forget();
        return showFound(nullptr);
    }
    m_search.ask(m_facts.facts(), m_query);
}

void FindWindow::showFound(const std::shared_ptr<const Found>& found) {
    m_groupSearch.forget();
    const bool isEmpty = !found || found->answer.size() == 0;
    const bool isEarly = isEmpty && m_facts.isReading();
    if (isEmpty)
        m_results->setEmptyText(isEarly ? tr("The files are being read…") : nothingText());
    m_results->show(found);
    m_status->setText(found && !isEarly ? countText(*found) : QString());
    m_members->setVisible(isGrouped() && !isEmpty);
    if (!isEmpty && m_fault->isHidden())
        m_queries->noteAsked(m_edit->text().trimmed());
    if (std::exchange(m_isEntered, false) && !isEmpty)
        m_results->table().setFocus();
    showGroup();
    showPlace();
}

QString FindWindow::nothingText() const {
    const QStringList unknown = unknownNameSentences(m_query, *m_facts.facts());
    return unknown.isEmpty() ? tr("Nothing was found.")
                             : tr("Nothing was found.") + '\n' + unknown.join('\n');
}

bool FindWindow::isGrouped() const {
    const auto& found = m_results->found();
    return found && !found->answer.query().by.empty();
}

void FindWindow::showGroup() {
    const auto row = m_results->current();
    if (!isGrouped() || !row) {
        m_groupSearch.forget();
        m_members->show(nullptr);
        return;
    }
    const QueryAnswer& groups = m_results->found()->answer;
    QStringList keys;
    for (std::size_t i = 0; i < groups.query().by.size(); ++i)
        keys.append(qtText(groups.text(*row, i)));
    m_members->setTitle(tr("In the group: %1").arg(keys.join(QStringLiteral(" · "))));
    m_groupSearch.askGroup(m_results->found(), *row);
}

void FindWindow::enterGroup() {
    if (isGrouped())
        m_members->table().setFocus();
}

const FoundTable& FindWindow::front() const {
    return m_members->isVisible() && m_members->table().hasFocus() ? *m_members : *m_results;
}

std::optional<Place> FindWindow::currentPlace() const {
    const auto& found = front().found();
    const auto row = front().current();
    return found && row ? std::optional(shownPlace(found->answer, *row)) : std::nullopt;
}

/// Where the chosen row is to be seen.
void FindWindow::showPlace() {
    QString text;
    if (const auto place = currentPlace()) {
        text = qtText(place->file.filename().string()) + tr(" · run %1").arg(place->run);
        if (place->split)
            text += tr(" · split %1").arg(*place->split);
        if (place->moment)
            text += tr(" · %1 s").arg(shownHundredths(place->moment->seconds()));
    }
    m_place->setText(text);
    m_actions->refresh();
}

void FindWindow::showRun() {
    if (const auto place = currentPlace())
        emit placeRequested(*place);
}

void FindWindow::openRace() {
    if (const auto place = currentPlace())
        emit openRequested({QFile::decodeName(QByteArray::fromStdString(place->file.native()))});
}

void FindWindow::requestLosses() {
    if (const auto place = currentPlace())
        emit lossesRequested(QFile::decodeName(QByteArray::fromStdString(place->file.native())),
                             place->run);
}

bool FindWindow::canShowLosses() const {
    return isSignalConnected(QMetaMethod::fromSignal(&FindWindow::lossesRequested));
}

bool FindWindow::canKeepQuery() const {
    const QString query = m_edit->text().trimmed();
    return m_fault->isHidden() && !query.isEmpty() && !m_queries->kept().contains(query);
}

void FindWindow::keepQuery() {
    m_queries->keep(m_edit->text().trimmed());
    m_keep->setEnabled(canKeepQuery());
    m_actions->refresh();
}

void FindWindow::chooseAndSaveCsv() {
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the result"), {},
                                                      tr("Semicolon-separated text (*.csv)"));
    if (!path.isEmpty())
        saveCsv(path);
}

void FindWindow::saveCsv(const QString& path) {
    if (m_results->found())
        saveFound(m_results->found(), path, workspace(), *this);
}

void FindWindow::showFailed() {
    (new FailedFiles(m_facts.failed(), this))->show();
}

QString FindWindow::status() const {
    return m_status->text();
}

} // namespace kavela::desktop
