#pragma once

#include "desktop/planning/body/typed_measures.h"
#include "desktop/shell/tables/column_model.h"

#include <QCoreApplication>

/// The columns of dated measurements, whatever their record is called.
namespace kavela::desktop {

/// One value of a measurement.
template <class Record>
struct Measure {
    double Record::*member;
    QString title;
    QString unit;
    double most = 0; ///< what can be typed, and what is odd above
};

/// `take` gets the place of the measurement and its new date.
template <class Record>
Column<Record> dateColumn(std::function<void(std::size_t place, ReferenceDate date)> take) {
    return {.title = QCoreApplication::translate("MeasureColumns", "Date"),
            .show = [](const Record& record) { return dateCell(record.date); },
            .take = [take](const std::size_t& place, const Record& before,
                           const QString& typed) { take(place, typedDate(typed, before.date)); }};
}

/// `take` gets the place of the measurement and its new value.
template <class Record>
Column<Record> measureColumn(const Measure<Record>& measure,
                             std::function<void(std::size_t place, double value)> take) {
    return {.title = measure.title,
            .unit = measure.unit,
            .kind = ColumnKind::Number,
            .show =
                [measure](const Record& record) {
                    return measureCell(record.*measure.member, measure.most);
                },
            .take =
                [measure, take](const std::size_t& place, const Record&, const QString& typed) {
                    take(place, typedMeasure(typed, measure.most));
                }};
}

} // namespace kavela::desktop
