#pragma once

#include "boatmotion/imports/sensor_csv.h"
#include "desktop/shell/forms/record_form.h"

#include <QWidget>

#include <functional>

namespace kavela::desktop {

/// All of a mapping but its columns: separator, units, direction of the readings, first date.
class CsvUnitsForm : public QWidget {
    Q_OBJECT

public:
    using Change = std::function<void(CsvMapping&)>;

    /// `edit` makes a change to the mapping and shows it again.
    explicit CsvUnitsForm(const std::function<void(const Change&)>& edit,
                          QWidget* parent = nullptr);

    /// The mapping as it is now; what is being typed stays.
    void showMapping(const CsvMapping& mapping);
    /// Takes what is being typed; false where it cannot be taken.
    bool commit();
    /// Whether the date of the first sample is asked for: the times of the list are no dates.
    void askForStart(bool asks);

private:
    void addTexts();
    void addTurns();
    void addWays();

    // They stand beside each other.
    RecordForm<CsvMapping>* m_texts; ///< how the list is written
    RecordForm<CsvMapping>* m_turns; ///< units of what the device feels
    RecordForm<CsvMapping>* m_ways;  ///< units of the way, where z points, the first date
};

} // namespace kavela::desktop
