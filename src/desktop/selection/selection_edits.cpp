#include "desktop/selection/selection_window.h"

#include "desktop/selection/athlete_dialog.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_text.h"
#include "desktop/shell/workspace.h"
#include "results/messages.h"
#include "results/team_records.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenuBar>
#include <QPushButton>

#include <numeric>

/// What the menus of the selection do to its document.
namespace kavela::desktop {

void SelectionWindow::makeMenus() {
    makeReportMenu(*makeFileMenu());
    QMenu* edit = makeEditMenu();
    edit->addAction(tr("Make times of 0 &missing results"), this,
                    &SelectionWindow::makeZerosMissing);
    edit->addAction(tr("&Copy the table"), QKeySequence::Copy, this, &SelectionWindow::copyTable);
    edit->addAction(tr("&What if"), QKeySequence(Qt::Key_W), this, [this] { m_whatIf->toggle(); });
    makeRaceMenu();
    makeAthleteMenu();
    finishMenus([this] {
        Commands commands;
        const auto& categories = m_document.shown().categories;
        for (std::size_t category = 0; category < categories.size(); ++category)
            for (const srAthleteStruct_v3& athlete : categories[category].athletes)
                commands.push_back(
                    {qtText(athlete.name), qtText(categories[category].cat), {}, [this, category] {
                         showCategory(category);
                     }});
        return commands;
    });
}

void SelectionWindow::makeRaceMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Races"));
    menu->addAction(tr("&Add a race…"), QKeySequence(Qt::CTRL | Qt::Key_R), this, [this] {
        const QString location = QInputDialog::getText(this, tr("Race"), tr("Race location"));
        if (!location.trimmed().isEmpty())
            addRace(location.trimmed());
    });
    menu->addAction(tr("&Rename a race…"), this, &SelectionWindow::renameRace);
    menu->addAction(tr("Remo&ve a race…"), this, &SelectionWindow::removeRace);
    menu->addSeparator();
    menu->addAction(tr("Results from &split files…"), QKeySequence(Qt::CTRL | Qt::Key_I), this,
                    &SelectionWindow::askForSplitFiles);
    menu->addAction(tr("Results from a &list (position, total, penalty)…"), this,
                    [this] { askForResults(ResultLayout::ComaMode, messages::ComaModeHelp); });
    menu->addAction(tr("Results from a list with &categories and clubs…"), this,
                    [this] { askForResults(ResultLayout::Tacen, messages::TacenHelp); });
}

void SelectionWindow::makeAthleteMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Athletes"));
    menu->addAction(tr("Add a &category…"), QKeySequence(Qt::CTRL | Qt::Key_G), this,
                    [this] { (void)askForCategory(); });
    menu->addAction(tr("&Add an athlete…"), QKeySequence(Qt::CTRL | Qt::Key_N), this,
                    &SelectionWindow::askForAthlete);
    menu->addAction(tr("&Edit the athlete…"), QKeySequence(Qt::CTRL | Qt::Key_Return), this,
                    &SelectionWindow::editAthlete);
    menu->addAction(tr("&Remove the athlete"), QKeySequence(Qt::CTRL | Qt::Key_Delete), this,
                    &SelectionWindow::removeAthlete);
    menu->addSeparator();
    menu->addAction(tr("&Import athletes…"), this, [this] {
        const QString path = QFileDialog::getOpenFileName(this, tr("Import athletes"),
                                                          QFileInfo(m_document.path()).path(),
                                                          tr("Lists (*.csv *.txt);;All files (*)"));
        if (!path.isEmpty())
            importAthletesFrom(path);
    });
    menu->addAction(tr("&How a list has to look"), this, [this] {
        workspace().showAlert({messages::ImportHelpTitle, messages::ImportHelp}, this);
    });
    for (int category = 1; category <= 9; ++category)
        addAction(tr("Category %1").arg(category),
                  QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + category)), this,
                  [this, category] { showCategory(static_cast<std::size_t>(category - 1)); });
}

