#include "facts/fact_store.h"

#include "facts/fact_transfer.h"
#include "facts/row_ranges.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/film_marks.h"
#include "splitdata/frame_step.h"
#include "splitdata/penalty_entries.h"
#include "splitdata/run_timing.h"
#include "splitdata/run_totals.h"
#include "splitdata/section_strokes.h"

#include <algorithm>
#include <utility>

namespace kavela {

namespace {

/// A whole number of a file in fewer bits; what a damaged file claims beyond them stops at the end.
template <class Narrow, class Wide>
Narrow narrowed(Wide value) {
    if (std::cmp_greater(value, std::numeric_limits<Narrow>::max()))
        return std::numeric_limits<Narrow>::max();
    if (std::cmp_less(value, std::numeric_limits<Narrow>::min()))
        return std::numeric_limits<Narrow>::min();
    return static_cast<Narrow>(value);
}

double filmSeconds(std::span<const CMTime> stamps, std::size_t film = 0) {
    return film < stamps.size() && isTaken(stamps[film]) ? stamps[film].seconds() : NotKnown;
}

/// A damaged file may claim any number of sections.
std::uint32_t sectionsOf(const splittakerdata031& document) {
    std::size_t seen = document.info.definedsections.size();
    for (const athletedata031& run : document.athletes)
        seen = std::max(seen, run.sectioninfo.times.size());
    const std::int64_t claimed = std::max<std::int64_t>(document.info.totalsplits, 0);
    return std::cmp_less(claimed, seen) ? static_cast<std::uint32_t>(claimed) : rowCount(seen);
}

double sumOfSections(std::span<const double> times, std::int64_t sections) {
    if (sections < 1 || std::cmp_less(times.size(), sections))
        return NotKnown;
    double sum = 0;
    for (const double time : times.first(static_cast<std::size_t>(sections))) {
        if (!isTakenTime(time))
            return NotKnown;
        sum += time;
    }
    return sum;
}

std::int32_t codeOf(const PenaltyEntry& entry, PenaltyField field) {
    const auto& code = entry[field];
    return code ? narrowed<std::int32_t>(*code) : PenaltyRow::NoCode;
}

PenaltyRow rowOf(const PenaltyEntry& entry) {
    return {.gate = codeOf(entry, PenaltyField::Gate),
            .gatekind = codeOf(entry, PenaltyField::GateKind),
            .penkind = codeOf(entry, PenaltyField::Kind),
            .polekind = codeOf(entry, PenaltyField::Pole),
            .penway = codeOf(entry, PenaltyField::Way),
            .moment = codeOf(entry, PenaltyField::Moment),
            .direction = codeOf(entry, PenaltyField::Direction),
            .style = codeOf(entry, PenaltyField::Style),
            .eye = codeOf(entry, PenaltyField::Eye)};
}

GateRow rowOf(const upstreamdata025& gate) {
    return {.time = gate.time,
            .entrance = gate.timeEntrace,
            .exit = gate.timeExit,
            .gate = narrowed<std::int32_t>(gate.num),
            .direction = narrowed<std::int16_t>(gate.direction),
            .style = narrowed<std::int16_t>(gate.style),
            .at = filmSeconds(gate.cmtimes)};
}

void takeTiming(const infodata031& info, const athletedata031& run, RunRow& row) {
    const sectiondata030& timing = run.sectioninfo;
    row.realtime = timing.realtime;
    row.realpen = timing.realpen;
    row.totaltime = timing.totaltime;
    row.totalpen = timing.totalpen;
    row.sprint = timing.sprinttime;
    row.xTime = timing.xTime;
    row.xPer = timing.xPer;
    row.sectionSum = sumOfSections(timing.times, info.totalsplits);
    row.isRefused = isRefused(info, run);
    if (const auto start = startOf(run))
        row.start = start->seconds();
    if (const auto step = frameStep(run.sectioninfo.cmtimes, run.upstreams))
        row.frame = *step;
    if (const auto total = totalOf(info, run)) {
        row.isComplete = true;
        row.isOfficial = total->official;
        row.paddling = total->paddling;
        row.penalty = total->penalty;
        row.total = total->total();
    }
}

} // namespace

TextId FactStore::idOfLines(std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines)
        text += (&line == lines.data() ? "" : "\n") + line;
    return m_texts.idOf(text);
}

RowRange FactStore::keep(std::span<const std::int64_t> numbers) {
    const std::size_t first = m_wholeNumbers.size();
    m_wholeNumbers.insert(m_wholeNumbers.end(), numbers.begin(), numbers.end());
    return rangeFrom(m_wholeNumbers, first);
}

