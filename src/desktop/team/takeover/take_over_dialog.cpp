#include "desktop/team/takeover/take_over_dialog.h"

#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include <algorithm>

namespace kavela::desktop {

namespace {

enum Column {
    AthleteColumn,
    WrittenColumn,
    CategoryColumn,
    PhaseColumn,
    ResultColumn,
    EffectColumn
};

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

QDate dateOf(ReferenceDate date) {
    return QDate::fromString(qtText(dayText(date)), "yyyy-MM-dd");
}

QString effectOf(const PlannedResult& planned) {
    if (planned.addsCategory)
        return TakeOverDialog::tr("new; %1 is added to the athlete's boats")
            .arg(qtText(planned.found.category));
    if (planned.before.empty())
        return TakeOverDialog::tr("new");
    if (planned.before == resultText(planned.found))
        return TakeOverDialog::tr("the same stands there");
    return TakeOverDialog::tr("replaces %1").arg(qtText(planned.before));
}

} // namespace

TakeOverDialog::TakeOverDialog(const myTeamToSaveStruct& team, QWidget* parent)
    : QDialog(parent), m_team(team) {
    setWindowTitle(tr("Take results over"));
}

TakeOverDialog::TakeOverDialog(const myTeamToSaveStruct& team, FoundRace race, QWidget* parent)
    : TakeOverDialog(team, parent) {
    auto* form = new QFormLayout;
    makeRace(*form, race);
    m_read = [race = std::move(race)] { return race; };
    finish(form);
}

TakeOverDialog::TakeOverDialog(const myTeamToSaveStruct& team, ResultsList list,
                               const std::string& category, ReferenceDate present, QWidget* parent)
    : TakeOverDialog(team, parent) {
    auto* form = new QFormLayout;
    FoundRace race;
    race.date = present;
    makeRace(*form, race);
    makeListFacts(*form, category, present);
    m_read = [this, list = std::move(list)] {
        return foundInList(
            list, {m_category->currentText().toStdString(), m_phase->currentText().toStdString(),
                   typedDay(m_date->date().toString("yyyy-MM-dd"), {}), m_isFinal->isChecked()});
    };
    finish(form);
}

void TakeOverDialog::makeRace(QFormLayout& form, const FoundRace& race) {
    m_event = new QComboBox;
    m_event->setObjectName("event");
    m_event->setPlaceholderText(tr("Choose the event"));
    for (const char* event : team::Events)
        m_event->addItem(event);
    m_event->setCurrentIndex(race.event.empty() ? -1 : m_event->findText(qtText(race.event)));
    m_location = new QLineEdit(qtText(race.location));
    m_location->setObjectName("location");
    m_year = new QSpinBox;
    m_year->setObjectName("year");
    m_year->setRange(1900, 2100);
    m_year->setValue(dateOf(race.date).year());
    form.addRow(tr("&Event"), m_event);
    form.addRow(tr("&Location"), m_location);
    form.addRow(tr("&Season"), m_year);
    connect(m_event, &QComboBox::currentIndexChanged, this, &TakeOverDialog::plan);
    connect(m_location, &QLineEdit::textChanged, this, &TakeOverDialog::plan);
    connect(m_year, &QSpinBox::valueChanged, this, &TakeOverDialog::plan);
}

void TakeOverDialog::makeListFacts(QFormLayout& form, const std::string& category,
                                   ReferenceDate present) {
    m_category = new QComboBox;
    m_category->setObjectName("listCategory");
    for (const char* label : team::Categories)
        m_category->addItem(label);
    m_category->setCurrentIndex(std::max(m_category->findText(qtText(category)), 0));
    m_phase = new QComboBox;
    m_phase->setObjectName("listPhase");
    for (const char* phase : team::Phases)
        m_phase->addItem(phase);
    m_phase->setCurrentIndex(m_phase->count() - 1);
    m_date = new QDateEdit(dateOf(present));
    m_date->setCalendarPopup(true);
    m_date->setDisplayFormat("yyyy-MM-dd");
    m_isFinal = new QCheckBox(tr("The positions are the &final ones of the race"));
    m_isFinal->setObjectName("isFinal");
    m_isFinal->setChecked(true);
    form.addRow(tr("&Category"), m_category);
    form.addRow(tr("&Phase"), m_phase);
    form.addRow(tr("&Day"), m_date);
    form.addRow(m_isFinal);
    connect(m_category, &QComboBox::currentIndexChanged, this, &TakeOverDialog::plan);
    connect(m_phase, &QComboBox::currentIndexChanged, this, [this] {
        m_isFinal->setChecked(m_phase->currentText() == "Final");
        plan();
    });
    connect(m_date, &QDateEdit::dateChanged, this, [this](QDate date) {
        m_year->setValue(date.year());
        plan();
    });
    connect(m_isFinal, &QCheckBox::toggled, this, &TakeOverDialog::plan);
}

void TakeOverDialog::finish(QFormLayout* form) {
    m_lines = new QTableWidget(0, EffectColumn + 1);
    m_lines->setObjectName("lines");
    m_lines->setHorizontalHeaderLabels({tr("Athlete"), tr("In the file"), tr("Boat"), tr("Phase"),
                                        tr("Result"), tr("In the team")});
    m_lines->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_lines->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_lines->setShowGrid(false);
    m_lines->setTabKeyNavigation(false);
    m_lines->verticalHeader()->hide();
    m_lines->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    m_lines->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_lines->horizontalHeader()->setHighlightSections(false);
    m_lines->horizontalHeader()->setStretchLastSection(true);
    connect(m_lines, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        const auto row = static_cast<std::size_t>(item->row());
        if (m_isFilling || item->column() != AthleteColumn || row >= m_plan.planned.size())
            return;
        m_plan.planned[row].isTicked = item->checkState() == Qt::Checked;
        showCount();
    });
    m_note = new QLabel;
    m_note->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_take = buttons->addButton(tr("Take over"), QDialogButtonBox::AcceptRole);
    QPushButton* all = buttons->addButton(tr("Tick &all"), QDialogButtonBox::ActionRole);
    QPushButton* none = buttons->addButton(tr("Tick &none"), QDialogButtonBox::ActionRole);
    connect(all, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { tickAll(false); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(form);
    column->addWidget(m_lines, 1);
    column->addWidget(m_note);
    column->addWidget(buttons);
    resize(860, 560);
    plan();
    m_lines->resizeColumnsToContents();
    if (m_event->currentIndex() < 0)
        m_event->setFocus();
    else
        m_lines->setFocus();
}

RaceName TakeOverDialog::name() const {
    return {m_year->value(), m_event->currentText().toStdString(),
            m_location->text().trimmed().toStdString()};
}

/// Ticks that the coach set stay where the lines stay the same.
void TakeOverDialog::plan() {
    const std::vector<PlannedResult> before = std::move(m_plan.planned);
    m_plan = planTakeOver(m_team, m_read(), name());
    const bool isSame = std::ranges::equal(
        before, m_plan.planned, [](const PlannedResult& a, const PlannedResult& b) {
            return a.athlete == b.athlete && a.found.run.has_value() == b.found.run.has_value() &&
                   a.found.category == b.found.category;
        });
    for (std::size_t i = 0; isSame && i < before.size(); ++i)
        m_plan.planned[i].isTicked = before[i].isTicked;
    showPlan();
}

void TakeOverDialog::showPlan() {
    m_isFilling = true;
    m_lines->setRowCount(static_cast<int>(m_plan.planned.size() + m_plan.notTaken.size()));
    int row = 0;
    for (const PlannedResult& planned : m_plan.planned)
        fillRow(row++, planned);
    for (const NotTaken& boat : m_plan.notTaken)
        fillRow(row++, boat);
    m_isFilling = false;
    showCount();
}

void TakeOverDialog::fillRow(int row, const PlannedResult& planned) {
    const FoundResult& found = planned.found;
    const QStringList texts{qtText(m_team.realMyTeam[planned.athlete].name),
                            qtText(found.crew),
                            qtText(found.category),
                            found.run ? qtText(found.run->phase) : tr("Final position"),
                            qtText(resultText(found)),
                            effectOf(planned)};
    for (int column = AthleteColumn; column <= EffectColumn; ++column)
        m_lines->setItem(row, column, new QTableWidgetItem(texts[column]));
    QTableWidgetItem* const tick = m_lines->item(row, AthleteColumn);
    tick->setFlags(tick->flags() | Qt::ItemIsUserCheckable);
    tick->setCheckState(planned.isTicked ? Qt::Checked : Qt::Unchecked);
}

void TakeOverDialog::fillRow(int row, const NotTaken& boat) {
    const QStringList texts{QString(), qtText(boat.crew), qtText(boat.category),
                            QString(), QString(),         qtText(boat.reason)};
    for (int column = AthleteColumn; column <= EffectColumn; ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        item->setForeground(theme::quietText(palette()));
        m_lines->setItem(row, column, item);
    }
}

std::size_t TakeOverDialog::tickedCount() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(m_plan.planned, &PlannedResult::isTicked));
}

void TakeOverDialog::showCount() {
    const std::size_t count = tickedCount();
    const bool hasRace = m_event->currentIndex() >= 0;
    m_take->setEnabled(count > 0 && hasRace);
    m_take->setText(count == 1 ? tr("&Take over 1 line") : tr("&Take over %1 lines").arg(count));
    if (m_plan.planned.empty())
        m_note->setText(tr("Nothing in the file belongs to an athlete of the team."));
    else if (!hasRace)
        m_note->setText(tr("Choose the event of the race."));
    else
        m_note->setText(tr("%1 of %2 lines are ticked; %3 stay out, with the reason beside them.")
                            .arg(count)
                            .arg(m_plan.planned.size())
                            .arg(m_plan.notTaken.size()));
}

void TakeOverDialog::tickAll(bool isTicked) {
    for (PlannedResult& planned : m_plan.planned)
        planned.isTicked = isTicked;
    showPlan();
}

} // namespace kavela::desktop
