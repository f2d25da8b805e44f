#include "desktop/tables/tables_window.h"

#include "common/safe_file.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/series_chart.h"
#include "desktop/shell/empty_page.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/tables/derived_dialog.h"
#include "desktop/tables/list_panel.h"
#include "desktop/tables/pivot_dialog.h"
#include "desktop/tables/race_keeping.h"
#include "desktop/tables/tables_actions.h"
#include "results/team_file.h"
#include "tables/table_error.h"
#include "tables/table_text.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

TablesWindow::TablesWindow(Workspace& workspace, const Autosave& autosave)
    : ToolWindow(workspace, &m_document,
                 {"tables", tr("Tables"), QString::fromLatin1(TableWorkExtension)}),
      m_document(workspace, autosave),
      m_keeping(new RaceKeeping(workspace, *this, this)) {
    makeParts();
    m_actions = new TablesActions(*this);
    connectParts();
    showTable();
}

TablesWindow::~TablesWindow() {
    // The parts report to the window while they are taken apart.
    m_document.disconnect(this);
    m_panel->disconnect(this);
}

void TablesWindow::makeParts() {
    m_pages = new QStackedWidget;
    m_pages->addWidget(new EmptyPage(
        tr("Drop a list of results here"),
        tr("Text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), what was copied from "
           "a page, or a race that carries a list. Lists are only read."),
        {{tr("Open a list…"), [this] { chooseFiles(); }},
         {tr("Open what was copied"), [this] { openClipboard(); }}}));
    m_panel = new ListPanel(m_document, workspace());
    m_pages->addWidget(m_panel);
    setCentralWidget(m_pages);
    m_status = new QLabel;
    m_status->setObjectName("status");
    statusBar()->addWidget(m_status);
}

void TablesWindow::connectParts() {
    connect(&m_document, &TableDocument::changed, this, &TablesWindow::showTable);
    connect(&m_document.undoStack(), &QUndoStack::cleanChanged, this, &TablesWindow::pathsChanged);
    connect(m_panel, &ListPanel::currentChanged, m_actions, &TablesActions::refresh);
    connect(m_panel, &ListPanel::sortRequested, this, &TablesWindow::sort);
    connect(m_panel, &ListPanel::menuRequested, this, &TablesWindow::showMenu);
    connect(&chart().interaction(), &PlotInteraction::saved, this, [this](const QString& path) {
        m_status->setText(tr("Saved %1").arg(QFileInfo(path).fileName()));
    });
    connect(m_keeping, &RaceKeeping::kept, this, [this](const QString& race) {
        m_status->setText(tr("Kept with %1").arg(QFileInfo(race).fileName()));
    });
}

void TablesWindow::showMenu(const QPoint& atGlobal, bool isOnTitle) {
    QMenu menu(this);
    if (!isOnTitle) {
        menu.addAction(tr("&Copy"), &table(), &ColumnTable::copy);
        menu.addSeparator();
    }
    menu.addActions(m_actions->columnMenu()->actions());
    menu.exec(atGlobal);
}

bool TablesWindow::open(const QString& path) {
    openList(path, {});
    return true;
}

void TablesWindow::startNew(const QString& path) {
    goOn({}, path);
}

void TablesWindow::openList(const QString& path, const std::string& list) {
    if (isTableWorkFile(path) && !QFileInfo::exists(path)) { // it was never saved
        startNew(path);
        return;
    }
    m_reading = path;
    m_work.runOver(
        {this, tr("Reading %1…").arg(QFileInfo(path).fileName())},
        [path] { return offeredLists(path); },
        [this, path, list](OfferedLists offered) {
            m_reading.clear();
            choose(std::move(offered), path, list);
        },
        {.failed = [this, path](const std::exception_ptr& fault) {
            m_reading.clear();
            workspace().forgetRecentFile(path);
            emit pathsChanged();
            tell(tr("“%1” cannot be opened as a table").arg(QFileInfo(path).fileName()),
                 causeOf(fault));
        }});
}

