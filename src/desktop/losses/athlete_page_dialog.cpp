#include "desktop/losses/athlete_page_dialog.h"

#include "desktop/losses/loss_state.h"
#include "desktop/losses/loss_texts.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <set>
#include <utility>

namespace kavela::desktop {

AthletePageDialog::AthletePageDialog(const LossState& state, const SeasonLossQuery& shown,
                                     QWidget* parent)
    : QDialog(parent),
      m_state(state),
      m_shown(shown),
      m_crews(new QComboBox),
      m_scope(new QComboBox),
      m_remark(new QLabel) {
    setWindowTitle(tr("Page of an athlete"));
    m_crews->setObjectName("crew");
    // Letters find a crew; what is no crew is not taken.
    m_crews->setEditable(true);
    m_crews->setInsertPolicy(QComboBox::NoInsert);
    m_crews->completer()->setFilterMode(Qt::MatchContains);
    m_crews->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_crews->setMinimumContentsLength(32);
    m_scope->setObjectName("scope");
    m_scope->addItem(tr("All races that are open"));
    m_scope->addItem(tr("Only the race of the run that is shown"));
    m_remark->setWordWrap(true);
    m_remark->setForegroundRole(QPalette::PlaceholderText);
    makeLayout();
    fillCrews();
    connect(m_scope, &QComboBox::currentIndexChanged, this, &AthletePageDialog::fillCrews);
    connect(m_crews, &QComboBox::currentTextChanged, this, &AthletePageDialog::showChoice);
}

void AthletePageDialog::makeLayout() {
    makeButtons();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(m_preview, QDialogButtonBox::ActionRole);
    buttons->addButton(m_save, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const form = new QFormLayout(this);
    form->addRow(tr("&Athlete"), m_crews);
    form->addRow(tr("&From"), m_scope);
    form->addRow(m_remark);
    form->addRow(buttons);
    m_save->setDefault(true); // once it is part of the dialog: a button asks that for it
    const bool hasSeveral = m_state.facts().files().size() > 1;
    m_scope->setEnabled(hasSeveral);
    m_scope->setCurrentIndex(hasSeveral ? 0 : 1);
}

void AthletePageDialog::makeButtons() {
    m_preview = new QPushButton(tr("&Preview and print…"));
    m_save = new QPushButton(tr("&Save as PDF…"));
    connect(m_preview, &QPushButton::clicked, this, &AthletePageDialog::previewRequested);
    connect(m_save, &QPushButton::clicked, this, &AthletePageDialog::saveRequested);
}

bool AthletePageDialog::isOneRace() const {
    return m_scope->currentIndex() == 1;
}

/// Each crew once in each of its categories, by name.
std::vector<AthletePageDialog::Entry> AthletePageDialog::entries() const {
    const FactStore& facts = m_state.facts();
    std::set<std::pair<TextId, TextId>> known;
    std::vector<Entry> entries;
    for (const RunRow& run : facts.runs()) {
        const bool isMeant = !isOneRace() || (m_state.hasRun() && run.file == m_state.row().file);
        if (isMeant && !facts.text(run.crewKey).empty() &&
            known.emplace(run.crewKey, run.categoryKey).second)
            entries.push_back({std::string(facts.text(run.crewKey)),
                               std::string(facts.text(run.categoryKey)), factText(facts, run.crew),
                               factText(facts, run.category)});
    }
    std::ranges::stable_sort(entries, [](const Entry& a, const Entry& b) {
        return QString::localeAwareCompare(a.crew, b.crew) < 0;
    });
    return entries;
}

/// The crew that was chosen stays, where it is among those of the race.
void AthletePageDialog::fillCrews() {
    const auto before = choice();
    const SeasonLossQuery wanted = before ? before->query : m_shown;
    m_entries = entries();
    {
        const QSignalBlocker quiet(m_crews);
        m_crews->clear();
        for (const Entry& entry : m_entries)
            m_crews->addItem(entry.category.isEmpty()
                                 ? entry.crew
                                 : entry.crew + QStringLiteral(" · ") + entry.category);
        const auto found = std::ranges::find_if(m_entries, [&](const Entry& entry) {
            return entry.crewKey == wanted.crewKey &&
                   (wanted.categoryKey.empty() || entry.categoryKey == wanted.categoryKey);
        });
        m_crews->setCurrentIndex(
            found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin()));
    }
    showChoice();
}

std::optional<AthletePageChoice> AthletePageDialog::choice() const {
    const int place = m_crews->findText(m_crews->currentText(), Qt::MatchFixedString);
    if (place < 0 || place >= static_cast<int>(m_entries.size()))
        return std::nullopt;
    const Entry& entry = m_entries[static_cast<std::size_t>(place)];
    AthletePageChoice choice{{entry.crewKey, entry.categoryKey, m_state.reference()},
                             std::nullopt,
                             entry.crew,
                             m_state.sharedFacts()};
    if (isOneRace())
        choice.file = m_state.row().file;
    else if (m_state.facts().files().size() > 1 &&
             choice.query.reference.kind == LossReferenceKind::Run)
        choice.query.reference = {}; // a rival is of one race
    return choice;
}

void AthletePageDialog::showChoice() {
    const auto chosen = choice();
    m_preview->setEnabled(chosen.has_value());
    m_save->setEnabled(chosen.has_value());
    m_remark->setText(
        chosen ? tr("One A4 page: where time is lost on the %1, what to train, penalties.")
                     .arg(referenceTitle(chosen->query.reference.kind))
               : tr("Choose one of the athletes of the list."));
}

} // namespace kavela::desktop
