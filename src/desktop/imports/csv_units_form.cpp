#include "desktop/imports/csv_units_form.h"

#include "desktop/shell/theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <array>
#include <string_view>

namespace kavela::desktop {

namespace {
/// In the order of the choices.
constexpr std::string_view Separators = ",;\t";
} // namespace

CsvUnitsForm::CsvUnitsForm(QWidget* parent) : QWidget(parent) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(theme::LargeSpacing);
    std::array<QFormLayout*, 3> forms{};
    for (QFormLayout*& form : forms) {
        form = new QFormLayout;
        form->setSpacing(theme::Spacing);
        columns->addLayout(form, 1);
    }
    m_separator = addChoice(*forms[0], tr("&Between columns"), "separator",
                            {tr("Comma"), tr("Semicolon"), tr("Tab")});
    m_decimalComma = new QCheckBox(tr("&Decimal comma"));
    m_decimalComma->setObjectName("decimalComma");
    connect(m_decimalComma, &QCheckBox::toggled, this, &CsvUnitsForm::changed);
    forms[0]->addRow(QString(), m_decimalComma);
    m_time = addChoice(
        *forms[0], tr("&Times"), "time",
        {tr("Dates"), tr("Seconds"), tr("Milliseconds"), tr("Microseconds"), tr("Nanoseconds")});
    m_acceleration =
        addChoice(*forms[1], tr("&Acceleration"), "acceleration", {tr("g"), tr("m/s²")});
    m_rotation = addChoice(*forms[1], tr("&Rotation"), "rotation", {tr("rad/s"), tr("°/s")});
    m_angle = addChoice(*forms[1], tr("An&gles"), "angle", {tr("Radians"), tr("Degrees")});
    m_speed = addChoice(*forms[2], tr("&Speed"), "speed", {tr("m/s"), tr("km/h")});
    m_direction = addChoice(*forms[2], tr("Lying on its back, &z reads"), "direction",
                            {tr("+1 g, upward"), tr("−1 g, downward")});
    m_start = new QDateTimeEdit;
    m_start->setObjectName("start");
    m_start->setDisplayFormat("yyyy-MM-dd HH:mm:ss");
    m_start->setCalendarPopup(true);
    connect(m_start, &QDateTimeEdit::dateTimeChanged, this, [this] {
        m_isStartSet = true;
        emit changed();
    });
    forms[2]->addRow(tr("&First sample at"), m_start);
    disconnect(m_separator, &QComboBox::currentIndexChanged, this, nullptr);
    connect(m_separator, &QComboBox::currentIndexChanged, this, [this](int index) {
        emit separatorChosen(Separators[static_cast<std::size_t>(index)]);
    });
}

QComboBox* CsvUnitsForm::addChoice(QFormLayout& form, const QString& label, const char* name,
                                   const QStringList& choices) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->addItems(choices);
    connect(box, &QComboBox::currentIndexChanged, this, &CsvUnitsForm::changed);
    form.addRow(label, box);
    return box;
}

void CsvUnitsForm::showMapping(const CsvMapping& mapping) {
    const QSignalBlocker silence(this);
    m_separator->setCurrentIndex(static_cast<int>(Separators.find(mapping.separator)));
    m_decimalComma->setChecked(mapping.hasDecimalComma);
    m_decimalComma->setEnabled(mapping.separator != ',');
    m_time->setCurrentIndex(static_cast<int>(mapping.time));
    m_acceleration->setCurrentIndex(static_cast<int>(mapping.acceleration));
    m_rotation->setCurrentIndex(static_cast<int>(mapping.rotation));
    m_angle->setCurrentIndex(static_cast<int>(mapping.angle));
    m_speed->setCurrentIndex(static_cast<int>(mapping.speed));
    m_direction->setCurrentIndex(mapping.readsUpAtRest ? 0 : 1);
}

void CsvUnitsForm::apply(CsvMapping& mapping) const {
    mapping.separator = Separators[static_cast<std::size_t>(m_separator->currentIndex())];
    mapping.hasDecimalComma = m_decimalComma->isChecked() && mapping.separator != ',';
    mapping.time = static_cast<CsvTime>(m_time->currentIndex());
    mapping.acceleration = static_cast<CsvAcceleration>(m_acceleration->currentIndex());
    mapping.rotation = static_cast<CsvRotation>(m_rotation->currentIndex());
    mapping.angle = static_cast<CsvAngle>(m_angle->currentIndex());
    mapping.speed = static_cast<CsvSpeed>(m_speed->currentIndex());
    mapping.readsUpAtRest = m_direction->currentIndex() == 0;
    const double since1970 = static_cast<double>(m_start->dateTime().toMSecsSinceEpoch()) / 1000;
    mapping.start = ReferenceDate{since1970 - SecondsFrom1970To2001};
}

void CsvUnitsForm::askForStart(bool asks) {
    m_start->setEnabled(asks);
    m_start->setToolTip(asks ? tr("The times of the list are no dates. This is when the file was "
                                  "written, less its length.")
                             : tr("The times of the list are dates."));
}

void CsvUnitsForm::proposeStart(const QDateTime& start) {
    if (m_isStartSet)
        return;
    const QSignalBlocker silence(m_start);
    m_start->setDateTime(start);
}

} // namespace kavela::desktop
