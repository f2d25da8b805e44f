#include "page/run_part.h"

#include "analysis/cell_text.h"
#include "common/number_text.h"
#include "common/text.h"
#include "page/cell_classes.h"
#include "page/gap_picture.h"
#include "page/html_text.h"
#include "page/run_notes.h"
#include "performance/loss_counts.h"

#include <algorithm>
#include <cmath>
#include <ranges>
#include <utility>

namespace kavela::page {

namespace {

std::string seconds(double value) {
    return std::isfinite(value) ? saidNumber(hundredthsText(value)) : "–";
}

std::string signedSeconds(std::int64_t hundredths) {
    return saidNumber(signedText(hundredths));
}

/// Writes the parts of one run one after the other.
class RunWriter {
public:
    RunWriter(const RaceOnPage& race, std::size_t own)
        : m_race(race),
          m_own(own),
          m_row(race.own()[own]),
          m_run(race.runOf(m_row)),
          m_facts(race.factsOf(m_row)),
          m_losses(race.lossesOf(own)) {
        m_isWinner = m_losses.referenceRun == m_run;
        if (m_isWinner)
            m_toIdeal =
                kavela::lossesOf(race.facts(), race.rivals(), m_run, {LossReferenceKind::Ideal, 0});
    }

    [[nodiscard]] std::string text(const std::vector<PageFilm>& films) {
        std::string made = "<article id=" + runAnchor(m_race, m_own) + "><h3>" +
                           escaped(runTitle(m_race, m_own)) + "</h3>";
        made += figures();
        for (const PageFilm& film : films)
            if (film.run == std::pair(m_race.number(), m_run))
                made += filmPart(film);
        made += gap() + splits() + penaltiesPart(m_race, m_row) + upstreamPart(m_race, m_own) +
                notedLossesPart(m_race, m_row) + commentsPart(m_race, m_row);
        return made + "</article>\n";
    }

private:
    static std::string figure(std::string_view label, const std::string& value) {
        return "<div><dt>" + std::string(label) + "<dd>" + value + "</div>";
    }

    [[nodiscard]] std::string winnerName() const {
        const FactStore& facts = m_race.facts();
        return m_losses.referenceRun
                   ? std::string(facts.text(facts.runs()[*m_losses.referenceRun].crew))
                   : std::string();
    }

    [[nodiscard]] std::string figures() const {
        const FactStore& facts = m_race.facts();
        const RivalGroup& group = m_race.rivals().groupOf(m_run);
        std::string made = "<dl class=k>";
        if (const auto place = placeInGroup(facts, group, m_run)) {
            const auto count = std::ranges::count_if(
                group, [&](std::size_t run) { return facts.runs()[run].isComplete; });
            made += figure(said("Rank"), say("{} <small>of {}</small>", *place, count));
        }
        if (m_facts.isComplete) {
            made += figure(said("Total"), seconds(m_facts.total)) +
                    figure(said("Time"), seconds(m_facts.paddling)) +
                    figure(said("Penalties"), std::to_string(m_facts.penalty));
        } else {
            made += figure(m_facts.isRefused ? said("Not ranked, time") : said("Time so far"),
                           seconds(m_facts.totaltime)) +
                    figure(said("Penalties"), std::to_string(m_facts.totalpen));
        }
        if (m_losses.sum && !m_isWinner)
            made +=
                figure(said("Behind the winner"), signedSeconds(m_losses.shown.gap) + " <small>" +
                                                      isolated(winnerName()) + "</small>");
        return made + strokes() + "</dl>";
    }

    [[nodiscard]] std::string strokes() const {
        const auto& strokes = m_race.strokesOf(m_own);
        if (strokes.empty() || !strokes.back().count)
            return {};
        return figure(said("Strokes"), strokeText(strokes.back()));
    }

    static std::string strokeText(const PageStrokes& strokes) {
        std::string text = strokes.count ? std::to_string(*strokes.count) : "–";
        if (strokes.perMinute && std::isfinite(*strokes.perMinute))
            text += " <small>" + std::to_string(std::lround(*strokes.perMinute)) + "/min</small>";
        return text;
    }

    /// What the gap is drawn against: the winner's own is one of nothing, so hers is against what
    /// the field could do together.
    [[nodiscard]] const RunLosses& drawn() const { return m_isWinner ? m_toIdeal : m_losses; }

