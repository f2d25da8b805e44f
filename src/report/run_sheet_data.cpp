#include "report/run_sheet_data.h"

#include "analysis/run_motion.h"
#include "analysis/standing.h"
#include "common/number_text.h"
#include "common/reference_date.h"
#include "report/run_sheet_notes.h"
#include "report/said.h"
#include "report/typeface.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/strokes.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace kavela::report {

namespace {

constexpr std::size_t MostSections = 64;
constexpr std::int64_t TouchSeconds = 2;
constexpr std::int64_t MissedSeconds = 50;

/// A value against those of the category, of which those that are no times do not count.
struct Comparison {
    double best = 0; ///< 0 for none
    int faster = 0;
    int count = 0;
};

template <class ValueOf>
Comparison compared(const RaceSet& set, const analyzerdata& run, const ValueOf& valueOf) {
    Comparison found;
    const double own = roundedToHundredths(valueOf(run));
    for (const analyzerdata& other : set.alldata) {
        const double value = valueOf(other);
        if (other.category != run.category || !isTaken(value))
            continue;
        ++found.count;
        found.best = found.count == 1 ? value : std::min(found.best, value);
        found.faster += roundedToHundredths(value) < own;
    }
    return found;
}

template <class ValueOf>
void rank(SheetSplit& split, const RaceSet& set, const analyzerdata& run, const ValueOf& valueOf) {
    const double own = valueOf(run);
    if (!isTaken(own))
        return;
    const Comparison found = compared(set, run, valueOf);
    split.gap = own - found.best;
    split.rank = found.faster + 1;
}

double totalOf(const RaceSet& set, const analyzerdata& run) {
    const sectionmaindata& section = run.sectioninfo;
    return isWhole(set, run) ? section.totaltime + static_cast<double>(section.totalpen) : 0;
}

QString sectionTitle(const RaceSet& set, std::size_t section) {
    const QString title = reportText(entryOrZero(set.sectiontitles, section));
    return title.isEmpty() ? said("Split %1").arg(section + 1) : title;
}

void addSplits(RunSheetData& data, const RaceSet& set, const analyzerdata& run) {
    const sectionmaindata& timing = run.sectioninfo;
    for (std::size_t k = 0; k < std::min(timing.times.size(), MostSections); ++k) {
        SheetSplit split;
        split.title = sectionTitle(set, k);
        split.time = timing.times[k];
        split.penalty = entryOrZero(timing.pens, k);
        rank(split, set, run, [k](const analyzerdata& of) {
            const bool counts = sectionStanding(of.sectioninfo, k) == TimeStanding::Counts;
            return counts ? of.sectioninfo.times[k] : 0;
        });
        data.splits.push_back(std::move(split));
    }
    data.leftOutSplits = timing.times.size() - data.splits.size();
    data.whole.title = said("Run");
    data.whole.time = timing.totaltime;
    data.whole.penalty = timing.totalpen;
    rank(data.whole, set, run, [&](const analyzerdata& of) { return totalOf(set, of); });
}

void addMarkedStrokes(RunSheetData& data, const athletedata031& record) {
    if (record.strokes.empty())
        return;
    const std::vector<SectionStrokes> sections = strokesBySection(record);
    std::size_t strokes = 0;
    std::size_t intervals = 0;
    double seconds = 0;
    for (std::size_t k = 0; k < std::min(sections.size(), data.splits.size()); ++k) {
        if (sections[k].total() == 0)
            continue;
        data.splits[k].marked = {sections[k].total(), sections[k].perMinute};
        strokes += sections[k].total();
        intervals += sections[k].perMinute ? sections[k].total() - 1 : 0;
        seconds += sections[k].seconds;
    }
    data.hasMarkedStrokes = strokes > 0;
    if (!data.hasMarkedStrokes)
        return;
    data.whole.marked.count = strokes;
    if (intervals > 0)
        data.whole.marked.rate = 60 * static_cast<double>(intervals) / seconds;
}

void addRecordedStrokes(RunSheetData& data, const analyzerdata& run) {
    if (run.bm.empty() && run.watch.empty())
        return;
    const RunMotion motion = runMotion(run);
    data.recordingNote = reportText(motion.reason);
    if (motion.whole.cover == MotionCover::Part)
        data.recordingNote = said("%1 s of %2 s; strokes are counted of whole sections.")
                                 .arg(saidNumbers(QString::number(motion.whole.covered, 'f', 1)))
                                 .arg(saidNumbers(QString::number(motion.seconds, 'f', 1)));
    for (std::size_t k = 0; k < std::min(motion.sections.size(), data.splits.size()); ++k) {
        const SectionMotion& section = motion.sections[k];
        const bool isCounted = section.cover == MotionCover::Whole;
        data.splits[k].recorded = {isCounted ? section.strokes : std::nullopt, section.strokeRate};
    }
    data.whole.recorded = {motion.whole.strokes, motion.whole.strokeRate};
    data.hasRecordedStrokes = !motion.strokes.empty();
}

RunCourse courseOf(const RaceSet& set, const analyzerdata& run) {
    RunCourse course;
    if (set.gates < 1)
        return course;
    const bool isKnown = std::cmp_equal(run.gatePenalties.size(), set.gates);
    const auto gates = std::min(set.gates, static_cast<std::int64_t>(MostDrawnGates));
    course.leftOut = static_cast<std::size_t>(set.gates - gates);
    const std::size_t sections = std::min(set.definedsections.size(), MostSections);
    for (std::size_t k = 0; k < sections; ++k)
        course.sectionTitles.push_back(sectionTitle(set, k));
    for (std::int64_t number = 1; number <= gates; ++number) {
        RunGate gate{number, std::ranges::find(set.upGates, number) != set.upGates.end(), 0,
                     sections};
        if (isKnown)
            gate.penalty = run.gatePenalties[static_cast<std::size_t>(number - 1)];
        for (std::size_t k = 0; k < sections && gate.section == sections; ++k)
            if (std::ranges::find(set.definedsections[k], number) != set.definedsections[k].end())
                gate.section = k;
        course.gates.push_back(gate);
    }
    if (!isKnown)
        course.remark = said("The penalties of this run are not known by gate.");
    return course;
}

/// "2 touches, 1 missed gate", as far as the penalties are known by gate.
QString penaltiesOfRun(const analyzerdata& run) {
    const auto touches = std::ranges::count(run.gatePenalties, TouchSeconds);
    const auto missed = std::ranges::count(run.gatePenalties, MissedSeconds);
    QStringList parts;
    if (touches > 0)
        parts << countedText(touches, "touch", "touches");
    if (missed > 0)
        parts << countedText(missed, "missed gate", "missed gates");
    return parts.join(QStringLiteral(", "));
}

QString joinedLine(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

void addTotals(ReportHeading& heading, const RaceSet& set, const analyzerdata& run) {
    const auto add = [&](const char* label, const QString& value) {
        if (!value.isEmpty())
            heading.facts.push_back({said(label), value});
    };
    const sectionmaindata& timing = run.sectioninfo;
    const double total = totalOf(set, run);
    if (run.pos != "0")
        add("Place", reportText(run.pos));
    if (isTaken(total))
        add("Total", sheetSeconds(total));
    if (isTaken(timing.totaltime))
        add(isTaken(total) ? KAVELA_TEXT("Time") : KAVELA_TEXT("Time so far"),
            sheetSeconds(timing.totaltime));
    const QString words = penaltiesOfRun(run);
    add(KAVELA_TEXT("Penalties"),
        QString::number(timing.totalpen) +
            (words.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(words)));
    if (isTaken(total)) {
        const Comparison found =
            compared(set, run, [&](const analyzerdata& of) { return totalOf(set, of); });
        const QString category = reportText(run.category);
        heading.facts.push_back(
            {category.isEmpty() ? said("Among all runs") : said("Among all runs of ") + category,
             said("%1 of %2").arg(found.faster + 1).arg(found.count)});
        if (total > found.best)
            add("Behind the best", '+' + sheetSeconds(total - found.best));
    }
}

ReportHeading runHeadingOf(const infodata031& info, const RaceSet& set, const analyzerdata& run) {
    const ReportHeading race = reportHeading(info);
    ReportHeading heading;
    heading.title = reportText(run.name);
    if (heading.title.isEmpty())
        heading.title = said("Run");
    heading.subtitle = joinedLine({race.title, reportText(run.phase), reportText(run.category),
                                   reportText(info.place), reportText(dayText(info.date))});
    heading.line = heading.subtitle;
    addTotals(heading, set, run);
    return heading;
}

} // namespace

RunSheetData runSheetData(const infodata031& info, const RaceSet& set, std::size_t run) {
    if (run >= set.alldata.size())
        throw std::out_of_range("run " + std::to_string(run + 1) + " does not exist");
    const analyzerdata& shown = set.alldata[run];
    const athletedata031 record = annotatedRecord(shown);
    RunSheetData data;
    data.heading = runHeadingOf(info, set, shown);
    addSplits(data, set, shown);
    addMarkedStrokes(data, record);
    addRecordedStrokes(data, shown);
    data.course = courseOf(set, shown);
    data.lists = noteLists(set, record);
    return data;
}

QString sheetSeconds(double seconds) {
    if (!std::isfinite(seconds))
        return QStringLiteral("–");
    const std::string text = saidNumber(hundredthsText(seconds));
    constexpr std::size_t Longest = 10; // more digits only come from damaged files
    return text.size() > Longest ? QString::number(seconds, 'g', 3) : QString::fromStdString(text);
}

QString countedText(std::int64_t count, const char* one, const char* more) {
    return QString::fromStdString(countedWords(count, one, more));
}

} // namespace kavela::report