void TablesWindow::openClipboard() {
    if (!isEmpty()) {
        emit clipboardRequested();
        return;
    }
    try {
        choose(offeredLists(QGuiApplication::clipboard()->text().toStdString()), {}, {});
    } catch (const TableError& error) {
        tell(tr("What was copied is no list"), error.what());
    }
}

/// Asks which one where a file has several; the answer may be none of them.
void TablesWindow::choose(OfferedLists offered, const QString& path, const std::string& wanted) {
    if (offered.work) {
        goOn(std::move(*offered.work), path);
        return;
    }
    auto chosen = std::ranges::find(offered.lists, wanted, &OfferedList::name);
    if (chosen == offered.lists.end() && offered.lists.size() == 1)
        chosen = offered.lists.begin();
    if (chosen == offered.lists.end()) {
        QStringList titles;
        for (const OfferedList& list : offered.lists)
            titles.append(list.title);
        const int choice = workspace().choose(
            {QFileInfo(path).fileName().toStdString(), tr("Which of its lists?").toStdString()},
            titles, this);
        if (choice < 0) {
            emit pathsChanged();
            return;
        }
        chosen = offered.lists.begin() + choice;
    }
    m_left = offered.left;
    start(std::move(*chosen), path);
}

void TablesWindow::start(OfferedList list, const QString& path) {
    QStringList title{path.isEmpty() ? tr("What was copied") : QFileInfo(path).fileName(),
                      list.title};
    title.removeAll(QString());
    try {
        m_document.start(std::move(list.grid), {path, list.name, title.join(QStringLiteral(", "))},
                         this);
    } catch (const TableError& error) {
        tell(title.front(), error.what());
        return;
    }
    if (!path.isEmpty() && !isRaceFile(path))
        workspace().addRecentFile(path);
    table().setFocus();
    emit pathsChanged();
}

void TablesWindow::goOn(TableWork work, const QString& path) {
    m_left.clear();
    m_document.goOn(std::move(work), path, this);
    table().setFocus();
    emit pathsChanged();
}

QStringList TablesWindow::paths() const {
    const QString path = m_reading.isEmpty() ? m_document.shownPath() : m_reading;
    return path.isEmpty() ? QStringList() : QStringList(path);
}

bool TablesWindow::shows(const QString& path) const {
    return m_reading.isEmpty() ? m_document.isOf(path) : isSameFile(m_reading, path);
}

QString TablesWindow::shownView() const {
    return qtText(m_document.origin().list);
}

bool TablesWindow::showOwnPlace(const Place& place) {
    if (!place.line)
        return false;
    if (m_panel->chooseLine(*place.line, place.column))
        return true;
    m_status->setText(m_document.textOfPlace(place));
    return true;
}

bool TablesWindow::isEmpty() const {
    return !m_document.hasList() && m_reading.isEmpty() && m_document.path().isEmpty();
}

QString TablesWindow::status() const {
    return m_status->text();
}

void TablesWindow::tell(const QString& title, const std::string& reason) {
    workspace().log()(title.toStdString() + ": " + reason);
    workspace().showAlert({title.toStdString(), reason}, this);
}

void TablesWindow::take(const TableStep& step) {
    try {
        m_document.take(step);
    } catch (const TableError& error) {
        tell(tr("This step cannot be taken"), error.what());
        return;
    }
    if (std::holds_alternative<DerivedColumn>(step)) // it came at the right end
        m_panel->chooseColumn(static_cast<int>(m_document.table()->columns.size()) - 1);
}

void TablesWindow::takeAtColumn(const std::function<TableStep(const std::string& column)>& step) {
    if (const auto column = currentColumn())
        take(step(m_document.table()->columns[*column].name));
}

void TablesWindow::sort(bool isDescending) {
    takeAtColumn([&](const std::string& column) { return SortStep{column, isDescending}; });
}