    [[nodiscard]] GapLine gapLine() const {
        GapLine line;
        double at = 0;
        double paddling = 0;
        double penalties = 0;
        for (const Stretch& stretch : drawn().stretches) {
            at += stretch.reference;
            paddling += stretch.loss;
            penalties += static_cast<double>(stretch.pen);
            if (drawn().referenceRun)
                penalties -= static_cast<double>(stretchPenalties(
                    m_race.facts(), *drawn().referenceRun, stretch.first, stretch.last));
            std::string name = std::to_string(stretch.first);
            if (stretch.last != stretch.first)
                name += '-' + std::to_string(stretch.last);
            line.points.push_back(
                {std::move(name), at, paddling + penalties, paddling,
                 stretch.pen > 0 ? '+' + std::to_string(stretch.pen) : std::string()});
        }
        return line;
    }

    [[nodiscard]] std::string gap() const {
        GapLine line = gapLine();
        std::string gaps;
        for (const GapPoint& end : line.points)
            gaps += (gaps.empty() ? "" : ", ") + saidNumber(signedHundredths(end.gap));
        line.label = m_isWinner ? say("Gap to the ideal run from section to section: {}", gaps)
                                : say("Gap to {} from section to section: {}", winnerName(), gaps);
        const std::string picture = gapPicture(line);
        if (picture.empty())
            return {};
        return "<figure>" + picture + "<figcaption>" +
               (m_isWinner ? said("This run won. Gap to the ideal run, the best of every section, "
                                  "in seconds.")
                           : say("Gap to {}, in seconds: above the line is behind.",
                                 isolated(winnerName()))) +
               sumWords() + "</figcaption></figure>";
    }

    [[nodiscard]] std::string sumWords() const {
        if (m_isWinner || !m_losses.sum)
            return {};
        const ShownLosses& shown = m_losses.shown;
        const std::string gap = "<b>" + signedSeconds(shown.gap) + "</b>";
        const std::string paddling = signedSeconds(shown.paddling);
        const std::string penalties = signedSeconds(shown.penalties);
        return ' ' +
               (shown.timing == 0
                    ? say("{} = paddling {}, penalties {}.", gap, paddling, penalties)
                    : say("{} = paddling {}, penalties {}, official against video time {}.", gap,
                          paddling, penalties, signedSeconds(shown.timing))) +
               mostLost();
    }

    /// The three greatest losses, for whoever reads no further.
    [[nodiscard]] std::string mostLost() const {
        constexpr std::int64_t LeastTold = 10; // hundredths: less is what marking a frame costs
        constexpr std::size_t MostTold = 3;
        std::vector<std::pair<std::int64_t, std::size_t>> losses;
        for (std::size_t k = 0; k < m_losses.shown.stretches.size(); ++k)
            if (m_losses.shown.stretches[k] >= LeastTold)
                losses.emplace_back(-m_losses.shown.stretches[k], k);
        std::ranges::sort(losses);
        std::string words;
        for (const auto& [loss, k] : losses | std::views::take(MostTold))
            words += (words.empty() ? "" : ", ") + stretchTitle(m_losses.stretches[k]) + ' ' +
                     signedSeconds(-loss);
        return words.empty() ? words : ' ' + say("Most lost: {}.", words);
    }

    [[nodiscard]] std::string stretchTitle(const Stretch& stretch) const {
        const std::string last = escaped(m_race.sectionTitle(stretch.last - 1));
        return stretch.first == stretch.last
                   ? last
                   : escaped(m_race.sectionTitle(stretch.first - 1)) + "–" + last;
    }

    /// By section what it lost to the winner; of a stretch of several that stands at the last.
    [[nodiscard]] std::vector<std::string> lossTexts() const {
        std::vector<std::string> texts(m_race.sections(), "–");
        for (std::size_t k = 0; k < m_losses.stretches.size(); ++k) {
            const Stretch& stretch = m_losses.stretches[k];
            if (stretch.last > texts.size())
                continue;
            std::string text = signedSeconds(m_losses.shown.stretches[k]);
            if (stretch.first != stretch.last)
                text += " <small>" + sectionsText(stretch.first, stretch.last) + "</small>";
            texts[stretch.last - 1] = std::move(text);
        }
        return texts;
    }

