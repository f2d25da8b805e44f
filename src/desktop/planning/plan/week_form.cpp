#include "desktop/planning/plan/week_form.h"

#include "desktop/planning/plan/week_texts.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"
#include "planning/health_states.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalBlocker>

#include <algorithm>

namespace kavela::desktop {

namespace {

using namespace std::chrono;

constexpr double MostLoad = 300;

/// A text field of several lines that tells when it is left.
class LeftText : public QPlainTextEdit {
public:
    std::function<void()> left;

protected:
    void focusOutEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusOutEvent(event);
        left();
    }
};

QString datesText(const std::vector<ReferenceDate>& dates) {
    QStringList texts;
    for (const ReferenceDate date : dates)
        texts.append(QString::fromStdString(dayText(date)));
    return texts.join(", ");
}

/// The days of a text; a day that was there before keeps its time of day. Nothing where one of them
/// is no date.
std::optional<std::vector<ReferenceDate>> datesOf(const QString& text,
                                                  const std::vector<ReferenceDate>& before) {
    std::vector<ReferenceDate> dates;
    for (const QString& part : text.split(QRegularExpression("[,;\\s]+"), Qt::SkipEmptyParts)) {
        const auto same = std::ranges::find_if(before, [&](ReferenceDate date) {
            return part == QString::fromStdString(dayText(date));
        });
        const QDate typed = QDate::fromString(part, Qt::ISODate);
        if (same != before.end())
            dates.push_back(*same);
        else if (typed.isValid() && typed.year() > 0)
            dates.push_back(midnightOf(sys_days(year(typed.year()) / typed.month() / typed.day())));
        else
            return std::nullopt;
    }
    return dates;
}

QString goalsText(const std::vector<std::string>& goals) {
    QStringList lines;
    for (const std::string& goal : goals)
        lines.append(QString::fromStdString(goal));
    return lines.join('\n');
}

} // namespace

WeekForm::WeekForm(QWidget* parent)
    : QWidget(parent),
      m_title(new QLabel),
      m_note(new QLabel),
      m_faults(new FaultLabel),
      m_body(new QWidget) {
    m_title->setFont(theme::titleFont(*this));
    m_note->setFont(theme::captionFont(*this));
    m_note->setWordWrap(true);
    auto* form = new QFormLayout(m_body);
    form->setContentsMargins(0, 0, 0, 0);
    form->setSpacing(theme::SmallSpacing);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    addLoad(*form);
    addCycle(*form, tr("Macrocycle"), "macrocycle", &microsplanning_v5::macrocycle);
    addCycle(*form, tr("Mesocycle"), "mesocycle", &microsplanning_v5::mesocycle);
    addLine(*form, tr("Place"), "place", &microsplanning_v5::place, true);
    addLine(*form, tr("Event"), "event", &microsplanning_v5::event, false);
    addLine(*form, tr("On-water test"), "watertest", &microsplanning_v5::watertest, false);
    addDates(*form, tr("done on"), "waterdates", &testdataplanning_v5::water);
    addLine(*form, tr("Endurance test"), "endurancetest", &microsplanning_v5::endurancetest, false);
    addDates(*form, tr("done on"), "endurancedates", &testdataplanning_v5::endurance);
    addLine(*form, tr("Blood test"), "bloodtest", &microsplanning_v5::bloodtest, false);
    addDates(*form, tr("done on"), "blooddates", &testdataplanning_v5::blood);
    addHealth(*form);
    addLine(*form, tr("Injured part"), "injurypart", &microsplanning_v5::injurypart, false);
    addLine(*form, tr("Health notes"), "healthdes", &microsplanning_v5::healthdes, false);
    addGoals(*form);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(theme::Spacing, 0, theme::Spacing, 0);
    whole->setSpacing(theme::Spacing);
    for (QWidget* part : {static_cast<QWidget*>(m_title), static_cast<QWidget*>(m_note),
                          static_cast<QWidget*>(m_faults), m_body})
        whole->addWidget(part);
    whole->addStretch(1);
    setWeek(nullptr, {});
}

void WeekForm::addLine(QFormLayout& form, const QString& label, const char* name, Text field,
                       bool wholeBlock) {
    auto* line = new QLineEdit;
    line->setObjectName(name);
    const auto write = [=, this] {
        const std::string typed = line->text().toStdString();
        if (line->isModified() && typed != m_week.*field)
            emit edited(
                label.toLower(), [=](microsplanning_v5& week) { week.*field = typed; }, wholeBlock);
        line->setModified(false);
    };
    connect(line, &QLineEdit::editingFinished, this, write);
    form.addRow(label, line);
    m_fields.push_back({[=](const microsplanning_v5& week) {
                            line->setText(QString::fromStdString(week.*field));
                            line->setCursorPosition(0);
                        },
                        write, line});
}

/// The names of the season so far are offered.
void WeekForm::addCycle(QFormLayout& form, const QString& label, const char* name, Text field) {
    auto* box = new QComboBox;
    box->setEditable(true);
    box->setObjectName(name);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setInsertPolicy(QComboBox::NoInsert);
    const auto write = [=, this] {
        const std::string typed = box->currentText().toStdString();
        if (typed != m_week.*field)
            emit edited(
                label.toLower(), [=](microsplanning_v5& week) { week.*field = typed; }, true);
    };
    connect(box->lineEdit(), &QLineEdit::editingFinished, this, write);
    connect(box, &QComboBox::textActivated, this, write);
    form.addRow(label, box);
    m_fields.push_back({[=, this](const microsplanning_v5& week) {
                            const QSignalBlocker quiet(box);
                            box->clear();
                            for (const microsplanning_v5& other : m_season->micros) {
                                const QString used = QString::fromStdString(other.*field);
                                if (!used.isEmpty() && box->findText(used) < 0)
                                    box->addItem(used);
                            }
                            box->setEditText(QString::fromStdString(week.*field));
                        },
                        write, box});
}

