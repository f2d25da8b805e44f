#include "desktop/selection/athlete_dialog.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"
#include "results/selection_ranking.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

#include <algorithm>

namespace kavela::desktop {

namespace {

const NumberRange BonusRange{0, 100, {}}; // percent

} // namespace

AthleteDialog::AthleteDialog(const NewAthlete& athlete, std::size_t groups, std::size_t bonuses,
                             QWidget* parent)
    : EntryDialog(parent),
      m_groupCount(groups),
      m_bonusCount(bonuses),
      m_name(new QLineEdit(QString::fromStdString(athlete.name))),
      m_club(new QLineEdit(QString::fromStdString(athlete.club))),
      m_year(new WholeBox),
      m_ageGroup(new QComboBox) {
    setWindowTitle(tr("Athlete"));
    m_name->setObjectName("athleteName");
    m_name->setPlaceholderText(tr("SURNAME Name"));
    m_year->setObjectName("birthYear");
    m_year->setRange(0, 2100);
    m_year->setSpecialValueText(tr("unknown"));
    m_year->setValue(static_cast<int>(std::clamp<std::int64_t>(athlete.birthYear, 0, 2100)));
    m_ageGroup->setObjectName("ageGroup");
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Club"), m_club);
    form->addRow(tr("&Birth year"), m_year);
    form->addRow(tr("&Age group"), m_ageGroup);
    for (std::size_t group = 0; group <= groups; ++group) {
        auto* box = new QCheckBox(tr("Preselected, group %1").arg(group + 1));
        box->setChecked(group < athlete.preselected.size() && athlete.preselected[group]);
        form->addRow(box);
        m_groups.push_back(box);
    }
    for (std::size_t kind = 0; kind <= bonuses; ++kind) {
        const double bonus = kind < athlete.bonuses.size() ? athlete.bonuses[kind] : NoBonus;
        auto* edit = new QLineEdit(bonus > NoBonus ? shownNumber(bonus) : QString());
        edit->setPlaceholderText(tr("none"));
        form->addRow(tr("Bonus %1 (percent)").arg(kind + 1), edit);
        m_bonuses.push_back(edit);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &AthleteDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_year, &WholeBox::textChanged, this, &AthleteDialog::showAgeGroups);
    showAgeGroups();
}

void AthleteDialog::showAgeGroups() {
    m_ageGroup->clear();
    for (const std::string& group : ageGroups(m_year->text().toStdString()))
        m_ageGroup->addItem(QString::fromStdString(group));
}

void AthleteDialog::accept() {
    for (QLineEdit* const edit : m_bonuses) {
        try {
            if (!edit->text().trimmed().isEmpty())
                (void)typedReal(edit->text(), BonusRange);
        } catch (const RefusedEntry& refusal) {
            refuseEntry(*edit, refusal.reason(), [edit] { edit->clear(); });
        }
    }
    EntryDialog::accept();
}

NewAthlete AthleteDialog::athlete() const {
    NewAthlete athlete;
    athlete.name = m_name->text().trimmed().toStdString();
    athlete.club = m_club->text().trimmed().toStdString();
    athlete.birthYear = m_year->value();
    for (const QCheckBox* box : m_groups)
        athlete.preselected.push_back(box->isChecked());
    for (const QLineEdit* edit : m_bonuses) {
        const QString typed = edit->text().trimmed();
        athlete.bonuses.push_back(typed.isEmpty() ? NoBonus : typedReal(typed, BonusRange));
    }
    // The one more of each is there only when it was used.
    if (!athlete.preselected.back())
        athlete.preselected.resize(m_groupCount);
    if (athlete.bonuses.back() <= NoBonus)
        athlete.bonuses.resize(m_bonusCount);
    return athlete;
}

} // namespace kavela::desktop
