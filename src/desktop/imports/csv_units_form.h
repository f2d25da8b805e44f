#pragma once

#include "boatmotion/imports/sensor_csv.h"

#include <QDateTime>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QFormLayout;

namespace kavela::desktop {

/// All of a mapping but its columns: separator, units, direction of the readings, first date.
class CsvUnitsForm : public QWidget {
    Q_OBJECT

public:
    explicit CsvUnitsForm(QWidget* parent = nullptr);

    /// Shows a mapping; nothing is signalled.
    void showMapping(const CsvMapping& mapping);
    /// Writes what is shown into a mapping.
    void apply(CsvMapping& mapping) const;

    /// Whether the date of the first sample is asked for: the times of the list are no dates.
    void askForStart(bool asks);
    /// Proposes a date, unless the coach has set one.
    void proposeStart(const QDateTime& start);

signals:
    void separatorChosen(char separator);
    void changed();

private:
    QComboBox* addChoice(QFormLayout& form, const QString& label, const char* name,
                         const QStringList& choices);

    QComboBox* m_separator = nullptr;
    QCheckBox* m_decimalComma = nullptr;
    QComboBox* m_time = nullptr;
    QComboBox* m_acceleration = nullptr;
    QComboBox* m_rotation = nullptr;
    QComboBox* m_angle = nullptr;
    QComboBox* m_speed = nullptr;
    QComboBox* m_direction = nullptr;
    QDateTimeEdit* m_start = nullptr;
    bool m_isStartSet = false; ///< by the coach
};

} // namespace kavela::desktop