/// The categories of the sport are offered; a selection may have others. False when none was added.
bool SelectionWindow::askForCategory() {
    QStringList known;
    for (const char* category : team::Categories)
        known.append(category);
    for (const srCategoryStruct_v3& category : m_document.shown().categories)
        known.removeAll(qtText(category.cat));
    bool isGiven = false;
    const QString label = QInputDialog::getItem(
        this, tr("Category"), tr("Category of the athletes"), known, 0, true, &isGiven);
    if (!isGiven || label.trimmed().isEmpty())
        return false;
    addCategory(label.trimmed());
    return true;
}

/// An athlete needs a race and a category: what is missing is asked for first.
void SelectionWindow::askForAthlete() {
    if (!hasRace() || (m_document.shown().categories.empty() && !askForCategory()))
        return;
    AthleteDialog dialog({}, preselectionGroups(m_document.shown()), bonusKinds(m_document.shown()),
                         this);
    if (dialog.exec() == QDialog::Accepted && !dialog.athlete().name.empty())
        addAthlete(dialog.athlete());
}

void SelectionWindow::editAthlete() {
    const int place = m_table->currentPlace();
    if (place < 0)
        return;
    const std::size_t category = m_model.category();
    const std::size_t index = m_model.row(place).standing.athlete;
    const srAthleteStruct_v3& before = m_document.shown().categories[category].athletes[index];
    AthleteDialog dialog(
        {before.name, before.year, before.club, before.preselected, before.bonuses},
        preselectionGroups(m_document.shown()), bonusKinds(m_document.shown()), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const NewAthlete after = dialog.athlete();
    m_document.change(tr("athlete"), [&](selectionracesStruct_v3& document) {
        srAthleteStruct_v3& athlete = document.categories[category].athletes[index];
        athlete.name = after.name;
        athlete.year = after.birthYear;
        athlete.club = after.club;
        athlete.preselected = after.preselected;
        athlete.bonuses = after.bonuses;
    });
}

void SelectionWindow::removeAthlete() {
    const int place = m_table->currentPlace();
    if (place < 0)
        return;
    const std::size_t category = m_model.category();
    const auto index = static_cast<std::ptrdiff_t>(m_model.row(place).standing.athlete);
    m_document.change(tr("athlete removed"), [&](selectionracesStruct_v3& document) {
        auto& athletes = document.categories[category].athletes;
        athletes.erase(athletes.begin() + index);
    });
}

std::optional<std::size_t> SelectionWindow::askForRace(const QString& title) {
    if (!hasRace())
        return std::nullopt;
    QStringList names;
    for (const sRaceStruct& race : m_document.shown().races)
        names.append(tr("%1. %2").arg(names.size() + 1).arg(qtText(race.location)));
    bool isChosen = false;
    const QString name = QInputDialog::getItem(this, title, tr("Race"), names, 0, false, &isChosen);
    return isChosen ? std::optional(static_cast<std::size_t>(names.indexOf(name))) : std::nullopt;
}

void SelectionWindow::renameRace() {
    const auto race = askForRace(tr("Rename which race?"));
    if (!race)
        return;
    const QString location =
        QInputDialog::getText(this, tr("Race"), tr("Race location"), QLineEdit::Normal,
                              qtText(m_document.shown().races[*race].location));
    if (!location.trimmed().isEmpty())
        m_document.change(tr("race renamed"), [&](selectionracesStruct_v3& document) {
            document.races[*race].location = location.trimmed().toStdString();
        });
}

void SelectionWindow::removeRace() {
    const auto race = askForRace(tr("Remove which race?"));
    if (race)
        m_document.change(tr("race removed"), [&](selectionracesStruct_v3& document) {
            kavela::removeRace(document, *race);
        });
}

void SelectionWindow::makeZerosMissing() {
    const auto zeros = zeroResults(m_document.shown());
    if (!zeros.empty())
        m_document.change(tr("times of 0"), [&](selectionracesStruct_v3& document) {
            for (const ResultPlace& place : zeros)
                clearResult(document, place);
        });
}

void SelectionWindow::copyTable() {
    m_model.orderAnew();
    const QAbstractItemModel& shown = *m_table->model();
    QList<int> rows(shown.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    QApplication::clipboard()->setText(
        tableAsText(shown, rows, shownColumns(*m_table), clipboardTable()));
}

} // namespace kavela::desktop
