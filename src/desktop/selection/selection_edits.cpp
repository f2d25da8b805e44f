#include "desktop/selection/selection_edits.h"

#include "desktop/selection/athlete_dialog.h"
#include "desktop/selection/selection_document.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "results/messages.h"
#include "results/selection_edit.h"
#include "results/team_records.h"

#include <QInputDialog>

namespace kavela::desktop {

SelectionEdits::SelectionEdits(SelectionDocument& document, Workspace& workspace, QWidget& window)
    : m_document(document), m_workspace(workspace), m_window(window) {}

void SelectionEdits::refuse(const QString& reason) {
    m_workspace.showAlert({"", reason.toStdString()}, &m_window);
}

bool SelectionEdits::hasRace() {
    if (!m_document.shown().races.empty())
        return true;
    m_workspace.showAlert({messages::Careful, messages::AddARaceFirst}, &m_window);
    return false;
}

void SelectionEdits::askForNewRace() {
    const QString location = QInputDialog::getText(&m_window, tr("Race"), tr("Race location"));
    if (!location.trimmed().isEmpty())
        addRace(location.trimmed());
}

void SelectionEdits::addRace(const QString& location) {
    m_document.change(tr("race added"), [&](selectionracesStruct_v3& document) {
        kavela::addRace(document, location.toStdString());
    });
}

std::optional<std::size_t> SelectionEdits::askForRace(const QString& title) {
    if (!hasRace())
        return std::nullopt;
    QStringList names;
    for (const sRaceStruct& race : m_document.shown().races)
        names.append(tr("%1. %2").arg(names.size() + 1).arg(qtText(race.location)));
    bool isChosen = false;
    const QString name =
        QInputDialog::getItem(&m_window, title, tr("Race"), names, 0, false, &isChosen);
    return isChosen ? std::optional(static_cast<std::size_t>(names.indexOf(name))) : std::nullopt;
}

void SelectionEdits::renameRace() {
    const auto race = askForRace(tr("Rename which race?"));
    if (!race)
        return;
    const QString location =
        QInputDialog::getText(&m_window, tr("Race"), tr("Race location"), QLineEdit::Normal,
                              qtText(m_document.shown().races[*race].location));
    if (!location.trimmed().isEmpty())
        m_document.change(tr("race renamed"), [&](selectionracesStruct_v3& document) {
            document.races[*race].location = location.trimmed().toStdString();
        });
}

void SelectionEdits::removeRace() {
    const auto race = askForRace(tr("Remove which race?"));
    if (race)
        m_document.change(tr("race removed"), [&](selectionracesStruct_v3& document) {
            kavela::removeRace(document, *race);
        });
}

bool SelectionEdits::askForCategory() {
    QStringList known;
    for (const char* category : team::Categories)
        known.append(category);
    for (const srCategoryStruct_v3& category : m_document.shown().categories)
        known.removeAll(qtText(category.cat));
    bool isGiven = false;
    const QString label = QInputDialog::getItem(
        &m_window, tr("Category"), tr("Category of the athletes"), known, 0, true, &isGiven);
    if (!isGiven || label.trimmed().isEmpty())
        return false;
    addCategory(label.trimmed());
    return true;
}

void SelectionEdits::addCategory(const QString& label) {
    std::size_t index = 0;
    m_document.change(tr("category added"), [&](selectionracesStruct_v3& document) {
        index = categoryIndex(document, label.toStdString());
    });
    emit categoryAdded(index);
}

void SelectionEdits::askForAthlete(std::size_t category) {
    if (!hasRace() || (m_document.shown().categories.empty() && !askForCategory()))
        return;
    AthleteDialog dialog({}, preselectionGroups(m_document.shown()), bonusKinds(m_document.shown()),
                         &m_window);
    if (dialog.exec() == QDialog::Accepted && !dialog.athlete().name.empty())
        addAthlete(category, dialog.athlete());
}

void SelectionEdits::addAthlete(std::size_t category, const NewAthlete& athlete) {
    if (!hasRace())
        return;
    const auto& categories = m_document.shown().categories;
    if (categories.empty())
        return refuse(tr("Add a category first."));
    if (hasAthlete(categories[category], athlete.name))
        return refuse(tr("%1 is in this category already.").arg(qtText(athlete.name)));
    m_document.change(tr("athlete added"), [&](selectionracesStruct_v3& document) {
        (void)kavela::addAthlete(document, category, athlete);
    });
    emit athleteAdded(m_document.shown().categories[category].athletes.size() - 1);
}

void SelectionEdits::editAthlete(const AthletePlace& place) {
    const srAthleteStruct_v3& before =
        m_document.shown().categories[place.category].athletes[place.athlete];
    AthleteDialog dialog(
        {before.name, before.year, before.club, before.preselected, before.bonuses},
        preselectionGroups(m_document.shown()), bonusKinds(m_document.shown()), &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const NewAthlete after = dialog.athlete();
    m_document.change(tr("athlete"), [&](selectionracesStruct_v3& document) {
        srAthleteStruct_v3& athlete = document.categories[place.category].athletes[place.athlete];
        athlete.name = after.name;
        athlete.year = after.birthYear;
        athlete.club = after.club;
        athlete.preselected = after.preselected;
        athlete.bonuses = after.bonuses;
    });
}

void SelectionEdits::removeAthlete(const AthletePlace& place) {
    m_document.change(tr("athlete removed"), [&](selectionracesStruct_v3& document) {
        auto& athletes = document.categories[place.category].athletes;
        athletes.erase(athletes.begin() + static_cast<std::ptrdiff_t>(place.athlete));
    });
}

void SelectionEdits::makeZerosMissing() {
    const auto zeros = zeroResults(m_document.shown());
    if (!zeros.empty())
        m_document.change(tr("times of 0"), [&](selectionracesStruct_v3& document) {
            for (const ResultPlace& place : zeros)
                clearResult(document, place);
        });
}

} // namespace kavela::desktop
