#include "desktop/losses/loss_header.h"

#include "desktop/losses/loss_state.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/losses/run_picker.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_popup.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

QString capitalised(QString text) {
    if (!text.isEmpty())
        text.front() = text.front().toUpper();
    return text;
}

QString keyOf(const LossReference& reference) {
    return QString::fromStdString(textOf(reference));
}

} // namespace

LossHeader::LossHeader(LossState& state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_picker(new RunPicker),
      m_references(new QComboBox),
      m_gap(new QLabel),
      m_explained(new QLabel) {
    m_references->setObjectName("reference");
    m_references->setAccessibleName(tr("Reference"));
    m_references->setToolTip(tr("What the run is held against"));
    m_references->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_references->setMinimumContentsLength(28);
    for (QLabel* const label : {m_gap, m_explained}) {
        label->setTextFormat(Qt::PlainText);
        label->setFocusPolicy(Qt::StrongFocus); // its number can be asked for by key
        label->setToolTip(tr("Alt+click or Shift+F1: why"));
    }
    m_gap->setObjectName("gap");
    m_gap->setFont(theme::titleFont(*this));
    m_gap->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // names may be long
    m_explained->setObjectName("explained");
    makeLayout();
    connectParts();
    showState();
}

void LossHeader::makeLayout() {
    auto* const choices = new QHBoxLayout;
    choices->setSpacing(theme::Spacing);
    auto* const run = new QLabel(tr("Ru&n"));
    run->setBuddy(m_picker);
    auto* const reference = new QLabel(tr("hel&d against"));
    reference->setBuddy(m_references);
    choices->addWidget(run);
    choices->addWidget(m_picker, 3);
    choices->addWidget(reference);
    choices->addWidget(m_references, 2);
    auto* const told = new QHBoxLayout;
    told->addWidget(m_gap, 1);
    told->addWidget(m_explained);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(choices);
    column->addLayout(told);
}

void LossHeader::connectParts() {
    connect(&m_state, &LossState::factsChanged, this,
            [this] { m_picker->setFacts(m_state.sharedFacts()); });
    connect(&m_state, &LossState::changed, this, &LossHeader::showState);
    connect(m_picker, &RunPicker::runChosen, &m_state, &LossState::setRun);
    connect(m_references, &QComboBox::activated, this, [this](int index) {
        const std::string key = m_references->itemData(index).toString().toStdString();
        if (const auto reference = lossReferenceOf(key))
            m_state.setReference(*reference);
    });
    answerWhy(m_gap, [this](const QPoint&) { return m_state.why(LossNumber::Gap); });
    answerWhy(m_explained, [this](const QPoint&) { return m_state.why(LossNumber::Explained); });
}

QString LossHeader::sentence() const {
    return m_gap->text();
}

void LossHeader::findRun() {
    m_picker->setFocus();
    m_picker->lineEdit()->selectAll();
}

void LossHeader::showState() {
    if (m_state.hasRun())
        m_picker->showRun(m_state.run());
    m_picker->setEnabled(m_state.hasRun());
    m_references->setEnabled(m_state.hasRun());
    fillReferences();
    m_gap->setText(gapSentence(m_state));
    m_gap->setAccessibleName(m_gap->text());
    m_explained->setText(explainedSentence(m_state));
    m_explained->setVisible(!m_explained->text().isEmpty());
}

/// The kinds, then the rivals in their order.
void LossHeader::fillReferences() {
    using Kind = LossReferenceKind;
    const QSignalBlocker blocker(m_references);
    m_references->clear();
    for (const Kind kind : {Kind::Winner, Kind::Fastest, Kind::Ideal, Kind::Median, Kind::Own})
        m_references->addItem(capitalised(referenceTitle(kind)), keyOf({kind, 0}));
    if (!m_state.hasRun())
        return;
    m_references->insertSeparator(m_references->count());
    const FactStore& facts = m_state.facts();
    const auto add = [&](std::size_t run) {
        const RunRow& row = facts.runs()[run];
        const auto rank = m_state.rankOf(run);
        m_references->addItem(
            (rank ? QString::number(*rank) + QStringLiteral("  ") : QString()) +
                runTitle(facts, run) +
                (row.isComplete ? QStringLiteral("  ") + shownHundredths(row.total) : QString()),
            keyOf({Kind::Run, row.number}));
    };
    for (const RunLosses& rival : m_state.group())
        if (rival.run != m_state.run())
            add(rival.run);
    const QString wanted = keyOf(m_state.reference());
    if (m_references->findData(wanted) < 0) // a run of another phase, or this one itself
        add(m_state.losses().referenceRun.value_or(m_state.run()));
    m_references->setCurrentIndex(m_references->findData(wanted));
}

} // namespace kavela::desktop
