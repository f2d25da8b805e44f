#include "report/athlete_page.h"

#include "analysis/cell_text.h"
#include "performance/detail_shares.h"
#include "performance/penalty_rates.h"
#include "performance/penalty_words.h"
#include "report/interval_table.h"
#include "report/list_styles.h"
#include "report/page_frame.h"
#include "report/said.h"
#include "report/sheet_report.h"
#include "report/small_lists.h"
#include "report/wrapped_text.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <set>

namespace kavela::report {

namespace {

constexpr qreal AthleteGap = 13 * Point;
constexpr TextStyle TrainStyle{9, true, Ink};
constexpr TextStyle PlainStyle{8, false, Ink};
constexpr std::size_t MostLossRows = 40;     ///< there are fewer unless a file holds odd labels
constexpr std::size_t LongestFileName = 120; ///< bytes, without the extension

struct FieldTitle {
    std::string_view field;
    const char* title;
};

constexpr std::array FieldTitles{
    FieldTitle{"kind", KAVELA_TEXT("Sections")}, FieldTitle{"third", KAVELA_TEXT("Course")},
    FieldTitle{"upstream", KAVELA_TEXT("Upstream gates")},
    FieldTitle{"direction", KAVELA_TEXT("Direction")}, FieldTitle{"style", KAVELA_TEXT("Style")}};

QString fieldTitle(std::string_view field) {
    const auto found = std::ranges::find(FieldTitles, field, &FieldTitle::field);
    return found == FieldTitles.end() ? reportText(field) : said(found->title);
}

QString signedSeconds(double seconds) {
    return QString::fromStdString(signedHundredths(seconds));
}

QString meanWords(const MeanOf& mean) {
    if (mean.n == 0)
        return said("not known");
    return signedSeconds(mean.mean) + (mean.interval ? said(" (%1 to %2)")
                                                           .arg(signedSeconds(mean.interval->low),
                                                                signedSeconds(mean.interval->high))
                                                     : said(" (too few)"));
}

QString rateWords(const RateOf& rate) {
    return saidNumbers(QString::asprintf("%.1f", rate.rate * 100));
}

QString rateRange(const RateOf& rate) {
    return saidNumbers(
        QString::asprintf("%.1f–%.1f", rate.interval.low * 100, rate.interval.high * 100));
}

QString countWords(const RateOf& rate) {
    return said("%1 of %2").arg(rate.count).arg(rate.of);
}

QString runsWords(const FactStore& facts, const SeasonLosses& season) {
    std::set<std::uint32_t> files;
    for (const std::size_t run : season.runs)
        files.insert(facts.runs()[run].file);
    return said("%1 in %2")
        .arg(QString::fromStdString(sayCount(static_cast<std::int64_t>(season.runs.size()),
                                             "{} whole run", "{} whole runs")),
             QString::fromStdString(
                 sayCount(static_cast<std::int64_t>(files.size()), "{} file", "{} files")));
}

/// The page of one athlete as it is being filled.
class AthleteSheet {
public:
    AthleteSheet(const FactStore& facts, const SeasonLossQuery& query)
        : m_facts(facts), m_losses(seasonLosses(facts, query)) {
        const std::vector<std::size_t> runs = seasonRuns(facts, query);
        if (runs.empty())
            m_heading.title = reportText(query.crewKey);
        else
            m_heading.title = reportText(facts.text(facts.runs()[runs.front()].crew));
        m_heading.subtitle = categories(runs);
        m_heading.line =
            said("Losses and penalties · %1on the reference \"%2\" · %3")
                .arg(m_heading.subtitle.isEmpty() ? QString()
                                                  : m_heading.subtitle + QStringLiteral(" · "),
                     reportText(textOf(query.reference)), runsWords(facts, m_losses));
        if (!query.categoryKey.empty() && !runs.empty())
            m_choice.category = facts.text(facts.runs()[runs.front()].category);
        m_choice.crewKey = query.crewKey;
    }

    [[nodiscard]] std::unique_ptr<PagedReport> report() {
        putShortTitle(m_pages, m_heading, m_typeface);
        putLosses();
        putTraining();
        putPenalties();
        putDetails();
        return std::make_unique<SheetReport>(m_heading, std::move(m_pages));
    }

private:
    [[nodiscard]] QString categories(const std::vector<std::size_t>& runs) const {
        QStringList found;
        for (const std::size_t run : runs) {
            const QString category = reportText(m_facts.text(m_facts.runs()[run].category));
            if (!category.isEmpty() && !found.contains(category))
                found.append(category);
        }
        return found.join(QStringLiteral(", "));
    }

