#include "desktop/planning/planning_document.h"

#include "common/json_document.h"
#include "common/json_encode.h"
#include "desktop/shell/workspace.h"
#include "planning/messages.h"
#include "planning/planning_file.h"

namespace kavela::desktop {

FileReading PlanningDocument::reading(const QString& path, QWidget* over) {
    return [this, path, over]() -> TakeIn {
        const auto notes = std::make_shared<ReadingNotes>();
        const auto found = std::make_shared<RecognisedPlanning>(
            recognisePlanningFile(path.toStdString(), notes->log()));
        if (!found->version)
            reportIncompatible(*found, notes->log(), *notes);
        return [this, path, over, notes, found] {
            notes->tell(workspace(), over);
            if (!found->version)
                return false;
            setOlderLayout(found->isCurrent() ? std::string() : PlanningExtension);
            m_withoutPlace = variabilityWithoutPlace(*found);
            start(std::move(found->document), path, over);
            return true;
        };
    };
}

bool PlanningDocument::isPlanning(const std::string& text) const {
    try {
        return recognisePlanningDocument(JsonDocument::fromText(text), workspace().log()).version;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

bool PlanningDocument::startFromText(const std::string& text, const QString& path, QWidget* over) {
    try {
        auto found = recognisePlanningDocument(JsonDocument::fromText(text), workspace().log());
        if (!found.version)
            return false;
        startNew(path, over);
        edit(tr("online planning"),
             [&](planningdatac_v6& plan) { plan = std::move(found.document); });
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

void PlanningDocument::startNew(const QString& path, QWidget* over) {
    setOlderLayout({});
    m_withoutPlace = 0;
    start({}, path, over);
}

const athletesplanning_v6* PlanningDocument::athleteAt(std::size_t athlete) const {
    return athlete < athletes().size() ? &athletes()[athlete] : nullptr;
}

const yearsplannings_v6* PlanningDocument::seasonAt(const PlannedSeason& place) const {
    const athletesplanning_v6* const athlete = athleteAt(place.athlete);
    return athlete && place.season < athlete->year.size() ? &athlete->year[place.season] : nullptr;
}

void PlanningDocument::editAthlete(std::size_t athlete, const QString& what,
                                   const std::function<void(athletesplanning_v6&)>& change) {
    if (athleteAt(athlete))
        edit(what, [&](planningdatac_v6& plan) { change(plan.athletes[athlete]); });
}

void PlanningDocument::editSeason(const PlannedSeason& place, const QString& what,
                                  const std::function<void(yearsplannings_v6&)>& change) {
    if (seasonAt(place))
        editAthlete(place.athlete, what,
                    [&](athletesplanning_v6& athlete) { change(athlete.year[place.season]); });
}

PlanningDocument::Content PlanningDocument::contentNow() const {
    return [plan = shared()] { return encode(*plan); };
}

bool PlanningDocument::recover(const std::string& content) {
    try {
        auto recognised =
            recognisePlanningDocument(JsonDocument::fromText(content), workspace().log());
        if (!recognised.version)
            return false;
        startFrom(std::move(recognised.document));
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

std::string PlanningDocument::failure() const {
    return planning_messages::NotSaved;
}

bool PlanningDocument::mayReplace(QWidget* over) const {
    const QString text = tr("The planning “%1” will be replaced.").arg(fileName());
    return workspace().ask({planning_messages::Careful, text.toStdString()},
                           planning_messages::SaveAnyway, over);
}

QString PlanningDocument::summary() const {
    const std::size_t count = value().athletes.size();
    return count == 1 ? tr("1 athlete") : tr("%n athletes", nullptr, static_cast<int>(count));
}

} // namespace kavela::desktop
