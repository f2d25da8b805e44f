#include "desktop/sessions/information_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace kavela::desktop {

InformationDialog::InformationDialog(const infosessionSmart_v3& info, QWidget* parent)
    : EntryDialog(parent),
      m_info(info),
      m_form([this](const QString&, const auto& change) { change(m_info); }) {
    setWindowTitle(tr("Session information"));
    addFields();
    m_form.show(&m_info);
    auto* note = new QLabel(tr("The weight tells force and power when a recording is converted: "
                               "analyse it again after changing it."));
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(&m_form);
    column->addWidget(note);
    column->addWidget(buttons);
    resize(420, sizeHint().height());
}

void InformationDialog::addFields() {
    using Info = infosessionSmart_v3;
    const auto number = [this](const char* name, const QString& label, const QString& unit,
                               double Info::*member) {
        m_form.number({.name = name, .label = label},
                      {.most = 10000, .decimals = 1, .unit = unit, .none = tr("–")}, member);
    };
    m_form.text({.name = "athlete", .label = tr("&Athlete")}, &Info::name);
    m_form.text({.name = "location", .label = tr("&Location")}, &Info::location);
    m_form.text({.name = "kind", .label = tr("&Kind")}, &Info::sessionKind);
    number("weight", tr("&Weight"), tr("kg"), &Info::weight);
    number("paddleLength", tr("&Paddle length"), tr("cm"), &Info::paddleLength);
    number("bladeArea", tr("&Blade area"), tr("cm²"), &Info::bladeArea);
    number("bladeHeight", tr("Blade &height"), tr("cm"), &Info::bladeHeight);
    number("handPosition", tr("Hand po&sition"), tr("cm"), &Info::handPosition);
}

void InformationDialog::accept() {
    if (m_form.commit())
        EntryDialog::accept();
}

} // namespace kavela::desktop
