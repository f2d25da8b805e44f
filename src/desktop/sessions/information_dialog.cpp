#include "desktop/sessions/information_dialog.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace kavela::desktop {

namespace {

using Info = infosessionSmart_v3;

struct TextField {
    const char* name;
    const char* label;
    std::string Info::*member;
};

struct NumberField {
    const char* name;
    const char* label;
    const char* suffix;
    double Info::*member;
};

constexpr std::array Texts{TextField{"athlete", QT_TR_NOOP("&Athlete"), &Info::name},
                           TextField{"location", QT_TR_NOOP("&Location"), &Info::location},
                           TextField{"kind", QT_TR_NOOP("&Kind"), &Info::sessionKind}};

constexpr std::array Numbers{
    NumberField{"weight", QT_TR_NOOP("&Weight"), " kg", &Info::weight},
    NumberField{"paddleLength", QT_TR_NOOP("&Paddle length"), " cm", &Info::paddleLength},
    NumberField{"bladeArea", QT_TR_NOOP("&Blade area"), " cm²", &Info::bladeArea},
    NumberField{"bladeHeight", QT_TR_NOOP("Blade &height"), " cm", &Info::bladeHeight},
    NumberField{"handPosition", QT_TR_NOOP("Hand po&sition"), " cm", &Info::handPosition}};

constexpr double Most = 10000; // of any of the numbers

} // namespace

InformationDialog::InformationDialog(const Info& info, QWidget* parent)
    : EntryDialog(parent), m_info(info) {
    setWindowTitle(tr("Session information"));
    auto* form = new QFormLayout(this);
    form->setSpacing(theme::Spacing);
    for (std::size_t i = 0; i < Texts.size(); ++i) {
        m_texts[i] = new QLineEdit(QString::fromStdString(info.*Texts[i].member));
        m_texts[i]->setObjectName(Texts[i].name);
        form->addRow(tr(Texts[i].label), m_texts[i]);
    }
    for (std::size_t i = 0; i < Numbers.size(); ++i) {
        auto* box = new NumberBox;
        box->setObjectName(Numbers[i].name);
        box->setRange(0, Most);
        box->setDecimals(1);
        box->setSpecialValueText(tr("–"));
        box->setSuffix(Numbers[i].suffix);
        box->setValue(info.*Numbers[i].member);
        m_numbers[i] = box;
        m_shown[i] = box->value();
        form->addRow(tr(Numbers[i].label), box);
    }
    auto* note = new QLabel(tr("The weight tells force and power when a recording is converted: "
                               "analyse it again after changing it."));
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    form->addRow(note);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    resize(420, sizeHint().height());
}

/// What nobody touched stays as it was: a number with all its decimals, a text with its spaces.
Info InformationDialog::information() const {
    Info info = m_info;
    for (std::size_t i = 0; i < Texts.size(); ++i) {
        if (const QString text = m_texts[i]->text(); text.toStdString() != m_info.*Texts[i].member)
            info.*Texts[i].member = text.simplified().toStdString();
    }
    for (std::size_t i = 0; i < Numbers.size(); ++i) {
        if (m_numbers[i]->value() != m_shown[i])
            info.*Numbers[i].member = m_numbers[i]->value();
    }
    return info;
}

} // namespace kavela::desktop