    /// A part stays together with its heading.
    void putHeading(const QString& text, const QString& remark, qreal below) {
        if (m_pages.space().height() < SectionHeadingHeight + below)
            m_pages.newPage();
        m_pages.put(SectionHeadingHeight,
                    [typeface = m_typeface, text, remark](QPainter& painter, const QRectF& place) {
                        paintSectionHeading(painter, place, text, remark, typeface);
                    });
    }

    void putText(const QString& text, const TextStyle& style, qreal indent = 0) {
        const qreal width = m_pages.space().width() - indent;
        putLines(m_pages, wrappedLines(text.toStdString(), m_typeface, style, width), style,
                 m_typeface, {}, indent);
    }

    void putLosses() {
        const IntervalTable table = lossTable();
        putHeading(said("Where time is lost"),
                   said("Seconds a run: gap %1, penalties %2")
                       .arg(meanWords(m_losses.gap), meanWords(m_losses.penalties)),
                   heightOf(table));
        if (table.rows.empty())
            putText(said("No whole run can be held against this reference."), NoteStyle);
        else
            putIntervalTable(m_pages, table, m_typeface);
        if (m_losses.rows.size() > MostLossRows)
            putText(said("%1 more rows are left out.").arg(m_losses.rows.size() - MostLossRows),
                    NoteStyle);
        m_pages.skip(AthleteGap);
    }

    [[nodiscard]] IntervalTable lossTable() const {
        IntervalTable table;
        table.columns = {{said("In"), 64, Qt::AlignLeft},
                         {QString(), 82, Qt::AlignLeft},
                         {said("Runs"), 20},
                         {said("Lost, s"), 36},
                         {said("A run, s"), 32},
                         {said("Percent"), 28},
                         {said("90 % interval"), 58},
                         {},
                         {said("Verdict"), 34, Qt::AlignLeft}};
        table.drawn = 7;
        table.unit = QStringLiteral(" %");
        std::string field;
        for (const SeasonLossRow& row : m_losses.rows | std::views::take(MostLossRows)) {
            const bool isFirst = row.field != field;
            field = row.field;
            const QString range =
                row.interval ? QString::fromStdString(
                                   say("{:+.1f} to {:+.1f}", row.interval->low, row.interval->high))
                             : said("too few");
            table.rows.push_back(
                {{isFirst ? fieldTitle(field) : QString(), reportText(row.text),
                  QString::number(row.runs), signedSeconds(row.loss), signedSeconds(row.perRun),
                  saidNumbers(QString::asprintf("%+.1f", row.percent)), range, QString(),
                  row.interval ? QString::fromStdString(std::string(verdictText(row.verdict)))
                               : Dash},
                 row.percent,
                 row.interval,
                 row.verdict == LossVerdict::Losing,
                 isFirst && !table.rows.empty()});
        }
        return table;
    }

    [[nodiscard]] QString clipWords(const LossClip& clip) const {
        const RunRow& run = m_facts.runs()[clip.run];
        const std::string where =
            clip.gate ? "gate " + std::to_string(*clip.gate) : sectionsText(clip.first, clip.last);
        return said("%1, run %2, %3 %4")
            .arg(reportText(m_facts.pathOf(run).stem().string()))
            .arg(run.number)
            .arg(reportText(where), signedSeconds(clip.loss));
    }

    void putTraining() {
        constexpr qreal AboutAll = 70 * Point;
        putHeading(said("What to train"),
                   said("whose whole interval is above 0, by what it costs in a run"), AboutAll);
        if (m_losses.train.empty())
            putText(said("Nothing stands out from these runs."), NoteStyle);
        for (std::size_t i = 0; i < m_losses.train.size(); ++i) {
            const SeasonLossRow& row = m_losses.rows[m_losses.train[i]];
            putText(
                said("%1. %2, %3: %4 s a run")
                    .arg(i + 1)
                    .arg(fieldTitle(row.field), reportText(row.text), signedSeconds(row.perRun)),
                TrainStyle);
            QStringList clips;
            for (const LossClip& clip : row.clips)
                clips.append(clipWords(clip));
            if (!clips.isEmpty())
                putText(said("See ") + clips.join(QStringLiteral("; ")), NoteStyle, 12 * Point);
        }
        m_pages.skip(AthleteGap);
    }

    static void addRates(IntervalTable& table, const QString& in, const QString& what,
                         const RateRow& row) {
        const auto touches = row.touches;
        const auto missed = row.missed;
        IntervalRow made;
        made.isFirst = !in.isEmpty() && !table.rows.empty();
        made.texts = {in,
                      what,
                      touches ? countWords(*touches) : Dash,
                      touches ? rateWords(*touches) : Dash,
                      touches ? rateRange(*touches) : Dash,
                      QString(),
                      missed ? countWords(*missed) : Dash,
                      missed ? rateRange(*missed) : Dash};
        if (touches) {
            made.value = touches->rate * 100;
            made.interval = {touches->interval.low * 100, touches->interval.high * 100};
        }
        made.standsOut = row.standsOut();
        table.rows.push_back(std::move(made));
    }