void WeekForm::addDates(QFormLayout& form, const QString& label, const char* name, Dates field) {
    auto* line = new QLineEdit;
    line->setObjectName(name);
    line->setPlaceholderText("2026-03-10, …");
    const auto write = [=, this] {
        const std::vector<ReferenceDate>& before = m_week.testdata.*field;
        if (!line->isModified() || line->text() == datesText(before))
            return;
        const auto dates = datesOf(line->text(), before);
        if (!dates) {
            refuseEntry(*line,
                        tr("“%1” are no dates. Write them as 2026-03-10, with commas between.")
                            .arg(line->text()),
                        [=] { line->setText(datesText(before)); });
            return;
        }
        line->setModified(false);
        acceptEntry(*line);
        emit edited(
            tr("dates of tests"), [=](microsplanning_v5& week) { week.testdata.*field = *dates; },
            false);
    };
    connect(line, &QLineEdit::editingFinished, this, write);
    form.addRow(label, line);
    m_fields.push_back({[=](const microsplanning_v5& week) {
                            line->setText(datesText(week.testdata.*field));
                            line->setCursorPosition(0);
                        },
                        write, line});
}

void WeekForm::addLoad(QFormLayout& form) {
    auto* load = new NumberBox;
    load->setObjectName("load");
    load->setDecimals(1);
    load->setSuffix(" %");
    load->setSingleStep(5);
    load->setKeyboardTracking(false);
    const auto write = [=, this] {
        if (load->hasAcceptableInput())
            load->interpretText(); // what was typed counts before the box is left, too
        const double shown = QString::number(m_week.percentaje, 'f', 1).toDouble();
        if (const double typed = load->value(); typed != shown)
            emit edited(
                tr("load"), [=](microsplanning_v5& week) { week.percentaje = typed; }, true);
    };
    connect(load, &NumberBox::valueChanged, this, write);
    form.addRow(tr("Load"), load);
    m_fields.push_back({[=](const microsplanning_v5& week) {
                            const QSignalBlocker quiet(load);
                            load->setRange(std::min(0.0, week.percentaje),
                                           std::max(MostLoad, week.percentaje));
                            load->showValue(week.percentaje);
                        },
                        write, load});
}

void WeekForm::addHealth(QFormLayout& form) {
    auto* health = new QComboBox;
    health->setObjectName("health");
    health->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    const auto write = [=, this] {
        const auto state = health->currentData().toLongLong();
        if (state != m_week.health)
            emit edited(
                tr("health"), [=](microsplanning_v5& week) { week.health = state; }, false);
    };
    connect(health, &QComboBox::activated, this, write);
    form.addRow(tr("Health"), health);
    m_fields.push_back({[=](const microsplanning_v5& week) {
                            health->clear();
                            const auto known = static_cast<std::int64_t>(HealthStates.size());
                            for (std::int64_t i = 0; i < known; ++i)
                                health->addItem(QString::fromStdString(healthState(i)),
                                                QVariant::fromValue<qlonglong>(i));
                            const QVariant state = QVariant::fromValue<qlonglong>(week.health);
                            if (health->findData(state) < 0)
                                health->addItem(QString::fromStdString(healthState(week.health)),
                                                state);
                            health->setCurrentIndex(health->findData(state));
                        },
                        write, health});
}

/// One goal per line.
void WeekForm::addGoals(QFormLayout& form) {
    auto* goals = new LeftText;
    goals->setObjectName("goals");
    goals->setTabChangesFocus(true);
    goals->setPlaceholderText(tr("One per line"));
    goals->setFixedHeight(4 * fontMetrics().lineSpacing() + theme::Spacing);
    const auto write = [=, this] {
        if (goals->toPlainText() == goalsText(m_week.goals))
            return;
        std::vector<std::string> typed;
        for (const QString& line : goals->toPlainText().split('\n', Qt::SkipEmptyParts))
            typed.push_back(line.trimmed().toStdString());
        emit edited(
            tr("goals of the week"), [=](microsplanning_v5& week) { week.goals = typed; }, false);
    };
    goals->left = write;
    form.addRow(tr("Goals"), goals);
    m_fields.push_back({[=](const microsplanning_v5& week) {
                            if (goals->toPlainText() != goalsText(week.goals))
                                goals->setPlainText(goalsText(week.goals));
                        },
                        write, goals});
}

void WeekForm::commit() {
    for (const Field& field : m_fields)
        if (field.widget->hasFocus())
            field.write();
}

void WeekForm::showHead(const microsplanning_v5& week) {
    const auto first = dayOfMidnight(week.monday);
    m_title->setText(first ? tr("Week %1 · from %2").arg(week.number).arg(dayTitle(*first))
                           : tr("Week %1").arg(week.number));
    m_note->setText(tr("%1 weeks are chosen: load, cycles and place go into all of them.")
                        .arg(m_block.count()));
    m_note->setVisible(m_block.count() > 1);
    m_faults->tell(weekFaults(week));
}

void WeekForm::setWeek(const yearsplannings_v6* season, const WeekBlock& block) {
    const bool hasWeek = season && block.current < season->micros.size();
    m_body->setVisible(hasWeek);
    m_block = block;
    if (!hasWeek) {
        m_title->clear();
        m_note->hide();
        m_faults->hide();
        return;
    }
    m_week = season->micros[block.current];
    m_season = season;
    showHead(m_week);
    for (const Field& field : m_fields)
        field.show(m_week);
    m_season = nullptr;
}

} // namespace kavela::desktop
