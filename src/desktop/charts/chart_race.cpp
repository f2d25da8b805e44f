#include "desktop/charts/chart_race.h"

#include "splitdata/run_timing.h"

#include <QStringList>

#include <algorithm>

namespace kavela::desktop {

namespace {

QString oneLine(const std::string& text) {
    return QString::fromStdString(text).simplified();
}

/// The sensor recordings of a race may take more memory than all else together.
analyzerdata withoutRecordings(const analyzerdata& run) {
    analyzerdata light;
    light.name = run.name;
    light.names = run.names;
    light.phase = run.phase;
    light.category = run.category;
    light.fileURL = run.fileURL;
    light.athleteInt = run.athleteInt;
    light.gatePenalties = run.gatePenalties;
    light.sectioninfo.times = run.sectioninfo.times;
    light.sectioninfo.pens = run.sectioninfo.pens;
    light.sectioninfo.totaltime = run.sectioninfo.totaltime;
    light.sectioninfo.totalpen = run.sectioninfo.totalpen;
    return light;
}

std::shared_ptr<const RaceSet> lightCopy(const RaceSet& set) {
    auto light = std::make_shared<RaceSet>();
    light->sectiontitles = set.sectiontitles;
    light->totalsplits = set.totalsplits;
    light->gates = set.gates;
    light->upGates = set.upGates;
    light->definedsections = set.definedsections;
    light->alldata.reserve(set.alldata.size());
    for (const analyzerdata& run : set.alldata)
        light->alldata.push_back(withoutRecordings(run));
    return light;
}

template <class Member>
bool hasSeveral(const RaceSet& set, Member member) {
    return std::ranges::any_of(set.alldata, [&](const analyzerdata& run) {
        return run.*member != set.alldata.front().*member;
    });
}

} // namespace

ChartRace::ChartRace() : m_set(std::make_shared<RaceSet>()) {}

ChartRace::ChartRace(const RaceSet& set) : ChartRace(set, false) {}

ChartRace::ChartRace(const RaceSet& set, bool isFiltered)
    : m_set(lightCopy(set)),
      m_isFiltered(isFiltered),
      m_hasPhases(hasSeveral(set, &analyzerdata::phase)),
      m_hasCategories(hasSeveral(set, &analyzerdata::category)) {}

QString ChartRace::name(std::size_t run) const {
    const QString name = oneLine(m_set->alldata[run].name);
    return name.isEmpty() ? QStringLiteral("Run %1").arg(run + 1) : name;
}

QString ChartRace::label(std::size_t run) const {
    QStringList parts{name(run)};
    if (m_hasCategories)
        parts << oneLine(m_set->alldata[run].category);
    if (m_hasPhases)
        parts << oneLine(m_set->alldata[run].phase);
    parts.removeAll(QString());
    return parts.join(", ");
}

QString ChartRace::sectionTitle(std::size_t section) const {
    const QString title = oneLine(entryOrZero(m_set->sectiontitles, section));
    return title.isEmpty() ? QStringLiteral("S%1").arg(section + 1) : title;
}

std::optional<std::size_t> ChartRace::find(const analyzerdata& run) const {
    const auto placeOf = [this](const auto& isMeant) -> std::optional<std::size_t> {
        const auto found = std::ranges::find_if(m_set->alldata, isMeant);
        if (found == m_set->alldata.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - m_set->alldata.begin());
    };
    const auto isAlike = [&](const analyzerdata& other) {
        return other.names == run.names && other.phase == run.phase &&
               other.category == run.category && other.fileURL == run.fileURL;
    };
    const auto hasNumber = [&](const analyzerdata& other) {
        return other.athleteInt == run.athleteInt && other.fileURL == run.fileURL;
    };
    auto found = placeOf([&](const auto& other) { return isAlike(other) && hasNumber(other); });
    if (!found)
        found = placeOf(isAlike);
    if (!found)
        found = placeOf([&](const auto& other) {
            return hasNumber(other) && other.sectioninfo.times == run.sectioninfo.times;
        });
    return found;
}

} // namespace kavela::desktop