    [[nodiscard]] bool hasPenalties() const {
        return std::ranges::any_of(m_race.set().alldata[m_row].sectioninfo.pens,
                                   [](std::int64_t pen) { return pen != 0; });
    }

    [[nodiscard]] std::string splits() const {
        const bool hasLosses = !m_isWinner && !m_losses.stretches.empty();
        const bool hasPens = hasPenalties();
        const auto& strokes = m_race.strokesOf(m_own);
        const bool hasStrokes = std::ranges::any_of(
            strokes, [](const PageStrokes& of) { return of.count.has_value(); });
        std::string made = "<table class=r><caption>" + said("Splits") + "</caption><thead><tr>";
        const auto add = [&made](const std::string& title) { made += "<th scope=col>" + title; };
        add(said("Section"));
        add(said("Time"));
        add(said("Rank"));
        if (hasLosses)
            add(said("To winner"));
        if (hasPens)
            add(said("Pen"));
        if (hasStrokes)
            add(said("Strokes"));
        made += "</thead><tbody>";
        const std::vector<std::string> losses = lossTexts();
        for (std::size_t k = 0; k < m_race.sections(); ++k) {
            made += "<tr><th scope=row><i>" + std::to_string(k + 1) + "</i> " +
                    escaped(m_race.sectionTitle(k)) + timeCells(k);
            if (hasLosses)
                made += "<td>" + losses[k];
            if (hasPens)
                made += "<td>" + penaltyOf(k);
            if (hasStrokes)
                made += "<td>" + (k + 1 < strokes.size() ? strokeText(strokes[k]) : "–");
        }
        const int left = (hasLosses ? 1 : 0) + (hasPens ? 1 : 0) + (hasStrokes ? 1 : 0);
        return made + closing(left) + "</table>";
    }

    /// The coloured time of a column, with its place there.
    [[nodiscard]] std::string timeCells(std::size_t column) const {
        const auto rank = m_race.figures().rank(m_row, column);
        return tableCell(m_race.table().rows[m_row].cells[column]) + "<td>" +
               (rank ? std::to_string(*rank) : "–");
    }

    /// Total, sprint and real time, those that there are.
    [[nodiscard]] std::string closing(int columnsLeft) const {
        std::string made;
        for (std::size_t column = m_race.sections(); column < m_race.table().columns.size();
             ++column)
            if (m_race.table().rows[m_row].cells[column].value != 0) {
                made += "<tr class=t><th scope=row>" +
                        escaped(m_race.table().columns[column].title) + timeCells(column);
                if (columnsLeft > 0)
                    made += "<td colspan=" + std::to_string(columnsLeft) + ">";
            }
        return made;
    }

    [[nodiscard]] std::string penaltyOf(std::size_t section) const {
        const auto& pens = m_race.set().alldata[m_row].sectioninfo.pens;
        return section < pens.size() && pens[section] != 0
                   ? "<b>+" + std::to_string(pens[section]) + "</b>"
                   : "";
    }

    const RaceOnPage& m_race;
    std::size_t m_own;
    std::size_t m_row;
    std::size_t m_run;
    const RunRow& m_facts;
    const RunLosses& m_losses;
    RunLosses m_toIdeal;
    bool m_isWinner = false;
};

} // namespace

std::string runPart(const RaceOnPage& race, std::size_t own, const std::vector<PageFilm>& films) {
    return RunWriter(race, own).text(films);
}

std::string runAnchor(const RaceOnPage& race, std::size_t own) {
    return 'r' + std::to_string(race.number()) + '-' + std::to_string(race.runOf(race.own()[own]));
}

std::string filmPart(const PageFilm& film) {
    std::string made = "<figure class=f><video controls playsinline preload=none";
    if (!film.poster.empty())
        made += " poster=\"" + addressOf(film.poster) + '"';
    return made + " src=\"" + addressOf(film.address) + "\" aria-label=\"" + escaped(film.title) +
           "\"></video><figcaption>" +
           say("{}. The film lies beside this page: {}", isolated(film.title),
               isolated(film.address)) +
           "</figcaption></figure>";
}

} // namespace kavela::page