void TablesWindow::derive(Derivation what) {
    DerivedColumn derived;
    derived.what = what;
    const auto column = currentColumn();
    const ListTable& table = *m_document.table();
    const std::vector<TableStep> steps = m_document.steps();
    const auto* const last = steps.empty() ? nullptr : std::get_if<DerivedColumn>(&steps.back());
    const bool isOnStanding = last && column == table.columns.size() - 1 &&
                              last->what != Derivation::Total &&
                              last->what != Derivation::Difference;
    if (isOnStanding && what != Derivation::Total) // nobody wants the percent of a rank
        derived.columns = last->columns;
    else if (what != Derivation::Total && column && isReckoned(table.columns[*column].kind))
        derived.columns.push_back(table.columns[*column].name);
    take(derived);
}

void TablesWindow::chooseDerived() {
    DerivedDialog dialog(*m_document.table(), currentColumn().value_or(0), this);
    if (dialog.exec() == QDialog::Accepted)
        take(dialog.derived());
}

void TablesWindow::choosePivot() {
    PivotDialog dialog(*m_document.table(), currentColumn().value_or(0), this);
    if (dialog.exec() == QDialog::Accepted)
        take(dialog.pivot());
}

/// The cell as it stands means just its like; "C1" typed means "C1W" too.
void TablesWindow::chooseFilter() {
    const auto column = currentColumn();
    if (!column)
        return;
    const GridColumn& filtered = m_document.table()->columns[*column];
    const auto row = m_panel->currentRow();
    const QString before = row ? qtText(filtered.cells[*row].text) : QString();
    bool isAgreed = false;
    const QString text = QInputDialog::getText(
        this, tr("Keep rows"),
        tr("Rows whose “%1” contains this are kept; the cell as it stands keeps just its like.")
            .arg(qtText(filtered.name)),
        QLineEdit::Normal, before, &isAgreed);
    if (isAgreed && !text.isEmpty())
        take(FilterStep{filtered.name, text.toStdString(), text == before});
}

QString TablesWindow::chosenFile(const QString& title, const QString& filter) {
    return m_chooseFile ? m_chooseFile(title)
                        : QFileDialog::getOpenFileName(this, title,
                                                       QFileInfo(paths().value(0)).path(), filter);
}

QString TablesWindow::chosenTarget(const QString& title) {
    if (m_chooseFile)
        return m_chooseFile(title);
    const QFileInfo source(paths().value(0));
    return QFileDialog::getSaveFileName(
        this, title, source.path() + '/' + source.completeBaseName() + tr(" table") + ".csv",
        tr("Semicolon-separated text (*.csv)"));
}

void TablesWindow::chooseFiles() {
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open lists"), QFileInfo(paths().value(0)).path(), listFilter());
    if (!files.isEmpty())
        emit listsRequested(files);
}

void TablesWindow::chooseOtherList() {
    const QString path = m_document.origin().path;
    if (path.isEmpty())
        return;
    whenLeft([this, path](bool mayGo) {
        if (mayGo)
            openList(path, {});
    });
}

void TablesWindow::takeFiles(const QStringList& files) {
    QStringList lists;
    QStringList others;
    for (const QString& file : files)
        if (m_document.hasList() && QFileInfo(file).suffix() == "kvteam")
            joinTeam(file);
        else
            (isListFile(file) ? lists : others).append(file);
    if (!lists.isEmpty())
        emit listsRequested(lists);
    if (!others.isEmpty())
        emit openRequested(others);
}

void TablesWindow::chooseTeam() {
    const QString team = chosenFile(tr("Join a team"), tr("Teams (*.kvteam);;All files (*)"));
    if (!team.isEmpty())
        joinTeam(team);
}