RowRange FactStore::keep(std::span<const double> numbers) {
    const std::size_t first = m_numbers.size();
    m_numbers.insert(m_numbers.end(), numbers.begin(), numbers.end());
    return rangeFrom(m_numbers, first);
}

RowRange FactStore::keep(std::span<const std::string> texts) {
    const std::size_t first = m_textLists.size();
    for (const std::string& text : texts)
        m_textLists.push_back(m_texts.idOf(text));
    return rangeFrom(m_textLists, first);
}

void FactStore::add(const splittakerdata031& document, const std::filesystem::path& path) {
    const infodata031& info = document.info;
    FileRow file;
    file.path = m_texts.idOf(path.native());
    file.title = m_texts.idOf(info.title);
    file.place = m_texts.idOf(info.place);
    file.session = m_texts.idOf(info.session);
    file.event = m_texts.idOf(info.event);
    file.category = m_texts.idOf(info.category);
    file.water = m_texts.idOf(info.watertype);
    file.siwicode = m_texts.idOf(info.siwicode);
    file.tags = idOfLines(info.tags);
    file.comments = m_texts.idOf(info.comments);
    file.date = info.date.seconds;
    file.gates = narrowed<std::int32_t>(info.gates);
    file.sections = kavela::sectionsOf(document);
    file.upGates = keep(std::span(info.upGates));
    const std::size_t firstCourse = m_courses.size();
    for (const auto& gates : info.definedsections)
        m_courses.push_back({keep(std::span(gates))});
    file.courses = rangeFrom(m_courses, firstCourse);
    file.interests = keep(std::span(info.resultsofinterest));
    const std::size_t firstRun = m_runs.size();
    for (const athletedata031& run : document.athletes)
        addRun(document, run);
    file.runs = rangeFrom(m_runs, firstRun);
    for (std::size_t i = firstRun; i < m_runs.size(); ++i)
        m_runs[i].number = static_cast<std::uint32_t>(i - firstRun);
    m_files.push_back(file);
}

void FactStore::addRun(const splittakerdata031& document, const athletedata031& run) {
    RunRow row;
    row.file = rowCount(m_files.size());
    row.crew = m_texts.idOf(crewText(run.names));
    row.names = idOfLines(run.names);
    row.crewKey = m_texts.idOf(crewKey(std::span(run.names)));
    const std::string& category = run.cat.empty() ? document.info.category : run.cat;
    row.category = m_texts.idOf(category);
    row.categoryKey = m_texts.idOf(categoryKey(category));
    row.phase = m_texts.idOf(run.phase);
    const std::string phase = teamPhase(run.phase);
    row.phaseKey = phase.empty() ? row.phase : m_texts.idOf(phase);
    row.hand = m_texts.idOf(run.hand);
    row.pos = narrowed<std::int32_t>(run.pos);
    takeTiming(document.info, run, row);
    addSections(document.info, run, row);
    addPenalties(run, row);
    addNotes(run, row);
    addWays(run, row);
    addTags(run, row);
    row.films = keep(std::span(run.videoname));
    m_runs.push_back(row);
}

void FactStore::addSections(const infodata031& info, const athletedata031& run, RunRow& row) {
    const sectiondata030& timing = run.sectioninfo;
    const std::vector<std::int64_t> pens = sectionPenalties(info, timing.pens);
    const std::vector<SectionStrokes> strokes = strokesBySection(run);
    const std::size_t first = m_sections.size();
    for (std::size_t k = 0; k < timing.times.size(); ++k) {
        SectionRow section;
        section.time = timing.times[k];
        if (k < timing.cmtimes.size())
            section.end = filmSeconds(timing.cmtimes[k]);
        section.pen = narrowed<std::int32_t>(entryOrZero(pens, k));
        section.left = narrowed<std::uint16_t>(strokes[k].left);
        section.right = narrowed<std::uint16_t>(strokes[k].right);
        section.other = narrowed<std::uint16_t>(strokes[k].other);
        section.standsAlone = standsAlone(run, k);
        m_sections.push_back(section);
    }
    row.sections = rangeFrom(m_sections, first);
    row.pens = keep(std::span(timing.pens));
}

void FactStore::addPenalties(const athletedata031& run, RunRow& row) {
    const std::size_t firstPenalty = m_penalties.size();
    for (const PenaltyEntry& entry : penaltyEntries(run))
        m_penalties.push_back(rowOf(entry));
    row.penalties = rangeFrom(m_penalties, firstPenalty);
    const std::size_t firstGate = m_gates.size();
    for (const upstreamdata025& gate : run.upstreams)
        m_gates.push_back(rowOf(gate));
    row.gates = rangeFrom(m_gates, firstGate);
}