    [[nodiscard]] IntervalTable penaltyTable(const PenaltyRates& all) const {
        IntervalTable table;
        table.columns = {{said("Gates"), 64, Qt::AlignLeft},
                         {QString(), 52, Qt::AlignLeft},
                         {said("Touches"), 40},
                         {said("Percent"), 28},
                         {said("90 % interval"), 48},
                         {},
                         {said("Missed"), 40},
                         {said("Percent, 90 %"), 48}};
        table.drawn = 5;
        table.unit = QStringLiteral(" %");
        for (const RateRow& row : all.rows)
            addRates(table, said("All"), QString(), row);
        PenaltyRates types = penaltyRates(m_facts, RateBy::Type, m_choice);
        std::ranges::sort(types.rows, {}, &RateRow::key);
        for (std::size_t i = 0; i < types.rows.size(); ++i)
            addRates(table, i == 0 ? said("Type") : QString(), reportText(types.rows[i].label),
                     types.rows[i]);
        PenaltyRates tenths = penaltyRates(m_facts, RateBy::Tenth, m_choice);
        std::ranges::sort(tenths.rows, {}, &RateRow::number);
        for (std::size_t i = 0; i < tenths.rows.size(); ++i)
            addRates(table, i == 0 ? said("Tenth of course") : QString(),
                     reportText(tenths.rows[i].label), tenths.rows[i]);
        return table;
    }

    void putPenalties() {
        const PenaltyRates all = penaltyRates(m_facts, RateBy::Crew, m_choice);
        const IntervalTable table = penaltyTable(all);
        putHeading(said("Penalties"), QString::fromStdString(cleanWords(all)), heightOf(table));
        if (table.rows.empty())
            putText(said("No run tells its penalties by gate."), NoteStyle);
        else
            putIntervalTable(m_pages, table, m_typeface);
        m_pages.skip(AthleteGap / 2);
    }

    /// One line for each thing that is noted: what it was how often.
    void putDetails() {
        const DetailShares details = detailShares(m_facts, m_choice);
        if (details.noted == 0)
            return;
        constexpr qreal AboutAll = 90 * Point;
        if (m_pages.space().height() < AboutAll)
            m_pages.newPage();
        putText(said("Noted of %1 %2, shares of those noted:")
                    .arg(details.noted)
                    .arg(details.noted == 1 ? said("penalty") : said("penalties")),
                NoteStyle);
        for (const DetailField& field : DetailFields) {
            QStringList shares;
            for (const DetailRow& row : details.rows)
                if (row.field == field.name && row.code)
                    shares.append(QStringLiteral("%1 %2 (%3 %)")
                                      .arg(reportText(detailText(row)), countWords(row.share),
                                           rateRange(row.share)));
            if (!shares.isEmpty())
                putText(reportText(field.name) + QStringLiteral(": ") +
                            shares.join(QStringLiteral(", ")),
                        PlainStyle);
        }
    }

    const FactStore& m_facts;
    SeasonLosses m_losses;
    PenaltyChoice m_choice;
    ReportHeading m_heading;
    Typeface m_typeface;
    PageBuilder m_pages{QPageLayout::Portrait};
};

/// Where a text can be cut without cutting a letter.
std::size_t letterStart(std::string_view text, std::size_t at) {
    while (at > 0 && at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U)
        --at;
    return std::min(at, text.size());
}

} // namespace

std::unique_ptr<PagedReport> athletePage(const FactStore& facts, const SeasonLossQuery& query) {
    return AthleteSheet(facts, query).report();
}

std::string athletePageFileName(std::string_view athlete) {
    constexpr std::string_view Refused = "/\\:*?\"<>|";
    std::string name = reportText(athlete).toStdString();
    for (std::size_t at = name.find(" / "); at != std::string::npos; at = name.find(" / "))
        name.replace(at, 3, " & ");
    for (char& letter : name)
        if (Refused.find(letter) != std::string_view::npos)
            letter = '_';
    name.resize(letterStart(name, LongestFileName));
    // No hidden file, and no end that some systems cut off.
    while (!name.empty() && (name.front() == '.' || name.front() == ' '))
        name.erase(0, 1);
    while (!name.empty() && (name.back() == '.' || name.back() == ' '))
        name.pop_back();
    return (name.empty() ? "athlete" : name) + ".pdf";
}

} // namespace kavela::report
