#include "desktop/losses/loss_texts.h"

#include "analysis/cell_text.h"
#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Losses", text);
}

/// What a coach gave a name, else what it is.
QString raceTitle(const FactStore& facts, const FileRow& file) {
    for (const TextId id : {file.title, file.event, file.place})
        if (!facts.text(id).empty())
            return factText(facts, id);
    return tr("a race without a name");
}

/// Without its sign.
QString amount(std::int64_t hundredths) {
    return shownHundredths(static_cast<double>(std::abs(hundredths)) / 100);
}

} // namespace

QString factText(const FactStore& facts, TextId id) {
    const std::string_view text = facts.text(id);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).simplified();
}

QString shownSigned(std::int64_t hundredths) {
    return shownNumbers(QString::fromStdString(signedText(hundredths)));
}

QString shownSignedSeconds(double seconds) {
    return shownNumbers(QString::fromStdString(signedHundredths(seconds)));
}

QString shownPercent(double percent) {
    const QString text = shownNumber(percent, 1);
    const bool isNothing = std::abs(percent) < 0.05; // "-0.0" is no gain
    return (isNothing ? shownNumber(0, 1) : percent > 0 ? '+' + text : text) + QStringLiteral(" %");
}

QString runTitle(const FactStore& facts, std::size_t run) {
    const RunRow& row = facts.runs()[run];
    QStringList parts{factText(facts, row.crew), factText(facts, row.phase)};
    if (parts.front().isEmpty())
        parts.front() = tr("Run %1").arg(row.number + 1);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString runChoice(const FactStore& facts, std::size_t run) {
    const RunRow& row = facts.runs()[run];
    QStringList parts{runTitle(facts, run), factText(facts, row.category)};
    if (facts.files().size() > 1)
        parts << raceTitle(facts, facts.fileOf(row));
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QString stretchTitle(const Stretch& stretch) {
    return QString::fromStdString(sectionsText(stretch.first, stretch.last));
}

QString referenceTitle(LossReferenceKind kind) {
    switch (kind) {
    case LossReferenceKind::Winner:
        return tr("winner");
    case LossReferenceKind::Fastest:
        return tr("fastest paddling");
    case LossReferenceKind::Ideal:
        return tr("ideal run");
    case LossReferenceKind::Median:
        return tr("median of the finalists");
    case LossReferenceKind::Own:
        return tr("own best other run");
    case LossReferenceKind::Run:
        return tr("a rival");
    }
    return {};
}

QString referenceTitle(const LossState& state) {
    const RunLosses& losses = state.losses();
    return losses.reference.kind == LossReferenceKind::Run && losses.referenceRun
               ? runTitle(state.facts(), *losses.referenceRun)
               : referenceTitle(state.reference().kind);
}

QString nothingToShow(const LossState& state) {
    if (!state.hasRun())
        return tr("Open a race to see where time is lost.");
    if (!state.losses().hasReference)
        return state.reference().kind == LossReferenceKind::Own
                   ? tr("The crew has no other whole run here to be held against. Choose another "
                        "reference.")
                   : tr("There is no %1 here to hold the run against. Choose another reference.")
                         .arg(referenceTitle(state));
    if (state.losses().stretches.empty())
        return tr("The two have no section in common that is timed.");
    return {};
}

QString gapSentence(const LossState& state) {
    if (!state.hasRun())
        return {};
    const RunLosses& losses = state.losses();
    const QString run = runTitle(state.facts(), state.run());
    if (!losses.hasReference)
        return tr("%1: nothing to be held against").arg(run);
    const QString gap = shownSigned(losses.shown.gap);
    if (losses.sum)
        return tr("%1  %2 on %3").arg(run, gap, referenceTitle(state));
    if (losses.stretches.empty())
        return tr("%1: no section in common with %2").arg(run, referenceTitle(state));
    return tr("%1  %2 on %3 in %4 (no total)")
        .arg(run, gap, referenceTitle(state),
             QString::fromStdString(
                 sectionsText(losses.stretches.front().first, losses.stretches.back().last)));
}

QString explainedSentence(const LossState& state) {
    const RunLosses& losses = state.losses();
    if (!state.hasRun() || !losses.explained || !losses.noted || *losses.noted == 0)
        return {};
    return tr("Explained by notes: %1 of %2 (%3 %)")
        .arg(shownHundredths(*losses.noted), amount(losses.shown.paddling),
             shownNumber(*losses.explained * 100, 0));
}

QString waterfallSentence(const LossState& state) {
    const RunLosses& losses = state.losses();
    const auto& parts = losses.shown.stretches;
    const auto most = std::ranges::max_element(parts);
    QString text;
    if (most == parts.end() || *most <= 0)
        text = tr("No section was slower than the reference's.");
    else
        text =
            tr("Most was lost in %1: %2 s of %3.")
                .arg(stretchTitle(losses.stretches[static_cast<std::size_t>(most - parts.begin())]),
                     amount(*most), shownSigned(losses.shown.gap));
    if (losses.shown.penalties != 0)
        text += ' ' + tr("Penalties make %1 of it.").arg(shownSigned(losses.shown.penalties));
    return text;
}

QString paretoSentence(const LossState& state) {
    constexpr double MostOfIt = 0.8;
    const std::vector<ParetoBar> bars = paretoOf(state.losses());
    if (bars.empty())
        return {};
    const auto enough = std::ranges::find_if(
        bars, [](const ParetoBar& bar) { return bar.upTo >= MostOfIt - 1e-9; });
    const auto count = static_cast<int>(enough - bars.begin()) + 1;
    if (count > 1 && count == static_cast<int>(bars.size()))
        return tr("All %1 of the slower sections are needed to explain most of the loss.")
            .arg(bars.size());
    return count == 1 ? tr("%1 alone makes %2 % of what was lost in slower sections.")
                            .arg(stretchTitle(state.losses().stretches[bars.front().stretch]),
                                 shownNumber(bars.front().upTo * 100, 0))
                      : tr("%1 of %2 slower sections make %3 % of what was lost in them.")
                            .arg(count)
                            .arg(bars.size())
                            .arg(shownNumber(enough->upTo * 100, 0));
}

QString heatSentence(const LossState& state, const LossHeatMap& map) {
    std::optional<std::size_t> most;
    for (std::size_t cell = 0; cell < map.percent.size(); ++cell)
        if (map.percent[cell] && (!most || *map.percent[cell] > *map.percent[*most]))
            most = cell;
    if (!most || *map.percent[*most] <= 0)
        return tr("Nobody was slower than the reference in a section.");
    return tr("The greatest loss is that of %1 in S%2: %3 on %4.")
        .arg(factText(state.facts(), state.facts().runs()[map.runs[*most / map.sections]].crew))
        .arg(*most % map.sections + 1)
        .arg(shownPercent(*map.percent[*most]), referenceTitle(state));
}

QString growthSentence(const LossState& state, const CumulativeGap& gap) {
    const auto most = std::ranges::max_element(gap.points, {}, &CumulativeGap::Point::gap);
    const auto& last = gap.points.back();
    if (most->gap <= 0)
        return tr("Never behind the %1; %2 at the end of S%3.")
            .arg(referenceTitle(state), shownSignedSeconds(last.gap))
            .arg(last.section);
    if (most->section == last.section)
        return tr("Farthest behind at the end: %1 after S%2.")
            .arg(shownSignedSeconds(last.gap))
            .arg(last.section);
    return tr("Farthest behind after S%1: %2; %3 after S%4.")
        .arg(most->section)
        .arg(shownSignedSeconds(most->gap), shownSignedSeconds(last.gap))
        .arg(last.section);
}

} // namespace kavela::desktop
