#include "desktop/cross/heats/heat_dialog.h"

#include "desktop/shell/fault_label.h"
#include "desktop/shell/theme.h"
#include "splittaking/annotations/cross_trials.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

#include <algorithm>

namespace kavela::desktop {

HeatDialog::HeatDialog(const std::vector<std::string>& names,
                       const std::vector<std::string>& offered, bool isNew, QWidget* parent)
    : QDialog(parent),
      m_isNew(isNew),
      m_fault(new FaultLabel),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setWindowTitle(isNew ? tr("Add a heat") : tr("Names of the boats"));
    auto* form = new QFormLayout(this);
    form->setSpacing(theme::Spacing);
    const std::size_t count = isNew ? BoatsInHeat : names.size();
    for (std::size_t boat = 0; boat < count; ++boat) {
        auto* combo = new QComboBox;
        combo->setObjectName(QStringLiteral("boat%1").arg(boat + 1));
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        constexpr int Letters = 28;
        combo->setMinimumContentsLength(Letters);
        for (const std::string& name : offered)
            combo->addItem(QString::fromStdString(name));
        combo->setEditText(boat < names.size() ? QString::fromStdString(names[boat]) : QString());
        connect(combo, &QComboBox::editTextChanged, this, &HeatDialog::showFault);
        form->addRow(tr("Boat %1").arg(boat + 1), combo);
        m_boats.push_back(combo);
    }
    form->addRow(m_fault);
    form->addRow(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showFault();
}

std::vector<std::string> HeatDialog::names() const {
    std::vector<std::string> names;
    for (const QComboBox* const combo : m_boats)
        if (const QString name = combo->currentText().trimmed(); !m_isNew || !name.isEmpty())
            names.push_back(name.toStdString());
    return names;
}

void HeatDialog::showFault() {
    const std::vector<std::string> chosen = names();
    QString fault;
    for (const std::string& name : chosen)
        if (name.empty())
            fault = tr("Each boat needs a name.");
        else if (std::ranges::count(chosen, name) > 1)
            fault = tr("%1 stands twice in the heat.").arg(QString::fromStdString(name));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(fault.isEmpty() && !chosen.empty());
    m_fault->tell(fault);
}

} // namespace kavela::desktop