void TablesWindow::joinTeam(const QString& team) {
    m_work.runOver(
        {this, tr("Reading %1…").arg(QFileInfo(team).fileName())},
        [file = team.toStdString()] { return knownAthletes(readTeamFile(file)); },
        [this, team](std::vector<KnownAthlete> athletes) {
            try {
                m_document.join(std::move(athletes));
            } catch (const TableError& error) {
                tell(tr("The rows cannot be joined"), error.what());
                return;
            }
            askWhoIsMeant();
        },
        {.failed = [this, team](const std::exception_ptr& fault) {
            tell(tr("“%1” cannot be opened").arg(QFileInfo(team).fileName()), causeOf(fault));
        }});
}

/// The table changes with every answer, but not its rows.
void TablesWindow::askWhoIsMeant() {
    for (const std::size_t row : m_document.unsureRows()) {
        const JoinedRow joined = m_document.joined().at(row);
        const ListTable& table = *m_document.table();
        QStringList choices{tr("Nobody of the team")};
        for (const std::size_t athlete : joined.athletes)
            choices.append(qtText(m_document.athletes()->at(athlete).name));
        const std::string crew = crewOfRow(table, row).value_or(std::string());
        const int choice = workspace().choose(
            {tr("Who is %1 in line %2?").arg(qtText(crew)).arg(table.lines[row]).toStdString(), {}},
            choices, this);
        if (choice < 0)
            return;
        m_document.answer(row, choice == 0 ? std::nullopt
                                           : std::optional(joined.athletes.at(
                                                 static_cast<std::size_t>(choice) - 1)));
    }
}

/// A list that a race carried belongs to that race.
void TablesWindow::keepWithRace() {
    const QString own = m_document.origin().path;
    const QString race = isRaceFile(own) ? own
                                         : chosenFile(tr("Keep with the race"),
                                                      tr("Split files (*.kvx);;All files (*)"));
    if (!race.isEmpty())
        m_keeping->keep(m_document.table(), race);
}

void TablesWindow::saveCsv() {
    const QString target = chosenTarget(tr("Save the table"));
    if (target.isEmpty())
        return;
    if (isSameFile(target, m_document.origin().path)) {
        tell(
            tr("The table was not saved"),
            tr("The list that it is made from stays as it is. Choose another name.").toStdString());
        return;
    }
    m_work.runOver(
        {this, tr("Saving the table…")},
        [table = m_document.table(), file = target.toStdString()] {
            writeFileSafely(file, tableCsv(*table));
        },
        [this, target] { m_status->setText(tr("Saved %1").arg(QFileInfo(target).fileName())); },
        {.failed = [this](const std::exception_ptr& fault) {
            tell(tr("The table was not saved"), causeOf(fault));
        }});
}

void TablesWindow::saveChart() {
    m_panel->showPage(ListPanel::Chart);
    if (chart().emptyMessage().isEmpty())
        chart().interaction().askAndSave();
}

void TablesWindow::showRefused() {
    m_panel->showPage(ListPanel::Refused);
    refused().setFocus();
}

void TablesWindow::showTable() {
    m_panel->show(m_left);
    showStatus();
}

void TablesWindow::showStatus() {
    const ListTable& table = *m_document.table();
    m_pages->setCurrentIndex(m_document.hasList() ? 1 : 0);
    QStringList parts;
    if (m_document.hasList())
        parts << (table.rows() == 1 ? tr("1 row")
                                    : tr("%n rows", nullptr, static_cast<int>(table.rows())))
              << (table.columns.size() == 1
                      ? tr("1 column")
                      : tr("%n columns", nullptr, static_cast<int>(table.columns.size())));
    if (!table.refused.empty())
        parts << tr("%1 refused (F7)").arg(table.refused.size());
    if (const std::size_t unsure = m_document.unsureRows().size(); unsure > 0)
        parts << tr("%1 that only you can tell (F6)").arg(unsure);
    m_status->setText(parts.join(QStringLiteral(" · ")));
    setWindowTitle(
        (m_document.hasList() ? m_document.title() + QStringLiteral("[*] – ") : QString()) +
        tr("Tables") + QStringLiteral(" – Kavela"));
    setWindowModified(m_document.hasList() && m_document.isDirty());
    m_actions->refresh();
}

} // namespace kavela::desktop