void FactStore::addNotes(const athletedata031& run, RunRow& row) {
    const std::size_t first = m_losses.size();
    for (const timeloss031& loss : run.timeslosses) {
        LossRow note;
        note.versus = m_texts.idOf(loss.versus);
        note.reasons = idOfLines(loss.reasons);
        note.comments = m_texts.idOf(loss.comments);
        note.gateCombination = narrowed<std::int32_t>(loss.gateCombination);
        note.gateDetails = narrowed<std::int32_t>(loss.gateDetails);
        note.style = narrowed<std::int32_t>(loss.style);
        note.waterFeature = narrowed<std::int32_t>(loss.waterFeature);
        note.lost = loss.timeloss;
        note.percent = loss.timelossper;
        // The run's own marks come first, the other run's behind them.
        if (!loss.cmtimes.empty())
            note.at = filmSeconds(loss.cmtimes.front());
        m_losses.push_back(note);
    }
    row.losses = rangeFrom(m_losses, first);
}

void FactStore::addWays(const athletedata031& run, RunRow& row) {
    const std::size_t first = m_ways.size();
    for (const strategy001& way : run.strategies)
        m_ways.push_back({.title = m_texts.idOf(way.title),
                          .comments = m_texts.idOf(way.comments),
                          .chosen = narrowed<std::int32_t>(way.optionInt),
                          .options = keep(std::span(way.options)),
                          .times = keep(std::span(way.times))});
    row.ways = rangeFrom(m_ways, first);
}

void FactStore::addTags(const athletedata031& run, RunRow& row) {
    const std::size_t first = m_tags.size();
    for (const customData020& film : run.customData)
        for (std::size_t i = 0; i < film.tags.size(); ++i)
            m_tags.push_back({.tag = m_texts.idOf(film.tags[i]),
                              .comments = m_texts.idOf(film.comments),
                              .film = narrowed<std::int32_t>(film.videoInt),
                              .at = filmSeconds(film.cmTimes, i)});
    row.tags = rangeFrom(m_tags, first);
}

void FactStore::add(const FactStore& other) {
    FactTransfer transfer(other, *this);
    for (std::size_t file = 0; file < other.m_files.size(); ++file)
        transfer.add(file, other.text(other.m_files[file].path));
}

std::span<const RunRow> FactStore::runsOf(const FileRow& file) const {
    return rowsIn(m_runs, file.runs);
}

std::span<const SectionRow> FactStore::sectionsOf(const RunRow& run) const {
    return rowsIn(m_sections, run.sections);
}

std::span<const GateRow> FactStore::gatesOf(const RunRow& run) const {
    return rowsIn(m_gates, run.gates);
}

std::span<const PenaltyRow> FactStore::penaltiesOf(const RunRow& run) const {
    return rowsIn(m_penalties, run.penalties);
}

std::span<const LossRow> FactStore::lossesOf(const RunRow& run) const {
    return rowsIn(m_losses, run.losses);
}

std::span<const WayRow> FactStore::waysOf(const RunRow& run) const {
    return rowsIn(m_ways, run.ways);
}

std::span<const TagRow> FactStore::tagsOf(const RunRow& run) const {
    return rowsIn(m_tags, run.tags);
}

std::span<const std::int64_t> FactStore::pensOf(const RunRow& run) const {
    return rowsIn(m_wholeNumbers, run.pens);
}

std::span<const TextId> FactStore::filmsOf(const RunRow& run) const {
    return rowsIn(m_textLists, run.films);
}

std::span<const std::int64_t> FactStore::upGatesOf(const FileRow& file) const {
    return rowsIn(m_wholeNumbers, file.upGates);
}

std::span<const double> FactStore::interestsOf(const FileRow& file) const {
    return rowsIn(m_numbers, file.interests);
}

std::size_t FactStore::definedSections(const FileRow& file) const {
    return file.courses.count;
}

std::span<const std::int64_t> FactStore::definedSection(const FileRow& file,
                                                        std::size_t section) const {
    return rowsIn(m_wholeNumbers, rowsIn(m_courses, file.courses)[section].gates);
}

std::span<const double> FactStore::timesOf(const WayRow& way) const {
    return rowsIn(m_numbers, way.times);
}

std::span<const TextId> FactStore::optionsOf(const WayRow& way) const {
    return rowsIn(m_textLists, way.options);
}

std::filesystem::path FactStore::pathOf(const RunRow& run) const {
    return std::filesystem::path(text(fileOf(run).path));
}

std::vector<std::string> FactStore::lines(TextId id) const {
    std::vector<std::string> found;
    std::string_view rest = text(id);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        found.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return found;
}

} // namespace kavela
