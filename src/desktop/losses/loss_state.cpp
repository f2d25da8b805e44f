#include "desktop/losses/loss_state.h"

#include "performance/loss_reasons.h"
#include "performance/loss_reference.h"

#include <algorithm>
#include <limits>

namespace kavela::desktop {

LossState::LossState(QObject* parent)
    : QObject(parent),
      m_facts(std::make_shared<const FactStore>()),
      m_rivals(std::make_unique<LossRivals>(*m_facts)) {}

LossState::RunKey LossState::keyOf(std::size_t run) const {
    const RunRow& row = m_facts->runs()[run];
    return {std::string(m_facts->text(m_facts->fileOf(row).path)), row.number,
            std::string(m_facts->text(row.crewKey)), std::string(m_facts->text(row.phaseKey))};
}

/// A run may have got another number, and a crew may have run twice in a phase: the number decides
/// where it fits, then the phase.
std::optional<std::size_t> LossState::find(const RunKey& key) const {
    std::optional<std::size_t> found;
    int best = 0;
    for (const FileRow& file : m_facts->files()) {
        if (m_facts->text(file.path) != key.path)
            continue;
        for (std::size_t number = 0; number < file.runs.count; ++number) {
            const std::size_t run = file.runs.first + number;
            const RunRow& row = m_facts->runs()[run];
            if (m_facts->text(row.crewKey) != key.crew)
                continue;
            const bool isPhase = m_facts->text(row.phaseKey) == key.phase;
            const int fit = 1 + (isPhase ? 2 : 0) + (row.number == key.number ? 1 : 0);
            if (fit > best) {
                best = fit;
                found = run;
            }
        }
    }
    return found;
}

std::optional<std::size_t> LossState::firstWhole() const {
    const auto runs = m_facts->runs();
    if (runs.empty())
        return std::nullopt;
    const auto whole = std::ranges::find_if(runs, &RunRow::isComplete);
    return whole == runs.end() ? 0 : static_cast<std::size_t>(whole - runs.begin());
}

void LossState::setFacts(std::shared_ptr<const FactStore> facts) {
    std::optional<RunKey> before;
    std::optional<RunKey> rival;
    if (m_hasRun)
        before = keyOf(run());
    if (m_hasRun && m_reference.kind == LossReferenceKind::Run && m_losses.referenceRun)
        rival = keyOf(*m_losses.referenceRun);
    m_facts = std::move(facts);
    m_rivals = std::make_unique<LossRivals>(*m_facts);
    std::optional<std::size_t> run = before ? find(*before) : std::nullopt;
    if (!run)
        run = firstWhole();
    m_hasRun = run.has_value();
    m_losses = {};
    m_losses.run = run.value_or(0);
    if (rival)
        followReference(*rival);
    compute();
    emit factsChanged();
    emit changed();
}

void LossState::followReference(const RunKey& rival) {
    const auto found = find(rival);
    if (found && m_hasRun && m_facts->runs()[*found].file == row().file)
        m_reference.run = m_facts->runs()[*found].number;
    else
        m_reference = {};
}

QStringList LossState::kept() const {
    if (!m_hasRun)
        return {};
    const RunKey key = keyOf(run());
    return {QString::fromStdString(key.path),
            QString::number(key.number),
            QString::fromStdString(key.crew),
            QString::fromStdString(key.phase),
            QString::fromStdString(textOf(m_reference)),
            QString::number(m_section)};
}

bool LossState::goBackTo(const QStringList& kept) {
    const auto found = find({kept.value(0).toStdString(), kept.value(1).toUInt(),
                             kept.value(2).toStdString(), kept.value(3).toStdString()});
    if (!found)
        return false;
    setRun(*found);
    if (const auto reference = lossReferenceOf(kept.value(4).toStdString()))
        setReference(*reference);
    chooseSection(kept.value(5).toUInt());
    return true;
}

void LossState::setRun(std::size_t run) {
    if (run >= m_facts->runs().size() || (m_hasRun && run == this->run()))
        return;
    const bool isOtherFile = !m_hasRun || m_facts->runs()[run].file != row().file;
    if (isOtherFile && m_reference.kind == LossReferenceKind::Run)
        m_reference = {};
    m_hasRun = true;
    m_losses.run = run;
    compute();
    emit changed();
}

void LossState::setReference(const LossReference& reference) {
    if (reference == m_reference)
        return;
    m_reference = reference;
    compute();
    emit changed();
}

void LossState::compute() {
    m_group.clear();
    m_ranks.clear();
    if (!m_hasRun)
        return;
    const RivalGroup& group = m_rivals->groupOf(run());
    m_ranks = ranksOf(*m_facts, {group});
    m_group = lossesOf(*m_facts, *m_rivals, group, m_reference);
    std::ranges::stable_sort(m_group, {}, [this](const RunLosses& losses) {
        return m_ranks[losses.run].value_or(std::numeric_limits<int>::max());
    });
    m_losses = *std::ranges::find(m_group, m_losses.run, &RunLosses::run);
    if (!stretch())
        m_section = 0;
}

void LossState::chooseSection(std::size_t section) {
    if (section == m_section)
        return;
    m_section = section;
    emit sectionChosen();
}

const Stretch* LossState::stretch() const {
    const auto found = std::ranges::find_if(
        m_losses.stretches, [this](const Stretch& stretch) { return stretch.holds(m_section); });
    return found == m_losses.stretches.end() ? nullptr : &*found;
}

void LossState::setScale(ColourScale scale) {
    m_scale = scale;
    emit scaleChanged();
}

std::optional<Reason> LossState::why(std::size_t run, LossNumber number, std::size_t at) const {
    return explainLoss(*m_facts, m_reference, lossId(number, run, m_reference, at));
}

} // namespace kavela::desktop
