#include "desktop/imports/csv_units_form.h"

#include "desktop/shell/theme.h"

#include <QHBoxLayout>

#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

template <class Value>
using UnitChoices = std::vector<std::pair<QString, Value>>;

} // namespace

CsvUnitsForm::CsvUnitsForm(const std::function<void(const Change&)>& edit, QWidget* parent)
    : QWidget(parent) {
    auto* const columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(theme::LargeSpacing);
    for (RecordForm<CsvMapping>** const form : {&m_texts, &m_turns, &m_ways}) {
        *form = new RecordForm<CsvMapping>(
            [edit](const QString&, const Change& change) { edit(change); });
        columns->addWidget(*form, 1);
    }
    addTexts();
    addTurns();
    addWays();
}

void CsvUnitsForm::addTexts() {
    m_texts->choice(
        {.name = "separator", .label = tr("&Between columns")},
        UnitChoices<char>{{tr("Comma"), ','}, {tr("Semicolon"), ';'}, {tr("Tab"), '\t'}},
        &CsvMapping::separator);
    m_texts->check({.name = "decimalComma", .label = tr("&Decimal comma")},
                   &CsvMapping::hasDecimalComma);
    m_texts->choice({.name = "time", .label = tr("&Times")},
                    UnitChoices<CsvTime>{{tr("Dates"), CsvTime::Date},
                                         {tr("Seconds"), CsvTime::Seconds},
                                         {tr("Milliseconds"), CsvTime::Milliseconds},
                                         {tr("Microseconds"), CsvTime::Microseconds},
                                         {tr("Nanoseconds"), CsvTime::Nanoseconds}},
                    &CsvMapping::time);
}

void CsvUnitsForm::addTurns() {
    m_turns->choice(
        {.name = "acceleration", .label = tr("&Acceleration")},
        UnitChoices<CsvAcceleration>{{tr("g"), CsvAcceleration::G},
                                     {tr("m/s²"), CsvAcceleration::MetresPerSecondSquared}},
        &CsvMapping::acceleration);
    m_turns->choice({.name = "rotation", .label = tr("&Rotation")},
                    UnitChoices<CsvRotation>{{tr("rad/s"), CsvRotation::RadiansPerSecond},
                                             {tr("°/s"), CsvRotation::DegreesPerSecond}},
                    &CsvMapping::rotation);
    m_turns->choice({.name = "angle", .label = tr("An&gles")},
                    UnitChoices<CsvAngle>{{tr("Radians"), CsvAngle::Radians},
                                          {tr("Degrees"), CsvAngle::Degrees}},
                    &CsvMapping::angle);
}

void CsvUnitsForm::addWays() {
    m_ways->choice({.name = "speed", .label = tr("&Speed")},
                   UnitChoices<CsvSpeed>{{tr("m/s"), CsvSpeed::MetresPerSecond},
                                         {tr("km/h"), CsvSpeed::KilometresPerHour}},
                   &CsvMapping::speed);
    m_ways->choice({.name = "direction", .label = tr("Lying on its back, &z reads")},
                   UnitChoices<bool>{{tr("+1 g, upward"), true}, {tr("−1 g, downward"), false}},
                   &CsvMapping::readsUpAtRest);
    m_ways->moment(
        {.name = "start", .label = tr("&First sample at")},
        Access{[](const CsvMapping& mapping) { return mapping.start.value_or(ReferenceDate()); },
               [](CsvMapping& mapping, ReferenceDate start) { mapping.start = start; }});
}

void CsvUnitsForm::showMapping(const CsvMapping& mapping) {
    for (RecordForm<CsvMapping>* const form : {m_texts, m_turns, m_ways})
        form->show(&mapping);
    const bool isSeparator = mapping.separator == ',';
    m_texts->setFieldEnabled("decimalComma", !isSeparator,
                             isSeparator ? tr("The comma stands between columns.") : QString());
}

bool CsvUnitsForm::commit() {
    return m_texts->commit() && m_turns->commit() && m_ways->commit();
}

void CsvUnitsForm::askForStart(bool asks) {
    m_ways->setFieldEnabled("start", asks,
                            asks ? tr("The times of the list are no dates. This is when the file "
                                      "was written, less its length.")
                                 : tr("The times of the list are dates."));
}

} // namespace kavela::desktop
